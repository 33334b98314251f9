#include "framework/support/objects/casefolding.h"

#include "framework/abi/textformats.h"
#include "framework/support/objects/text.h"

namespace xbr {

std::string foldCase(std::string_view text) {
    Ref<IString> folded;
    return XBRFoldCase(toText(text), folded.out()) == kOk ? take(folded) : std::string(text);
}

} // namespace xbr
