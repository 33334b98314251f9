#pragma once

#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/component.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace xbr::host::tests {

/// A controller whose parameters and properties tests choose, and which tells what it is asked to do.
class TestController : public Component {
public:
    using Component::addChild;
    using Component::addObject;
    using Component::addParameter;
    using Component::Component;

    Parameter& named(std::string_view name) { return static_cast<Parameter&>(*findParameter(toText(name))); }
    void change(const std::string& property, std::int64_t value) {
        m_properties[property] = value;
        signal(*this, "propertyChanged");
    }

    Result getProperty(Text name, Value* out) noexcept override {
        const auto found = m_properties.find(toString(name));
        if (found == m_properties.end()) {
            return Component::getProperty(name, out);
        }
        *out = integerValue(found->second);
        return kOk;
    }
    std::function<void(Parameter&)> onChange;
    std::vector<std::string> changes;                     ///< names of the parameters that the user set
    std::shared_ptr<void> life = std::make_shared<int>(); ///< ends with the controller

protected:
    void parameterChanged(Parameter& parameter) override {
        changes.push_back(toString(parameter.name()));
        if (onChange) {
            onChange(parameter);
        }
    }

private:
    std::map<std::string, std::int64_t> m_properties;
};

} // namespace xbr::host::tests
