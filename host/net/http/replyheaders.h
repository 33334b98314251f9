#pragma once

#include <array>
#include <string>
#include <string_view>

namespace xbr::host {

/// What is read of the headers of an answer.
class ReplyHeaders {
public:
    enum Name { kAge, kCacheControl, kContentType, kEntityTag, kLastModified, kLocation, kNames };

    /// Takes one line of the headers; a status line begins a new answer.
    void addLine(std::string_view line);

    /// The value without white space around it; those of a header that repeats are joined by commas, as they
    /// mean the same then (RFC 9110, section 5.3). Empty when there is none.
    const std::string& operator[](Name name) const { return m_values.at(name); }

private:
    std::array<std::string, kNames> m_values;
};

} // namespace xbr::host
