#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace sandbox {

// The longest form that is taken; a longer one is not a sign-in.
inline constexpr std::size_t kLongestForm = 64U << 10U;

// The fields of an application/x-www-form-urlencoded text: a request body or the query of a URL.
//
// Read strictly, because its purpose is to show what a sender got wrong: '+' is a blank, %XX a byte,
// every field has a name and a '=', no name comes twice, and nothing that a URL may not hold stands bare.
class Form {
public:
    using Field = std::pair<std::string, std::string>;

    // Nothing when the text is not well formed. An empty text is a form without fields.
    static std::optional<Form> parse(std::string_view text);

    bool has(std::string_view name) const;
    // The empty string when there is no such field.
    std::string value(std::string_view name) const;
    // In the order of the text.
    const std::vector<Field>& fields() const { return m_fields; }

private:
    bool add(std::string_view pair);

    std::vector<Field> m_fields;
};

} // namespace sandbox
