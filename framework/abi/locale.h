#pragma once

#include "framework/abi/text.h"

namespace xbr {

/// The translations of one module into the user's language.
struct ITranslationTable : IObject {
    static constexpr Uid kUid = uid("752aa0b8-71c4-4ad3-83be-db7538e093e3");

    /// The translation of an English source text, handed over; the source text itself when there is none.
    virtual Result translate(Text source, IString** out) noexcept = 0;
};

struct ILocaleManager : IObject {
    static constexpr Uid kUid = uid("63bb8cd9-c160-4733-b429-3c1a087e19ed");

    /// The table of a module, handed over: "resource://<module>/skin/translations/<language>.qm" where it is
    /// there, an empty table otherwise.
    virtual Result getTable(Text module, ITranslationTable** out) noexcept = 0;
};

} // namespace xbr

/// Answers the one locale manager. Never null.
XBR_API xbr::ILocaleManager* XBRGetLocaleManager() noexcept;
