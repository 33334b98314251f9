#include "framework/abi/textformats.h"
#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"
#include "host/text/json.h"

#include <nlohmann/json.hpp>

namespace xbr::host {

namespace {

using Json = nlohmann::ordered_json;

/// Turns a tree of the border into the library's. False when the tree is too deep, which a tree that holds
/// itself is, too.
class Converter {
public:
    bool convert(const IAttributes& from, Json& to) {
        to = Json::object();
        auto& members = to.get_ref<Json::object_t&>();
        Nesting nesting(m_depth);
        for (std::int32_t i = 0; nesting.isAllowed() && i < from.count(); ++i) {
            std::string name = toString(from.nameAt(i));
            Value value{};
            from.get(toText(name), &value);
            Json member;
            if (!convert(value, member)) {
                return false;
            }
            // Names are unique in the source: looking each one up again would cost the square of their
            // number.
            members.Json::object_t::Container::emplace_back(std::move(name), std::move(member));
        }
        return nesting.isAllowed();
    }

private:
    class Nesting {
    public:
        explicit Nesting(std::size_t& depth) : m_depth(depth) { ++m_depth; }
        Nesting(const Nesting&) = delete;
        Nesting& operator=(const Nesting&) = delete;
        ~Nesting() { --m_depth; }
        bool isAllowed() const { return m_depth <= kMaximumJsonDepth; }

    private:
        std::size_t& m_depth;
    };

    bool convert(const IAttributeQueue& from, Json& to) {
        to = Json::array();
        Nesting nesting(m_depth);
        for (std::int32_t i = 0; nesting.isAllowed() && i < from.count(); ++i) {
            Value value{};
            from.at(i, &value);
            if (!convert(value, to.emplace_back())) {
                return false;
            }
        }
        return nesting.isAllowed();
    }

    bool convert(const Value& value, Json& to) {
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
            return convert(value.object, to);
        default:
            return true;
        }
    }

    bool convert(IObject* object, Json& to) {
        // Kept while it is read: the next call into the tree may end what the last one answered.
        if (const auto attributes = query<IAttributes>(object)) {
            return convert(*attributes, to);
        }
        const auto queue = query<IAttributeQueue>(object);
        return !queue || convert(*queue, to);
    }

    std::size_t m_depth = 0;
};

} // namespace

} // namespace xbr::host

xbr::Result XBRJsonStringify(const xbr::IAttributes* root, xbr::IStream* stream) noexcept {
    using namespace xbr;
    host::Json document;
    if (!root || !stream || !host::Converter().convert(*root, document)) {
        return kInvalidArgument;
    }
    const std::string text = document.dump(2, ' ', false, host::Json::error_handler_t::replace);
    std::uint64_t done = 0;
    const Result result = stream->write(text.data(), text.size(), &done);
    return succeeded(result) && done == text.size() ? kOk : kUnexpected;
}
