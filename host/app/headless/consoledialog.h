#pragma once

#include "framework/abi/view.h"
#include "framework/support/objects/object.h"
#include "host/app/headless/consolecontext.h"
#include "host/app/publishing/reachability.h"

#include <QEventLoop>

namespace xbr::host {

/// Stands for a dialog where there is no window: waits until the module closes it.
///
/// It closes by itself where a person in front of a window would press "Cancel": on Ctrl-C, and when the
/// service does not answer or its settings are missing.
class ConsoleDialog final : public Object<IDialog> {
public:
    explicit ConsoleDialog(ConsoleContext& context) : m_context(&context) {}

    Result setTheme(ITheme* theme) noexcept override;
    Result setTranslationTable(ITranslationTable* table) noexcept override;
    Result runModal(IView* view, std::int32_t styleFlags) noexcept override;
    Result close() noexcept override;

private:
    bool isHopeless() const;
    void watchCallbacks(IController& controller);

    ConsoleContext* m_context;
    QEventLoop* m_loop = nullptr; ///< while the dialog runs
};

} // namespace xbr::host
