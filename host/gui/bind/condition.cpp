#include "host/gui/bind/condition.h"

#include "framework/support/objects/value.h"

#include <algorithm>
#include <cstdlib>

namespace xbr::host {

Condition Condition::parse(std::string_view text) {
    Condition condition;
    condition.isNegated = text.starts_with('!');
    text.remove_prefix(condition.isNegated ? 1 : 0);
    const auto equals = text.find('=');
    condition.path = text.substr(0, equals);
    for (auto rest = equals; rest != std::string_view::npos; rest = text.find(',', rest + 1)) {
        condition.wanted.push_back(std::strtoll(std::string(text.substr(rest + 1)).c_str(), nullptr, 10));
    }
    return condition;
}

bool Condition::holds(const Value& value) const {
    if (!wanted.empty()) {
        return isNegated != (std::find(wanted.begin(), wanted.end(), integerOf(value)) != wanted.end());
    }
    const bool isTrue = value.kind == ValueKind::kText ? value.text.length > 0 : integerOf(value) != 0;
    return isNegated != isTrue;
}

} // namespace xbr::host
