#include "host/gui/build/formloader.h"

#include "framework/support/objects/text.h"
#include "framework/support/parts/translation.h"
#include "host/gui/list/listview.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace xbr::host {

namespace {

/// True for the start of a <string> element that a person reads.
bool startsText(const QXmlStreamReader& reader) {
    return reader.isStartElement() && reader.name() == u"string" &&
           reader.attributes().value(QStringLiteral("notr")) != u"true";
}

} // namespace

FormLoader::FormLoader() {
    clearPluginPaths(); // a skin gets nothing from whatever else is installed here
    setTranslationEnabled(false);
}

QWidget* FormLoader::createWidget(const QString& className, QWidget* parent, const QString& name) {
    if (className == QLatin1String("QTreeView")) {
        auto* list = new ListView(parent);
        list->setObjectName(name);
        return list;
    }
    return QUiLoader::createWidget(className, parent, name);
}

QLayout* FormLoader::createLayout(const QString& className, QObject* parent, const QString& name) {
    QLayout* const layout = QUiLoader::createLayout(className, parent, name);
    return layout ? layout : QUiLoader::createLayout(QStringLiteral("QVBoxLayout"), parent, name);
}

QByteArray translateForm(const std::string& form, ITranslationTable& translations) {
    QByteArray translated;
    QXmlStreamReader reader(QByteArray::fromRawData(form.data(), static_cast<qsizetype>(form.size())));
    QXmlStreamWriter writer(&translated);
    while (!reader.atEnd()) {
        reader.readNext();
        writer.writeCurrentToken(reader);
        if (startsText(reader)) {
            const std::string source = reader.readElementText().toStdString();
            writer.writeCharacters(
                QString::fromStdString(source.empty() ? source : translate(toText(source), &translations)));
            writer.writeEndElement();
        }
    }
    return translated;
}

} // namespace xbr::host
