#pragma once

#include "framework/abi/view.h"
#include "framework/support/parts/component.h"

#include <QTemporaryDir>
#include <QWidget>

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <string_view>

namespace xbr::host::tests {

/// A skin of a test's own forms.
class TestSkin {
public:
    TestSkin();
    TestSkin(const TestSkin&) = delete;
    TestSkin& operator=(const TestSkin&) = delete;
    ~TestSkin();

    /// Adds a form, or replaces the one of that name; `content` stands inside its top widget, whose name is
    /// the form's.
    void addForm(const std::string& name, const std::string& content);

    Ref<IView> view(std::string_view form, IController& controller);

    /// Null when the form cannot be made.
    std::unique_ptr<QWidget> widget(std::string_view form, IController& controller);

    void write(const std::string& file, const std::string& bytes) const;

    /// Reads the skin as it is now.
    Result load();

private:
    QTemporaryDir m_folder;
    std::set<std::string> m_forms;
    Ref<ITheme> m_theme;
};

/// The Designer description of one widget with dynamic properties, written "name=value;name=value".
std::string widgetXml(std::string_view className, std::string_view name, std::string_view bindings,
                      std::string_view content = {});

/// A controller whose parameters and properties tests choose, and which tells what it is asked to do.
class TestController : public Component {
public:
    using Component::addChild;
    using Component::addObject;
    using Component::addParameter;
    using Component::Component;

    Parameter& named(std::string_view name);
    void change(const std::string& property, std::int64_t value);

    Result getProperty(Text name, Value* out) noexcept override;
    Result createView(Text name, IView** out) noexcept override;

    std::function<void(Parameter&)> onChange;
    std::vector<std::string> changes; ///< names of the parameters that the user set
    std::function<Ref<IView>(std::string_view)> makeView;

protected:
    void parameterChanged(Parameter& parameter) override;

private:
    std::vector<std::pair<std::string, std::int64_t>> m_properties;
};

/// A widget of a form by its name.
template <class Widget>
Widget& child(const QWidget& form, const char* name) {
    auto* found = form.findChild<Widget*>(QLatin1String(name));
    Q_ASSERT(found);
    return *found;
}

/// Lets everything that is posted happen.
void settle();

} // namespace xbr::host::tests
