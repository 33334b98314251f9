#include "host/app/window/dialogs/fileselector.h"

#include "framework/support/objects/text.h"
#include "host/base/fileurl.h"
#include "host/base/qttext.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileDialog>
#include <QStandardPaths>

namespace xbr::host {

namespace {

/// Musicians keep songs in one place: the next dialog begins where the last one ended.
QString& lastFolder() {
    static QString folder = QStandardPaths::writableLocation(QStandardPaths::MusicLocation);
    return folder;
}

QFileDialog::FileMode modeOf(const FileQuestion& question) {
    if (question.isSaving) {
        return QFileDialog::AnyFile;
    }
    return question.isForSeveral ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile;
}

struct Captions {
    Q_DECLARE_TR_FUNCTIONS(xbr::host::FileSelector)
};

/// Files on most systems tell upper from lower case, their extensions do not.
QString patternOf(const QString& extension) {
    return "*." + extension.toLower() + " *." + extension.toUpper();
}

} // namespace

QStringList askForFiles(DialogPlace& place, const FileQuestion& question) {
    const QPointer<QFileDialog> dialog = new QFileDialog(place.window, question.title, lastFolder());
    dialog->setFileMode(modeOf(question));
    dialog->setAcceptMode(question.isSaving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog->setNameFilters(question.filters);
    const Activity::Run run(place.session.activity(), Activity::Kind::kDialog, [&dialog] {
        if (dialog) {
            dialog->reject();
        }
    });
    QStringList files;
    if (dialog->exec() == QDialog::Accepted && dialog) {
        files = dialog->selectedFiles();
        lastFolder() = dialog->directory().absolutePath();
    }
    delete dialog;
    return files;
}

Result FileSelector::addFilter(IFileType* type) noexcept {
    if (!type || type->extension().length == 0) {
        return kInvalidArgument;
    }
    m_filters.push_back({toQString(type->extension()), toQString(type->description())});
    return kOk;
}

QStringList FileSelector::nameFilters() const {
    QStringList patterns;
    QStringList filters;
    for (const Filter& filter : m_filters) {
        const QString pattern = patternOf(filter.extension);
        const QString name = filter.description.isEmpty() ? filter.extension.toUpper() : filter.description;
        patterns.append(pattern);
        filters.append(QString("%1 (%2)").arg(name, pattern));
    }
    if (filters.size() > 1) {
        filters.prepend(QString("%1 (%2)").arg(Captions::tr("All usable files"), patterns.join(' ')));
    }
    return filters;
}

Result FileSelector::run(Mode mode, Text title) noexcept {
    m_urls.clear();
    if (m_place->session.activity().isEnding()) {
        return kFalse;
    }
    const auto self = Ref<FileSelector>::share(this);
    FileQuestion question;
    question.title = title.length > 0 ? toQString(title) : Captions::tr("Choose Files");
    question.filters = nameFilters();
    question.isSaving = mode == Mode::kSaveFile;
    question.isForSeveral = mode == Mode::kOpenFiles;
    for (const QString& path : askForFiles(*m_place, question)) {
        m_urls.push_back(fileUrl(QFile::encodeName(path).toStdString()));
    }
    return m_urls.empty() ? kFalse : kOk;
}

Text FileSelector::urlAt(std::int32_t index) const noexcept {
    const bool isThere = index >= 0 && index < countUrls();
    return isThere ? toText(m_urls[static_cast<std::size_t>(index)]) : Text{};
}

} // namespace xbr::host
