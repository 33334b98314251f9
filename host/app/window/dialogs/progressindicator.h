#pragma once

#include "framework/abi/progress.h"
#include "framework/support/objects/object.h"
#include "host/app/window/dialogs/progresssheet.h"
#include "host/app/window/dialogs/windowcontext.h"

#include <QElapsedTimer>

#include <memory>

namespace xbr::host {

/// Shows the progress of work in a sheet that blocks the rest of the program. Work that is over in the blink
/// of an eye shows nothing.
class ProgressIndicator final : public Object<IProgressIndicator, IProgress> {
public:
    explicit ProgressIndicator(WindowContext& context) : m_context(&context) {}
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
        Work(ProgressIndicator& indicator, WindowContext& context, const QString& title, bool isCancellable);

        IndicatorScope scope;
        QPointer<ProgressSheet> sheet;
        ModalRuns::Run run;
        QElapsedTimer clock;
        qint64 updated = 0; ///< milliseconds of the clock
    };

    WindowContext* m_context;
    QString m_title;
    bool m_isCancellable = false;
    bool m_wasCancelled = false;
    std::unique_ptr<Work> m_work;
};

} // namespace xbr::host
