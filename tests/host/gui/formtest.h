#pragma once

#include "framework/abi/view.h"
#include "framework/support/objects/text.h"
#include "host/gui/hostgui.h"
#include "host/gui/hostwidgets.h"
#include "tests/fixtures/testfolder.h"
#include "tests/host/gui/testcontroller.h"

#include <QApplication>
#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace xbr::host::tests {

using Kind = ParameterKind;
using Texts = std::vector<std::string>;

/// The Designer description of one widget with dynamic properties, written "name=value;name=value".
inline std::string widgetXml(std::string_view className, std::string_view name,
                             std::string_view bindings = {}, std::string_view content = {}) {
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

/// Widgets below each other.
inline std::string columnXml(const Texts& widgets) {
    std::string items;
    for (const std::string& widget : widgets) {
        items += "<item>" + widget + "</item>";
    }
    return "<layout class='QVBoxLayout'>" + items + "</layout>";
}

/// Lets everything that is posted happen.
inline void settle() {
    for (int i = 0; i < 10; ++i) {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

/// With a skin of a test's own forms, one of which is shown.
class FormTest : public testing::Test {
protected:
    FormTest() { registerGuiClasses(); }
    ~FormTest() override {
        form.reset();
        m_theme.reset();
        unregisterGuiClasses();
    }

    /// Adds a form, or replaces the one of that name; `content` stands inside its top widget, whose name is
    /// the form's.
    void addForm(const std::string& name, const std::string& content) {
        folder.write(name + ".ui", "<ui version='4.0'><class>test</class>" +
                                       widgetXml("QWidget", name, {}, content) + "</ui>");
        m_forms.insert("<Form name='" + name + "' file='" + name + ".ui'/>");
        std::string entries;
        for (const std::string& each : m_forms) {
            entries += each;
        }
        folder.write("skin.xml", "<Skin>" + entries + "</Skin>");
        m_theme = createHostObject<ITheme>();
        EXPECT_EQ(m_theme->load(toText(folder.url(""))), kOk);
    }

    Ref<IView> view(std::string_view name) {
        Ref<IView> view;
        m_theme->createView(toText(name), root.get(), view.out());
        return view;
    }

    /// Shows the form "F", of that content when there is any, and keeps what is warned of meanwhile; no form
    /// when it cannot be made.
    void show(const std::string& content = {}) {
        if (!content.empty()) {
            addForm("F", content);
        }
        testing::internal::CaptureStderr();
        const auto made = view("F");
        form.reset(made ? createViewWidget(*made, nullptr) : nullptr);
        if (form) {
            form->show();
            QApplication::setActiveWindow(form.get()); // a window system would do that
            settle();
        }
        warnings = testing::internal::GetCapturedStderr();
    }

    /// A widget of the form.
    template <class Widget = QWidget>
    Widget& at(const char* name) const {
        auto* found = form->findChild<Widget*>(QLatin1String(name));
        Q_ASSERT(found);
        return *found;
    }
    std::string text(const char* name) const { return at(name).property("text").toString().toStdString(); }

    TestFolder folder;
    Ref<TestController> root = make<TestController>("Root");
    std::unique_ptr<QWidget> form;
    std::string warnings;

private:
    std::set<std::string> m_forms;
    Ref<ITheme> m_theme;
};

} // namespace xbr::host::tests
