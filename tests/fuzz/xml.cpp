#include "framework/abi/textformats.h"
#include "framework/support/objects/text.h"
#include "tests/fuzz/fuzz.h"
#include "tests/fuzz/streams.h"

namespace {

using xbr::view;

/// Elements close as they opened, no deeper than is promised, and all texts can be touched.
class Handler final : public xbr::Object<xbr::IXmlHandler> {
public:
    void startElement(xbr::Text name, xbr::IStringDictionary* attributes) noexcept override {
        m_open.emplace_back(view(name));
        fuzz::expect(name.length > 0 && m_open.size() <= 64);
        for (std::int32_t i = 0; i < attributes->count(); ++i) {
            fuzz::expect(attributes->keyAt(i).length > 0);
            m_sum += std::string(view(attributes->valueAt(i))).size();
        }
    }
    void endElement(xbr::Text name) noexcept override {
        fuzz::expect(!m_open.empty() && m_open.back() == view(name));
        m_open.pop_back();
    }
    void characters(xbr::Text text) noexcept override { m_sum += std::string(view(text)).size(); }

    bool isBalanced() const { return m_open.empty(); }

private:
    std::vector<std::string> m_open;
    std::size_t m_sum = 0;
};

} // namespace

void fuzz::read(std::string_view input) {
    const auto handler = xbr::make<Handler>();
    const auto result = XBRXmlParse(streamOf(input).get(), handler.get());
    expect(result == xbr::kInvalidArgument || (result == xbr::kOk && handler->isBalanced()));
}
