#pragma once

#include "framework/abi/text.h"
#include "framework/abi/uid.h"
#include "framework/support/objects/object.h"

#include <string>
#include <string_view>

namespace xbr {

/// A view of text that is borrowed across the border.
inline std::string_view view(Text text) noexcept {
    return text.length == 0 ? std::string_view() : std::string_view(text.data, text.length);
}

/// Text for a call across the border; `text` must outlive the call.
inline Text toText(std::string_view text) noexcept {
    return {text.data(), text.size()};
}

inline std::string toString(Text text) {
    return std::string(view(text));
}

/// An immutable text of the module's own that is handed out.
class String final : public Object<IString> {
public:
    explicit String(std::string text) : m_text(std::move(text)) {}

    Text text() const noexcept override { return toText(m_text); }

private:
    std::string m_text;
};

/// Copies a text that was handed over; empty for none.
std::string take(const Ref<IString>& text);

/// Hands `text` out through an out parameter.
Result giveText(std::string text, IString** out);

/// The usual text form of a UID, in lower case.
std::string toString(const Uid& uid);

/// Removes white space (space, tab, CR, LF, vertical tab, form feed) at both ends.
std::string_view trim(std::string_view text);

/// The text in one line: each line break (LF, CR, CR LF) or tab becomes a blank.
std::string toSingleLine(std::string_view text);

/// ASCII letters in lower case; everything else as it is. For extensions and protocol names.
std::string asciiLower(std::string_view text);

/// The text as 8-bit ASCII: every character beyond it becomes one "?".
std::string toAscii(std::string_view text);

/// The text folded for comparison without case, as Unicode folds it.
std::string foldCase(std::string_view text);

} // namespace xbr
