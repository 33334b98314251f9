#include "framework/abi/textformats.h"
#include "framework/support/data/attributes.h"
#include "host/text/json.h"
#include "host/text/streams.h"

#include <nlohmann/json.hpp>

#include <limits>
#include <variant>
#include <vector>

namespace xbr::host {

namespace {

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
