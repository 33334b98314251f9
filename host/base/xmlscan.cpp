#include "host/base/xmlscan.h"

#include "host/base/qttext.h"

#include <QByteArray>
#include <QXmlStreamReader>

#include <algorithm>

namespace xbr::host {

namespace {

struct Section {
    QStringView start;
    QStringView end;
};

/// What starts like a tag and is none.
constexpr Section kSections[] = {{u"<!--", u"-->"}, {u"<![CDATA[", u"]]>"}, {u"<?", u"?>"}};

/// The position behind the next `what`, or the end.
qsizetype behind(QStringView document, QStringView what, qsizetype from) {
    const auto found = document.indexOf(what, from);
    return found < 0 ? document.size() : found + what.size();
}

/// Moves `position` behind the tag there and answers how many quoted values it has.
int attributesOfTag(QStringView document, qsizetype& position) {
    int count = 0;
    while (position < document.size() && document[position] != u'>') {
        const QChar c = document[position++];
        if (c == u'"' || c == u'\'') {
            position = behind(document, QStringView(&c, 1), position);
            ++count;
        }
    }
    return count;
}

/// More attributes in one element are refused: comparing each with each, the parser needs minutes for a
/// megabyte of them.
constexpr int kMaximumAttributes = 256;

} // namespace

bool nextToken(QXmlStreamReader& reader) {
    if (reader.readNext() == QXmlStreamReader::DTD) {
        reader.raiseError(QStringLiteral("a document type declaration is not allowed"));
    }
    return !reader.hasError() && !reader.atEnd();
}

bool isXmlDocument(std::string_view document, std::string_view root) {
    QXmlStreamReader reader(
        QByteArray::fromRawData(document.data(), static_cast<qsizetype>(document.size())));
    QString found;
    while (nextToken(reader)) {
        if (found.isEmpty() && reader.isStartElement()) {
            found = reader.name().toString();
        }
    }
    return !reader.hasError() && found == toQString(root);
}

bool hasTooManyAttributes(QStringView document) {
    int most = 0;
    for (auto position = document.indexOf(u'<'); position >= 0; position = document.indexOf(u'<', position)) {
        const auto rest = document.sliced(position);
        const auto* section = std::find_if(std::begin(kSections), std::end(kSections),
                                           [&](const Section& one) { return rest.startsWith(one.start); });
        if (section != std::end(kSections)) {
            position = behind(document, section->end, position + section->start.size());
        } else {
            most = std::max(most, attributesOfTag(document, position));
        }
    }
    return most > kMaximumAttributes;
}

} // namespace xbr::host
