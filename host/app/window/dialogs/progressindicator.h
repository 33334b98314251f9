#pragma once

#include "framework/abi/progress.h"
#include "framework/support/objects/object.h"
#include "host/app/window/dialogs/dialogplace.h"

#include <QDialog>
#include <QElapsedTimer>

#include <memory>

class QLabel;
class QProgressBar;
class QPushButton;

namespace xbr::host {

/// What a progress indicator looks like: a title, a bar, what is worked on, and a button to cancel.
class ProgressSheet final : public QDialog {
    Q_OBJECT

public:
    ProgressSheet(QWidget* parent, const QString& title, bool isCancellable);

    void tell(double fraction, const QString& what);

    /// The user wants the work to end; it does when it looks next.
    void cancel();
    bool isCancelled() const { return m_isCancelled; }

    /// Escape and the frame's close button cancel the work, too.
    void reject() override { cancel(); }

private:
    bool m_isCancellable;
    bool m_isCancelled = false;
    QProgressBar* m_bar;
    QLabel* m_what;
    QPushButton* m_cancel;
};

/// Shows the progress of work in a sheet that blocks the rest of the program. Work that is over in the blink
/// of an eye shows nothing.
class ProgressIndicator final : public Object<IProgressIndicator, IProgress> {
public:
    explicit ProgressIndicator(DialogPlace& place) : m_place(&place) {}
    ~ProgressIndicator() override { end(); }

    void setTitle(Text title) noexcept override;
    void setOption(std::int32_t option) noexcept override;
    void begin() noexcept override;
    void end() noexcept override;

    void update(double fraction, Text what) noexcept override;
    bool isCancelled() noexcept override;

private:
    /// What there is between `begin` and `end`.
    struct Work {
        Work(ProgressIndicator& indicator, DialogPlace& place, const QString& title, bool isCancellable);

        QPointer<ProgressSheet> sheet;
        Activity::Run run;
        QElapsedTimer clock;
        qint64 updated = 0; ///< milliseconds of the clock
    };

    DialogPlace* m_place;
    QString m_title;
    bool m_isCancellable = false;
    bool m_wasCancelled = false;
    std::unique_ptr<Work> m_work;
};

} // namespace xbr::host
