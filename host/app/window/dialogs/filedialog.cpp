#include "host/app/window/dialogs/filedialog.h"

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

} // namespace

QStringList askForFiles(WindowContext& context, const FileQuestion& question) {
    const QPointer<QFileDialog> dialog = new QFileDialog(context.window, question.title, lastFolder());
    dialog->setFileMode(modeOf(question));
    dialog->setAcceptMode(question.isSaving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog->setNameFilters(question.filters);
    const ModalRuns::Run run(context.modalRuns, [&dialog] {
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

} // namespace xbr::host
