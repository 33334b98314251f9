#pragma once

#include "framework/abi/attributes.h"
#include "framework/abi/stream.h"

namespace xbr {

/// An ordered list of pairs of texts; keys may repeat.
struct IStringDictionary : IObject {
    static constexpr Uid kUid = uid("7c942f8d-1d74-4268-860b-1c18025bb48e");

    virtual std::int32_t count() const noexcept = 0;
    virtual Text keyAt(std::int32_t index) const noexcept = 0;   ///< empty beyond the last
    virtual Text valueAt(std::int32_t index) const noexcept = 0; ///< empty beyond the last

    /// The first value of a key; kFalse and an empty *out when there is none.
    virtual Result get(Text key, Text* out) const noexcept = 0;

    /// Replaces the first value of a key in its place, or appends the pair.
    virtual Result set(Text key, Text value) noexcept = 0;

    /// Appends a pair, whether or not the key is there already.
    virtual Result append(Text key, Text value) noexcept = 0;
};

/// Reads a text line by line.
struct ITextStreamer : IObject {
    static constexpr Uid kUid = uid("61a8cf83-1132-4feb-bae6-851d2b14249a");

    /// The next line without its end (LF or CRLF), handed over; a byte order mark at the start is skipped.
    /// kFalse and null after the last line; kUnexpected when reading fails.
    virtual Result readLine(IString** out) noexcept = 0;
};

/// Receives the parts of an XML document in their order.
struct IXmlHandler : IObject {
    static constexpr Uid kUid = uid("80ea8b2b-4adc-4daf-b504-51298d571d70");

    /// Names are qualified names as written. `attributes` is borrowed for the call.
    virtual void startElement(Text name, IStringDictionary* attributes) noexcept = 0;
    virtual void endElement(Text name) noexcept = 0;
    virtual void characters(Text text) noexcept = 0;
};

} // namespace xbr

/// Reads a JSON document (RFC 8259) from the stream's position into `root`, which should be empty. The
/// document must be an object; nesting is limited to 64, the document to 64 MiB. A key that repeats takes its
/// last value. Integers of 64 bits become kInteger, all other numbers kFloat. On failure (kInvalidArgument:
/// no such document; kUnexpected: reading failed) `root` is left as it was.
XBR_API xbr::Result XBRJsonParse(xbr::IStream* stream, xbr::IAttributes* root) noexcept;

/// Writes `root` as JSON in UTF-8, in the order of its entries. Text that is not UTF-8 gets replacement
/// characters. kUnexpected: writing failed; kInvalidArgument: the tree is deeper than 64.
XBR_API xbr::Result XBRJsonStringify(const xbr::IAttributes* root, xbr::IStream* stream) noexcept;

/// Reads an XML 1.0 document from the stream's position. Documents with a DOCTYPE, of more than 16 MiB or
/// deeper than 64 are refused (kInvalidArgument), as is anything ill-formed; parts before the fault have been
/// handed out then.
XBR_API xbr::Result XBRXmlParse(xbr::IStream* stream, xbr::IXmlHandler* handler) noexcept;

/// Makes a reader of lines from the stream's position; keeps the stream.
XBR_API xbr::Result XBRCreateTextStreamer(xbr::IStream* stream, xbr::ITextStreamer** out) noexcept;

/// Makes an empty dictionary.
XBR_API xbr::Result XBRCreateStringDictionary(xbr::IStringDictionary** out) noexcept;

/// Folds a text for comparison without case: Unicode simple case folding (CaseFolding.txt, status C and S).
/// [any thread]
XBR_API xbr::Result XBRFoldCase(xbr::Text text, xbr::IString** out) noexcept;
