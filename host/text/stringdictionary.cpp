#include "framework/abi/textformats.h"
#include "framework/support/objects/text.h"

#include <algorithm>
#include <vector>

namespace xbr::host {

namespace {

struct Pair {
    std::string key;
    std::string value;
};

template <class Pairs>
auto find(Pairs& pairs, std::string_view key) {
    return std::find_if(pairs.begin(), pairs.end(), [&](const Pair& pair) { return pair.key == key; });
}

class StringDictionary final : public Object<IStringDictionary> {
public:
    std::int32_t count() const noexcept override { return static_cast<std::int32_t>(m_pairs.size()); }
    Text keyAt(std::int32_t index) const noexcept override {
        return isIndex(index) ? toText(m_pairs[static_cast<std::size_t>(index)].key) : Text{};
    }
    Text valueAt(std::int32_t index) const noexcept override {
        return isIndex(index) ? toText(m_pairs[static_cast<std::size_t>(index)].value) : Text{};
    }

    Result get(Text key, Text* out) const noexcept override {
        const auto found = find(m_pairs, view(key));
        *out = found == m_pairs.end() ? Text{} : toText(found->value);
        return found == m_pairs.end() ? kFalse : kOk;
    }

    Result set(Text key, Text value) noexcept override {
        const auto found = find(m_pairs, view(key));
        if (found == m_pairs.end()) {
            return append(key, value);
        }
        found->value = toString(value);
        return kOk;
    }

    Result append(Text key, Text value) noexcept override {
        m_pairs.push_back({toString(key), toString(value)});
        return kOk;
    }

private:
    bool isIndex(std::int32_t index) const { return index >= 0 && index < count(); }

    std::vector<Pair> m_pairs;
};

} // namespace

} // namespace xbr::host

xbr::Result XBRCreateStringDictionary(xbr::IStringDictionary** out) noexcept {
    *out = xbr::make<xbr::host::StringDictionary>().detach();
    return xbr::kOk;
}
