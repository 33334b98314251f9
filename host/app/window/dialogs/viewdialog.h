#pragma once

#include "framework/abi/view.h"
#include "framework/support/objects/object.h"
#include "host/app/window/dialogs/dialogplace.h"

#include <QDialog>
#include <QEventLoop>

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

    /// Offers the way out of a sign-in whose browser does not come back.
    void showSignIn(HostSession& session, const QString& address);

    /// Shows the line; an empty text takes it away.
    void setNotice(const QString& text);

    /// The close button of the frame and Escape work only where the style flags say so.
    void reject() override;

private:
    bool m_isClosable;
    QWidget* m_form = nullptr;
    QLabel* m_notice;
};

/// A dialog that shows a form of a module.
class ViewDialog final : public Object<IDialog> {
public:
    explicit ViewDialog(DialogPlace& place) : m_place(&place) {}

    Result setTheme(ITheme* theme) noexcept override;
    Result setTranslationTable(ITranslationTable* table) noexcept override;

    /// Answers at once when the settings of the service are missing or the program is about to end: what the
    /// form would wait for cannot happen then. kInvalidArgument: the view is none of the host's.
    Result runModal(IView* view, std::int32_t styleFlags) noexcept override;
    Result close() noexcept override;

private:
    bool isHopeless() const;

    DialogPlace* m_place;
    Ref<ITheme> m_theme;
    Ref<ITranslationTable> m_table;
    QEventLoop* m_loop = nullptr; ///< while the dialog runs
};

} // namespace xbr::host
