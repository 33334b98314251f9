#include "framework/abi/textformats.h"
#include "framework/support/data/attributes.h"
#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"
#include "host/text/streams.h"

#include <nlohmann/json.hpp>

#include <limits>
#include <variant>
#include <vector>

namespace xbr::host {

namespace {

/// Objects and arrays inside each other, the document itself included.
constexpr std::size_t kMaximumJsonDepth = 64;

constexpr std::uint64_t kMaximumJsonSize = std::uint64_t{64} << 20U;

/// Builds the tree while the document is read, so that a document's depth is refused before it costs
/// anything.
class TreeBuilder final : public nlohmann::json_sax<nlohmann::json> {
public:
    bool null() override { return add(noValue()); }
    bool boolean(bool value) override { return add(boolValue(value)); }
    bool number_integer(number_integer_t value) override { return add(integerValue(value)); }
    bool number_unsigned(number_unsigned_t value) override {
        const bool fits = value <= static_cast<number_unsigned_t>(std::numeric_limits<std::int64_t>::max());
        return add(fits ? integerValue(static_cast<std::int64_t>(value))
                        : floatValue(static_cast<double>(value)));
    }
    bool number_float(number_float_t value, const string_t& /*text*/) override {
        return add(floatValue(value));
    }
    bool string(string_t& value) override { return add(textValue(value)); }
    bool binary(binary_t& /*value*/) override { return false; }
    bool key(string_t& name) override {
        m_name = name;
        return true;
    }

    bool start_object(std::size_t /*count*/) override {
        if (m_open.empty()) {
            m_open.emplace_back(m_root);
            return true;
        }
        return open(make<Attributes>());
    }
    bool start_array(std::size_t /*count*/) override { return open(make<AttributeQueue>()); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }
    bool parse_error(std::size_t /*position*/, const std::string& /*token*/,
                     const nlohmann::json::exception& /*error*/) override {
        return false;
    }

    const Attributes& root() const { return *m_root; }

private:
    using Node = std::variant<Ref<Attributes>, Ref<AttributeQueue>>;

    /// False for a value outside of the document's object.
    bool add(const Value& value) {
        if (m_open.empty()) {
            return false;
        }
        if (auto* object = std::get_if<Ref<Attributes>>(&m_open.back())) {
            (*object)->set(m_name, value);
        } else {
            std::get<Ref<AttributeQueue>>(m_open.back())->append(value);
        }
        return true;
    }

    template <class T>
    bool open(Ref<T> node) {
        if (m_open.size() >= kMaximumJsonDepth || !add(objectValue(identity(*node)))) {
            return false;
        }
        m_open.emplace_back(std::move(node));
        return true;
    }

    bool close() {
        m_open.pop_back();
        return true;
    }

    // Both classes have IObject twice: as the base of the count and of the interface.
    static IObject* identity(IAttributes& node) { return &node; }
    static IObject* identity(IAttributeQueue& node) { return &node; }

    Ref<Attributes> m_root = make<Attributes>();
    std::vector<Node> m_open;
    std::string m_name; ///< of the next member
};

bool parse(const std::string& document, TreeBuilder& builder) {
    try {
        return nlohmann::json::sax_parse(document, &builder);
    } catch (const nlohmann::json::exception&) {
        return false;
    }
}

void moveInto(IAttributes& root, const Attributes& parsed) {
    for (std::int32_t i = 0; i < parsed.count(); ++i) {
        const Text name = parsed.nameAt(i);
        Value value{};
        parsed.get(name, &value);
        root.set(name, value);
    }
}

using Json = nlohmann::ordered_json;

// Turning a tree of the border into the library's: false when the tree is too deep, which a tree that holds
// itself is, too. `depth` counts the objects and arrays around.

bool convert(const Value& value, std::size_t depth, Json& to);

bool convert(const IAttributes& from, std::size_t depth, Json& to) {
    to = Json::object();
    auto& members = to.get_ref<Json::object_t&>();
    bool isConverted = depth < kMaximumJsonDepth;
    for (std::int32_t i = 0; isConverted && i < from.count(); ++i) {
        std::string name = toString(from.nameAt(i));
        Value value{};
        from.get(toText(name), &value);
        Json member;
        isConverted = convert(value, depth + 1, member);
        // Names are unique in the source: looking each one up again would cost the square of their number.
        members.Json::object_t::Container::emplace_back(std::move(name), std::move(member));
    }
    return isConverted;
}

bool convert(const IAttributeQueue& from, std::size_t depth, Json& to) {
    to = Json::array();
    bool isConverted = depth < kMaximumJsonDepth;
    for (std::int32_t i = 0; isConverted && i < from.count(); ++i) {
        Value value{};
        from.at(i, &value);
        isConverted = convert(value, depth + 1, to.emplace_back());
    }
    return isConverted;
}

bool convert(IObject* object, std::size_t depth, Json& to) {
    // Kept while it is read: the next call into the tree may end what the last one answered.
    if (const auto attributes = query<IAttributes>(object)) {
        return convert(*attributes, depth, to);
    }
    const auto queue = query<IAttributeQueue>(object);
    return !queue || convert(*queue, depth, to);
}

bool convert(const Value& value, std::size_t depth, Json& to) {
    switch (value.kind) {
    case ValueKind::kBool:
        to = value.boolean;
        return true;
    case ValueKind::kInteger:
        to = value.integer;
        return true;
    case ValueKind::kFloat:
        to = value.number; // written as null when it is not finite
        return true;
    case ValueKind::kText:
        to = toString(value.text);
        return true;
    case ValueKind::kObject:
        return convert(value.object, depth, to);
    default:
        return true;
    }
}

} // namespace

} // namespace xbr::host

xbr::Result XBRJsonParse(xbr::IStream* stream, xbr::IAttributes* root) noexcept {
    using namespace xbr;
    if (!stream || !root) {
        return kInvalidArgument;
    }
    const auto contents = host::readUpTo(*stream, host::kMaximumJsonSize);
    if (contents.result != kOk) {
        return contents.result;
    }
    host::TreeBuilder builder;
    if (!host::parse(contents.bytes, builder)) {
        return kInvalidArgument;
    }
    host::moveInto(*root, builder.root());
    return kOk;
}

xbr::Result XBRJsonStringify(const xbr::IAttributes* root, xbr::IStream* stream) noexcept {
    using namespace xbr;
    host::Json document;
    if (!root || !stream || !host::convert(*root, 0, document)) {
        return kInvalidArgument;
    }
    const std::string text = document.dump(2, ' ', false, host::Json::error_handler_t::replace);
    std::uint64_t done = 0;
    const Result result = stream->write(text.data(), text.size(), &done);
    return succeeded(result) && done == text.size() ? kOk : kUnexpected;
}
