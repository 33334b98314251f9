#pragma once

#include "framework/abi/controller.h"
#include "framework/abi/value.h"
#include "framework/support/objects/value.h"
#include "host/base/listener.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace xbr::host {

/// A value that a form names by a path: a parameter of a controller, or else a property. It stays readable
/// when the controller has gone.
class ValueSource {
public:
    /// Null when the path leads nowhere from `scope`.
    static std::unique_ptr<ValueSource> find(IController& scope, std::string_view path);

    /// Calls `changed` whenever the value, or anything else about it, may have changed.
    void observe(std::function<void()> changed);

    /// The present value; one of kind kNone when it is not there any more.
    OwnedValue value() const;
    QString text() const;
    std::int64_t integer() const { return integerOf(value().value()); }

    /// Null when the path names a property.
    IParameter* parameter() const { return m_parameter.get(); }

private:
    ValueSource() = default;

    Ref<IController> m_controller;
    Ref<IParameter> m_parameter;
    std::string m_property;
    std::unique_ptr<Listener> m_listener;
};

/// What a form asks of a value before it shows something: "path" (true, not 0, not empty), "!path" (the
/// contrary), or "path=1,4" (one of these integers).
struct Condition {
    static Condition parse(std::string_view text);

    bool holds(const Value& value) const;

    std::string path;
    std::vector<std::int64_t> wanted; ///< empty for a question of true or false
    bool isNegated = false;
};

} // namespace xbr::host
