#pragma once

#include "framework/abi/progress.h"
#include "framework/support/objects/object.h"
#include "host/app/headless/consolecontext.h"

#include <QElapsedTimer>

#include <memory>
#include <string>

namespace xbr::host {

/// Tells the progress of work on the output; Ctrl-C cancels it.
class ConsoleProgress final : public Object<IProgressIndicator, IProgress> {
public:
    explicit ConsoleProgress(ConsoleContext& context) : m_context(&context) {}

    void setTitle(Text title) noexcept override;
    void setOption(std::int32_t option) noexcept override;
    void begin() noexcept override;
    void end() noexcept override;

    void update(double fraction, Text what) noexcept override;
    bool isCancelled() noexcept override;

private:
    ConsoleContext* m_context;
    std::string m_title;
    bool m_isCancellable = false;
    std::unique_ptr<IndicatorScope> m_scope; ///< between begin and end
    QElapsedTimer m_told;
};

} // namespace xbr::host
