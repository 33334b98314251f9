#include "module/gadgetdescription.h"

#include "framework/abi/filesystem.h"
#include "framework/abi/textformats.h"
#include "framework/support/objects/text.h"

namespace brindlex {

namespace {

constexpr std::string_view kResource = "resource://brindlex/gadget.xml";

/// Collects the attributes of the first "Gadget" element.
class GadgetReader final : public xbr::Object<xbr::IXmlHandler> {
public:
    void startElement(xbr::Text name, xbr::IStringDictionary* attributes) noexcept override {
        if (xbr::view(name) != "Gadget" || !m_attributes.empty()) {
            return;
        }
        for (std::int32_t i = 0; i < attributes->count(); ++i) {
            std::string key =
                xbr::toString(attributes->keyAt(i)); // a copy: the next call may take the text back
            m_attributes.emplace_back(std::move(key), xbr::toString(attributes->valueAt(i)));
        }
    }
    void endElement(xbr::Text) noexcept override {}
    void characters(xbr::Text) noexcept override {}

    const xbr::Pairs& attributes() const { return m_attributes; }

private:
    xbr::Pairs m_attributes;
};

} // namespace

GadgetDescription::GadgetDescription() {
    xbr::Ref<xbr::IStream> stream;
    const auto reader = xbr::make<GadgetReader>();
    if (XBRGetFileSystem()->openForReading(xbr::toText(kResource), stream.out()) == xbr::kOk &&
        XBRXmlParse(stream.get(), reader.get()) == xbr::kOk) {
        m_attributes = reader->attributes();
    }
}

xbr::Text GadgetDescription::attribute(xbr::Text name) const noexcept {
    for (const auto& [key, value] : m_attributes) {
        if (key == xbr::view(name)) {
            return xbr::toText(value);
        }
    }
    return xbr::toText("");
}

} // namespace brindlex
