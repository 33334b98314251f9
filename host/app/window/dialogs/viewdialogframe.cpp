#include "host/app/window/dialogs/viewdialogframe.h"

#include "host/gui/hostwidgets.h"

#include <QLabel>
#include <QVBoxLayout>

namespace xbr::host {

ViewDialogFrame::ViewDialogFrame(QWidget* parent, std::int32_t styleFlags)
    : QDialog(parent),
      m_isClosable((styleFlags & IDialog::kCloseButton) != 0),
      m_notice(new QLabel(this)) {
    setWindowModality((styleFlags & IDialog::kModal) != 0 ? Qt::ApplicationModal : Qt::NonModal);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowCloseButtonHint, m_isClosable);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_notice->setObjectName("notice");
    m_notice->setTextFormat(Qt::PlainText);
    m_notice->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_notice->setWordWrap(true);
    m_notice->hide();
    layout->addWidget(m_notice);
}

bool ViewDialogFrame::showView(IView& view) {
    m_form = createViewWidget(view, this);
    if (!m_form) {
        return false;
    }
    qobject_cast<QVBoxLayout*>(layout())->insertWidget(0, m_form, 1);
    setWindowTitle(m_form->windowTitle());
    m_form->setFocus();
    return true;
}

void ViewDialogFrame::setNotice(const QString& text) {
    m_notice->setText(text);
    m_notice->setAccessibleName(text);
    m_notice->setVisible(!text.isEmpty());
    adjustSize();
}

void ViewDialogFrame::reject() {
    if (m_isClosable) {
        QDialog::reject();
    }
}

} // namespace xbr::host
