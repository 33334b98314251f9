#pragma once

#include "framework/abi/textformats.h"
#include "framework/support/objects/object.h"
#include "host/net/feed/feedbuilder.h"
#include "host/net/feed/feedvocabulary.h"
#include "host/net/feed/plaintext.h"
#include "host/net/feed/xmlnamespaces.h"

#include <QUrl>

#include <string>
#include <vector>

namespace xbr::host {

/// Receives the XML of a feed, Atom 1.0 or RSS 2.0, and makes a record of it.
class FeedParser final : public Object<IXmlHandler> {
public:
    explicit FeedParser(QUrl location) : m_location(std::move(location)) {}

    void startElement(Text name, IStringDictionary* attributes) noexcept override;
    void endElement(Text name) noexcept override;
    void characters(Text text) noexcept override;

    /// True when what came was a feed. The document must have been read to its end as well.
    bool isFeed() const { return m_isFeed && !m_failed && !m_builder.isOverLimits(); }

    FeedRecord take() { return m_builder.take(); }

private:
    struct Open {
        FeedElement element;
        FeedAttributes attributes;
        QUrl base;
        std::string name; ///< of XHTML
    };

    void open(const XmlName& name, IStringDictionary& attributes);
    FeedAttributes readAttributes(const IStringDictionary& attributes, QUrl& base);
    FeedElement classify(const XmlName& name) const;
    std::string takeText(const Open& ending);

    QUrl m_location;
    XmlNamespaces m_namespaces;
    std::vector<Open> m_open;
    std::string m_characters; ///< of the element that is read
    PlainText m_markup;       ///< of the XHTML that is read
    FeedBuilder m_builder;
    bool m_isFeed = false;
    bool m_failed = false;
};

} // namespace xbr::host
