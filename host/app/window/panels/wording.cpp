#include "host/app/window/panels/wording.h"

#include <QCoreApplication>
#include <QStringList>

#include <vector>

namespace xbr::host {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(xbr::host::Wording)
};

QString joined(const std::vector<std::string>& keys) {
    QStringList list;
    for (const std::string& key : keys) {
        list.append(QString::fromStdString(key));
    }
    return list.join(", ");
}

} // namespace

QString describeConfiguration(const ConfigurationReport& report) {
    const QString title = QString::fromStdString(report.title);
    const QString path = QString::fromStdString(report.path);
    const QString section = QString::fromStdString(report.id);
    if (report.result == ConfigurationResult::kUnreadable) {
        return Texts::tr("The settings of %1 cannot be read from “%2”.").arg(title, path);
    }
    if (!report.missingKeys.empty()) {
        return Texts::tr("%1 is not set up yet. Put %2 into “%3”, section [%4], one “key = value” a line.")
            .arg(title, joined(report.missingKeys), path, section);
    }
    return Texts::tr("%1 is not set up properly. Correct %2 in “%3”, section [%4].")
        .arg(title, joined(report.wrongKeys), path, section);
}

QString sentence(const std::string& line) {
    QString text = QString::fromStdString(line).trimmed();
    if (!text.isEmpty()) {
        text[0] = text[0].toUpper();
    }
    return text.isEmpty() || text.endsWith('.') ? text : text + '.';
}

} // namespace xbr::host
