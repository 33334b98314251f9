#pragma once

#include "host/app/window/look/change.h"

#include <QUndoStack>

namespace xbr::host {

/// What was changed in the list and in the panels, and can be taken back.
class Changes final : public QObject {
    Q_OBJECT

public:
    Changes();
    Changes(const Changes&) = delete;
    Changes& operator=(const Changes&) = delete;
    ~Changes() override;

    /// It has happened already.
    void note(const Change& change);

    void undo() { m_stack.undo(); }
    void redo() { m_stack.redo(); }
    bool canUndo() const { return m_stack.canUndo(); }
    bool canRedo() const { return m_stack.canRedo(); }

signals:
    void moved();

private:
    QUndoStack m_stack;
};

} // namespace xbr::host
