#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sandbox {

// The first form of an HTML page, as far as plain forms go: inputs and buttons.
struct HtmlForm {
    struct Control {
        std::string type; // lower case; "button" for <button>
        std::string name;
        std::string value;
    };

    std::string action;
    std::string method; // lower case
    std::vector<Control> controls;

    bool hasType(std::string_view type) const;
};

// Nothing when the page has no form.
std::optional<HtmlForm> findForm(std::string_view page);

} // namespace sandbox
