#pragma once

#include <cstring>
#include <string>
#include <string_view>

namespace xbr::host {

/// A text that is overwritten before its memory is given back.
class Secret {
public:
    Secret() = default;
    Secret(const Secret&) = delete;
    Secret& operator=(const Secret&) = delete;
    ~Secret() { wipe(m_text); }

    void assign(std::string_view text) {
        // Wiped first: assigning may move to a larger block and leave the old one as it is.
        wipe(m_text);
        m_text.assign(text);
    }
    std::string_view view() const noexcept { return m_text; }
    bool isEmpty() const noexcept { return m_text.empty(); }

    /// Overwrites what is in `text`.
    static void wipe(std::string& text) noexcept { explicit_bzero(text.data(), text.size()); }

private:
    std::string m_text;
};

} // namespace xbr::host
