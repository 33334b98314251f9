#include "tests/host/gui/testskin.h"

#include "framework/support/objects/message.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "host/gui/hostgui.h"
#include "host/gui/hostwidgets.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QUrl>

#include <algorithm>

namespace xbr::host::tests {

TestSkin::TestSkin() {
    registerGuiClasses();
}

TestSkin::~TestSkin() {
    m_theme.reset();
    unregisterGuiClasses();
}

void TestSkin::write(const std::string& file, const std::string& bytes) const {
    QFile out(m_folder.filePath(QString::fromStdString(file)));
    if (out.open(QIODevice::WriteOnly)) {
        out.write(bytes.data(), static_cast<qint64>(bytes.size()));
    }
}

void TestSkin::addForm(const std::string& name, const std::string& content) {
    write(name + ".ui",
          "<ui version='4.0'><class>test</class>" + widgetXml("QWidget", name, {}, content) + "</ui>");
    m_forms.insert(name);
    std::string entries;
    for (const std::string& form : m_forms) {
        entries.append("<Form name='").append(form).append("' file='").append(form).append(".ui'/>");
    }
    write("skin.xml", "<Skin>" + entries + "</Skin>");
    m_theme.reset();
}

Result TestSkin::load() {
    m_theme = createHostObject<ITheme>();
    return m_theme->load(toText(QUrl::fromLocalFile(m_folder.path()).toEncoded().toStdString()));
}

Ref<IView> TestSkin::view(std::string_view form, IController& controller) {
    if (!m_theme) {
        load();
    }
    Ref<IView> view;
    m_theme->createView(toText(form), &controller, view.out());
    return view;
}

std::unique_ptr<QWidget> TestSkin::widget(std::string_view form, IController& controller) {
    const auto made = view(form, controller);
    std::unique_ptr<QWidget> widget(made ? createViewWidget(*made, nullptr) : nullptr);
    if (widget) {
        widget->show();
        QApplication::setActiveWindow(widget.get()); // a window system would do that
        settle();
    }
    return widget;
}

std::string widgetXml(std::string_view className, std::string_view name, std::string_view bindings,
                      std::string_view content) {
    std::string xml = "<widget class='" + std::string(className) + "' name='" + std::string(name) + "'>";
    while (!bindings.empty()) {
        const auto binding = bindings.substr(0, bindings.find(';'));
        bindings.remove_prefix(std::min(bindings.size(), binding.size() + 1));
        const auto equals = binding.find('=');
        xml += "<property name='" + std::string(binding.substr(0, equals)) +
               "' stdset='0'><string notr='true'>" + std::string(binding.substr(equals + 1)) +
               "</string></property>";
    }
    return xml + std::string(content) + "</widget>";
}

Parameter& TestController::named(std::string_view name) {
    return static_cast<Parameter&>(*findParameter(toText(name)));
}

void TestController::change(const std::string& property, std::int64_t value) {
    const auto found = std::find_if(m_properties.begin(), m_properties.end(),
                                    [&](const auto& pair) { return pair.first == property; });
    if (found == m_properties.end()) {
        m_properties.emplace_back(property, value);
    } else {
        found->second = value;
    }
    signal(*this, "propertyChanged");
}

Result TestController::getProperty(Text name, Value* out) noexcept {
    for (const auto& [known, value] : m_properties) {
        if (known == xbr::view(name)) {
            *out = integerValue(value);
            return kOk;
        }
    }
    return Component::getProperty(name, out);
}

Result TestController::createView(Text name, IView** out) noexcept {
    *out = makeView ? makeView(xbr::view(name)).detach() : nullptr;
    return *out ? kOk : kFalse;
}

void TestController::parameterChanged(Parameter& parameter) {
    changes.push_back(toString(parameter.name()));
    if (onChange) {
        onChange(parameter);
    }
}

void settle() {
    for (int i = 0; i < 3; ++i) {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

} // namespace xbr::host::tests
