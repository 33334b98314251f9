#include "host/base/xmlscan.h"

#include "host/base/qttext.h"

#include <QByteArray>
#include <QXmlStreamReader>

namespace xbr::host {

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

} // namespace xbr::host
