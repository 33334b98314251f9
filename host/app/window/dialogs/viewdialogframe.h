#pragma once

#include "framework/abi/view.h"

#include <QDialog>

class QLabel;

namespace xbr::host {

/// The frame around a form that is shown as a dialog, with room for a line in which the host says what the
/// form cannot know.
class ViewDialogFrame final : public QDialog {
    Q_OBJECT

public:
    ViewDialogFrame(QWidget* parent, std::int32_t styleFlags);

    /// Builds the form; false when it cannot be shown.
    bool showView(IView& view);

    /// Shows the line; an empty text takes it away.
    void setNotice(const QString& text);

    /// The close button of the frame and Escape work only where the style flags say so.
    void reject() override;

private:
    bool m_isClosable;
    QWidget* m_form = nullptr;
    QLabel* m_notice;
};

} // namespace xbr::host
