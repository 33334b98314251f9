#pragma once

#include "framework/abi/parameter.h"

namespace xbr {

struct IView;

/// Something with named properties.
struct IPropertySource : IObject {
    static constexpr Uid kUid = uid("45023749-020c-44d6-bad0-38c7299c1a8a");

    /// kOk with *out set; kFalse with *out of kind kNone when there is no such property.
    virtual Result getProperty(Text name, Value* out) noexcept = 0;

    /// kOk when the property took the value; kFalse when the object does not handle it.
    virtual Result setProperty(Text name, const Value& value) noexcept = 0;
};

/// What a form is bound to: named parameters, properties and objects, in a tree of controllers.
///
/// A controller is also an IPropertySource and an ISubject: "propertyChanged" is signalled when a property
/// changed, "changed" when anything that a view shows may have changed.
///
/// Paths of forms: names separated by "/", resolved from a controller; ".." is the parent, a leading name is
/// a child controller, the last name a parameter, property or object ("../upload", "TrackList/addTracks").
struct IController : IObject {
    static constexpr Uid kUid = uid("95bbc44a-1064-4e32-9693-ce4890e99a2b");

    virtual Text name() const noexcept = 0;

    /// The controller that this one is a child of; null for a root.
    virtual IController* parent() noexcept = 0;

    virtual std::int32_t countParameters() const noexcept = 0;

    /// Parameter `index` in the order of creation; null beyond the last.
    virtual IParameter* parameterAt(std::int32_t index) noexcept = 0;

    /// Null when there is no parameter of that name.
    virtual IParameter* findParameter(Text name) noexcept = 0;

    /// A child controller or another object that forms use, such as a list model; null when there is none.
    virtual IObject* findObject(Text name) noexcept = 0;

    /// Makes a view that is the controller's own, handed over; kFalse and null when it has none of that name
    /// (forms of the skin are the theme's).
    virtual Result createView(Text name, IView** out) noexcept = 0;

    /// The host tells the controller of a view that shows it. Not kept; `viewDetached` follows before the
    /// view or the controller dies.
    virtual void viewAttached(IView* view) noexcept = 0;
    virtual void viewDetached(IView* view) noexcept = 0;
};

} // namespace xbr
