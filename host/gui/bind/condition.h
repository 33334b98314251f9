#pragma once

#include "framework/abi/value.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace xbr::host {

/// What a form asks of a value before it shows something: "path" (true, not 0, not empty), "!path" (the
/// contrary), or "path=1,4" (one of these integers).
struct Condition {
    static Condition parse(std::string_view text);

    bool holds(const Value& value) const;

    std::string path;
    std::vector<std::int64_t> wanted; ///< empty for a question of true or false
    bool isNegated = false;
};

} // namespace xbr::host
