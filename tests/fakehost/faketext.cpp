#include "framework/abi/textformats.h"
#include "tests/fakehost/fakehost.h"

// What a module reads and writes goes through the real host's formats, which fail when they are told to: the
// linker hands the module's calls to the __wrap_ ones.

#define FAILING(call, parameters, arguments)                                        \
    extern "C" xbr::Result __real_##call parameters noexcept;                       \
    extern "C" xbr::Result __wrap_##call parameters noexcept {                      \
        return fakehost::fails(#call) ? xbr::kUnexpected : __real_##call arguments; \
    }

FAILING(XBRJsonParse, (xbr::IStream * stream, xbr::IAttributes* root), (stream, root))
FAILING(XBRXmlParse, (xbr::IStream * stream, xbr::IXmlHandler* handler), (stream, handler))
FAILING(XBRCreateTextStreamer, (xbr::IStream * stream, xbr::ITextStreamer** out), (stream, out))
FAILING(XBRFoldCase, (xbr::Text text, xbr::IString** out), (text, out))
