#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace xbr::host {

/// Makes plain text of what a document shows: white space becomes single blanks, blocks become lines.
class PlainText {
public:
    /// Text that flows into the present line.
    void add(std::string_view text);

    /// Begins a new line. Several in a row are one.
    void breakLine();

    /// What an element of (X)HTML does to the text where it starts and ends: blocks break the line, the cells
    /// of a table keep apart.
    void markElement(std::string_view name);

    /// The text so far, without white space at its ends.
    std::string take();

private:
    void put(std::string_view bytes);

    std::string m_text;
    char m_pending = '\0'; ///< the white space that comes before the next character, if there is one
};

/// The text with every run of white space as one blank, and none at its ends.
std::string collapsed(std::string_view text);

/// Elements whose contents are for programs, not for readers.
bool isHiddenElement(std::string_view name);

/// What a fragment of HTML says, as plain text, in time that grows with its length only; nothing when it has
/// elements with hundreds of attributes. Nothing that it refers to is fetched.
std::string plainTextOfHtml(std::string_view html);

} // namespace xbr::host
