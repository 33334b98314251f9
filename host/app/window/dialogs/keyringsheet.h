#pragma once

#include <QCoreApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QPointer>

class QLabel;

namespace xbr::host {

/// Keeps the window alive while the keyring is asked, and says so when that takes more than a moment. No
/// other input comes through meanwhile.
class KeyringSheet final {
    Q_DECLARE_TR_FUNCTIONS(xbr::host::KeyringSheet)

public:
    explicit KeyringSheet(QWidget* window);
    KeyringSheet(const KeyringSheet&) = delete;
    KeyringSheet& operator=(const KeyringSheet&) = delete;
    ~KeyringSheet() { delete m_sheet; }

    /// Runs the event loop for a moment; false when the user gives it up.
    bool wait(bool isForUser);

private:
    QPointer<QDialog> m_sheet; ///< belongs to the window, which may take it along
    QLabel* m_text;
    QElapsedTimer m_clock;
};

} // namespace xbr::host
