#pragma once

#include "framework/abi/message.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"

#include <optional>
#include <string_view>

namespace xbr::host {

/// A message of a request to its handler, with the fraction as its argument when it has one.
class RequestMessage final : public Object<IMessage> {
public:
    /// `name` must be a literal.
    explicit RequestMessage(std::string_view name, std::optional<double> fraction = {})
        : m_name(name),
          m_fraction(fraction) {}

    Text name() const noexcept override { return toText(m_name); }
    std::int32_t countArguments() const noexcept override { return m_fraction ? 1 : 0; }
    Value argument(std::int32_t index) const noexcept override {
        return m_fraction && index == 0 ? floatValue(*m_fraction) : noValue();
    }

private:
    std::string_view m_name;
    std::optional<double> m_fraction;
};

} // namespace xbr::host
