#include "framework/abi/textformats.h"
#include "framework/support/data/memorystream.h"
#include "tests/fakehost/fakehost.h"

#include <nlohmann/json.hpp>

#include <clocale>
#include <cwctype>
#include <regex>
#include <sstream>

// JSON, lines and case folding of the fake host. They really work: what the module reads and writes through
// them is what the tests look at.

namespace {

using Json = nlohmann::ordered_json;

void fill(xbr::IAttributeQueue& out, const Json& json);

void fill(xbr::IAttributes& out, const Json& json) {
    for (const auto& [key, value] : json.items()) {
        const auto name = xbr::toText(key);
        if (value.is_object()) {
            xbr::Ref<xbr::IAttributes> child;
            out.addAttributes(name, child.out());
            fill(*child, value);
        } else if (value.is_array()) {
            xbr::Ref<xbr::IAttributeQueue> child;
            out.addQueue(name, child.out());
            fill(*child, value);
        } else if (value.is_string()) {
            out.set(name, xbr::textValue(value.get_ref<const std::string&>()));
        } else if (value.is_boolean()) {
            out.set(name, xbr::boolValue(value.get<bool>()));
        } else if (value.is_number_integer()) {
            out.set(name, xbr::integerValue(value.get<std::int64_t>()));
        } else if (value.is_number()) {
            out.set(name, xbr::floatValue(value.get<double>()));
        } else {
            out.set(name, xbr::noValue());
        }
    }
}

void fill(xbr::IAttributeQueue& out, const Json& json) {
    for (const auto& value : json) {
        if (value.is_object()) {
            xbr::Ref<xbr::IAttributes> child;
            out.appendAttributes(child.out());
            fill(*child, value);
        } else if (value.is_string()) {
            out.append(xbr::textValue(value.get_ref<const std::string&>()));
        }
    }
}

Json toJson(const xbr::Value& value) {
    if (const auto node = xbr::query<xbr::IAttributes>(value.object)) {
        Json json = Json::object();
        for (std::int32_t i = 0; i < node->count(); ++i) {
            xbr::Value member{};
            node->get(node->nameAt(i), &member);
            json[xbr::toString(node->nameAt(i))] = toJson(member);
        }
        return json;
    }
    if (const auto queue = xbr::query<xbr::IAttributeQueue>(value.object)) {
        Json json = Json::array();
        for (std::int32_t i = 0; i < queue->count(); ++i) {
            xbr::Value element{};
            queue->at(i, &element);
            json.push_back(toJson(element));
        }
        return json;
    }
    return value.kind == xbr::ValueKind::kInteger ? Json(value.integer)
                                                  : Json(std::string(xbr::textOf(value)));
}

/// The attributes of an element.
class Dictionary final : public xbr::Object<xbr::IStringDictionary> {
public:
    std::int32_t count() const noexcept override { return static_cast<std::int32_t>(m_pairs.size()); }
    xbr::Text keyAt(std::int32_t index) const noexcept override {
        return m_texts.lend(m_pairs.at(static_cast<std::size_t>(index)).first);
    }
    xbr::Text valueAt(std::int32_t index) const noexcept override {
        return m_texts.lend(m_pairs.at(static_cast<std::size_t>(index)).second);
    }
    xbr::Result get(xbr::Text, xbr::Text*) const noexcept override { return xbr::kNotImplemented; }
    xbr::Result set(xbr::Text, xbr::Text) noexcept override { return xbr::kNotImplemented; }
    xbr::Result append(xbr::Text key, xbr::Text value) noexcept override {
        m_pairs.emplace_back(xbr::view(key), xbr::view(value));
        return xbr::kOk;
    }

private:
    std::vector<std::pair<std::string, std::string>> m_pairs;
    fakehost::Lender m_texts;
};

class Lines final : public xbr::Object<xbr::ITextStreamer> {
public:
    explicit Lines(std::string text) : m_text(std::move(text)) {}
    xbr::Result readLine(xbr::IString** out) noexcept override {
        std::string line;
        *out = nullptr;
        return std::getline(m_text, line) ? xbr::giveText(line, out) : xbr::kFalse;
    }

private:
    std::istringstream m_text;
};

} // namespace

xbr::Result XBRJsonParse(xbr::IStream* stream, xbr::IAttributes* root) noexcept {
    if (fakehost::fails()) {
        return xbr::kUnexpected;
    }
    const Json json = Json::parse(xbr::readAll(*stream), nullptr, false);
    if (!json.is_object()) {
        return xbr::kInvalidArgument;
    }
    fill(*root, json);
    return xbr::kOk;
}

xbr::Result XBRJsonStringify(const xbr::IAttributes* root, xbr::IStream* stream) noexcept {
    const std::string text = toJson(xbr::objectValue(const_cast<xbr::IAttributes*>(root))).dump();
    return stream->write(text.data(), text.size(), nullptr);
}

/// Elements with their attributes, without text and entities.
xbr::Result XBRXmlParse(xbr::IStream* stream, xbr::IXmlHandler* handler) noexcept {
    if (fakehost::fails()) {
        return xbr::kUnexpected;
    }
    static const std::regex element("<(\\w+)([^>]*)>");
    static const std::regex attribute("(\\w+)=\"([^\"]*)\"");
    const std::string text = xbr::readAll(*stream);
    const std::sregex_iterator end;
    for (std::sregex_iterator found(text.begin(), text.end(), element); found != end; ++found) {
        const auto attributes = xbr::make<Dictionary>();
        const std::string inside = found->str(2);
        for (std::sregex_iterator pair(inside.begin(), inside.end(), attribute); pair != end; ++pair) {
            attributes->append(xbr::toText(pair->str(1)), xbr::toText(pair->str(2)));
        }
        handler->startElement(xbr::toText(found->str(1)), attributes.get());
        handler->endElement(xbr::toText(found->str(1)));
    }
    return xbr::kOk;
}

xbr::Result XBRCreateTextStreamer(xbr::IStream* stream, xbr::ITextStreamer** out) noexcept {
    return fakehost::giveUnlessItFails(xbr::make<Lines>(xbr::readAll(*stream)), out);
}

xbr::Result XBRFoldCase(xbr::Text text, xbr::IString** out) noexcept {
    if (fakehost::fails()) {
        *out = nullptr;
        return xbr::kUnexpected;
    }
    static const bool localeSet = std::setlocale(LC_CTYPE, "C.UTF-8") != nullptr;
    std::wstring wide(text.length + 1, L'\0');
    const std::string copy = xbr::toString(text);
    wide.resize(localeSet ? std::mbstowcs(wide.data(), copy.c_str(), wide.size()) : 0);
    for (wchar_t& c : wide) {
        c = static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(c)));
    }
    std::string folded(wide.size() * 4 + 1, '\0');
    folded.resize(std::wcstombs(folded.data(), wide.c_str(), folded.size()));
    return xbr::giveText(folded, out);
}
