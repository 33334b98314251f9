#include "sandbox/htmlform.h"

#include "sandbox/http/text.h"

#include <algorithm>
#include <charconv>
#include <map>

namespace sandbox {
namespace {

using Attributes = std::map<std::string, std::string>;

constexpr std::string_view kBlanks = " \t\r\n\f";

// The character that an entity ("amp", "#39") stands for; nothing for the many that forms never need.
std::optional<char> characterFor(std::string_view entity) {
    static const std::map<std::string_view, char> kNamed = {
        {"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}};
    if (const auto found = kNamed.find(entity); found != kNamed.end()) {
        return found->second;
    }
    int number = 0;
    if (entity.starts_with('#')) {
        std::from_chars(entity.data() + 1, entity.data() + entity.size(), number);
    }
    return number > 0 && number < 0x80 ? std::optional(static_cast<char>(number)) : std::nullopt;
}

std::string unescape(std::string_view text) {
    constexpr std::size_t kLongestEntity = 8;
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto length =
            text[i] == '&' ? text.substr(i, kLongestEntity).find(';') : std::string_view::npos;
        const auto character =
            length == std::string_view::npos ? std::nullopt : characterFor(text.substr(i + 1, length - 1));
        out += character.value_or(text[i]);
        i += character ? length : 0;
    }
    return out;
}

std::string_view takeUntil(std::string_view& text, std::string_view ends) {
    const auto end = std::min(text.find_first_of(ends), text.size());
    const auto taken = text.substr(0, end);
    text.remove_prefix(end);
    return taken;
}

void skipBlanks(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
}

std::string takeValue(std::string_view& text) {
    if (text.empty() || (text.front() != '"' && text.front() != '\'')) {
        return unescape(takeUntil(text, kBlanks));
    }
    const std::string quote(1, text.front());
    text.remove_prefix(1);
    auto value = unescape(takeUntil(text, quote));
    text.remove_prefix(std::min<std::size_t>(1, text.size()));
    return value;
}

Attributes readAttributes(std::string_view text) {
    Attributes attributes;
    skipBlanks(text);
    while (!text.empty()) {
        const auto name = lowerAscii(takeUntil(text, " \t\r\n\f=/"));
        skipBlanks(text);
        std::string value;
        if (!text.empty() && text.front() == '=') {
            text.remove_prefix(1);
            skipBlanks(text);
            value = takeValue(text);
        } else if (name.empty()) {
            text.remove_prefix(1); // a stray '/'
        }
        attributes.emplace(name, value);
        skipBlanks(text);
    }
    return attributes;
}

struct Tag {
    std::string name; // lower case, with the '/' of an end tag
    Attributes attributes;
};

// Where the tag that begins at the front of `text` ends: the first '>' outside quotes.
std::size_t tagLength(std::string_view text) {
    char quote = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (quote != 0) {
            quote = text[i] == quote ? '\0' : quote;
        } else if (text[i] == '"' || text[i] == '\'') {
            quote = text[i];
        } else if (text[i] == '>') {
            return i;
        }
    }
    return text.size();
}

// Takes text up to and including the next tag.
std::optional<Tag> takeTag(std::string_view& text) {
    const auto start = text.find('<');
    if (start == std::string_view::npos) {
        return std::nullopt;
    }
    text.remove_prefix(start + 1);
    const auto length = tagLength(text);
    auto inside = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    auto name = lowerAscii(takeUntil(inside, kBlanks));
    return Tag{std::move(name), readAttributes(inside)};
}

void addControl(HtmlForm& form, Tag& tag) {
    const bool isButton = tag.name == "button";
    if (isButton || tag.name == "input") {
        const auto type = lowerAscii(tag.attributes["type"]);
        form.controls.push_back({isButton ? "button" : (type.empty() ? "text" : type), tag.attributes["name"],
                                 tag.attributes["value"]});
    }
}

} // namespace

bool HtmlForm::hasType(std::string_view type) const {
    return std::any_of(controls.begin(), controls.end(), [&](const Control& c) { return c.type == type; });
}

std::optional<HtmlForm> findForm(std::string_view page) {
    std::optional<HtmlForm> form;
    while (auto tag = takeTag(page)) {
        if (form && tag->name == "/form") {
            return form;
        }
        if (form) {
            addControl(*form, *tag);
        } else if (tag->name == "form") {
            form = HtmlForm{tag->attributes["action"], lowerAscii(tag->attributes["method"]), {}};
        }
    }
    return form;
}

} // namespace sandbox
