#include "host/app/window/dialogs/question.h"

#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace xbr::host {

std::size_t ask(DialogPlace& place, const Question& question) {
    QMessageBox box(QMessageBox::NoIcon, question.title, question.title, QMessageBox::NoButton, place.window);
    box.setObjectName("question");
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(question.text.toHtmlEscaped());
    std::vector<QAbstractButton*> buttons;
    for (const QString& answer : question.answers) {
        const auto role =
            buttons.size() == question.escape ? QMessageBox::RejectRole : QMessageBox::AcceptRole;
        buttons.push_back(box.addButton(answer, role));
    }
    box.setDefaultButton(qobject_cast<QPushButton*>(buttons.front()));
    box.setEscapeButton(buttons[question.escape]);
    const Activity::Run run(place.session.activity(), Activity::Kind::kDialog, [&box] { box.reject(); });
    box.exec();
    const auto clicked = std::find(buttons.begin(), buttons.end(), box.clickedButton());
    return clicked == buttons.end() ? question.escape : static_cast<std::size_t>(clicked - buttons.begin());
}

} // namespace xbr::host
