#pragma once

#include "framework/abi/text.h"

#include <memory>
#include <string_view>

namespace fakehost {

/// Lends an object's texts as briefly as the border allows: all out of one buffer, which the next text takes
/// back.
class Lender {
public:
    xbr::Text lend(std::string_view text) const {
        m_lent = std::make_unique<char[]>(text.size());
        text.copy(m_lent.get(), text.size());
        return {m_lent.get(), text.size()};
    }

private:
    mutable std::unique_ptr<char[]> m_lent;
};

} // namespace fakehost
