#pragma once

#include "framework/abi/controller.h"
#include "framework/support/objects/message.h"
#include "framework/support/objects/object.h"
#include "framework/support/parts/parameter.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace xbr {

/// A controller with named children, parameters, properties and observers. Derived classes act in
/// `parameterChanged` and `notify`.
class Component : public Object<IController, IPropertySource, ISubject, IObserver>,
                  protected IParameterOwner {
public:
    explicit Component(std::string_view name) : m_name(name) {}
    ~Component() override;

    // IController
    Text name() const noexcept override;
    IController* parent() noexcept override { return m_parent; }
    std::int32_t countParameters() const noexcept override;
    IParameter* parameterAt(std::int32_t index) noexcept override;
    IParameter* findParameter(Text name) noexcept override;
    IObject* findObject(Text name) noexcept override;
    Result createView(Text name, IView** out) noexcept override;
    void viewAttached(IView* view) noexcept override;
    void viewDetached(IView* view) noexcept override;

    // IPropertySource
    Result getProperty(Text name, Value* out) noexcept override;
    Result setProperty(Text name, const Value& value) noexcept override;

    // IObserver
    void notify(ISubject* subject, IMessage* message) noexcept override;

    /// The parameter of a tag; null when there is none.
    Parameter* parameter(std::int32_t tag) const;

    /// The host's view that shows this component; null when there is none. Of several the one attached last.
    IView* view() const { return m_views.empty() ? nullptr : m_views.back(); }

protected:
    Parameter& addParameter(ParameterKind kind, std::int32_t tag, std::string_view name,
                            std::int64_t minimum = 0, std::int64_t maximum = 1);

    /// Keeps `child` as a child of this component.
    void addChild(const Ref<Component>& child);

    /// Offers an object under a name to `findObject`; kept.
    void addObject(std::string_view name, const Ref<IObject>& object);

    void parameterChanged(Parameter& parameter) override;

    /// Signals "changed" to the observers.
    void signalChanged() { signal(*this, "changed"); }

private:
    struct NamedObject {
        std::string name;
        Ref<IObject> object;
    };

    std::string m_name;
    Component* m_parent = nullptr;
    std::vector<Ref<Parameter>> m_parameters;
    std::vector<Ref<Component>> m_children;
    std::vector<NamedObject> m_objects;
    std::vector<IView*> m_views;
};

} // namespace xbr
