#include "framework/support/parts/translation.h"

#include "framework/support/objects/text.h"

namespace xbr {

std::string translate(Text source, ITranslationTable* translations) {
    Ref<IString> translated;
    const bool isTranslated = translations && translations->translate(source, translated.out()) == kOk;
    return isTranslated ? take(translated) : toString(source);
}

} // namespace xbr
