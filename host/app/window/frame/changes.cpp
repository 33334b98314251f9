#include "host/app/window/frame/changes.h"

#include <utility>

namespace xbr::host {

namespace {

constexpr int kMostChanges = 100;

class Step final : public QUndoCommand {
public:
    explicit Step(Change change) : m_change(std::move(change)) {}

    void undo() override { m_change.undo(); }
    void redo() override {
        if (std::exchange(m_hasHappened, false)) {
            return; // the stack performs what is pushed
        }
        m_change.redo();
    }
    int id() const override { return m_change.series; }
    bool mergeWith(const QUndoCommand* other) override {
        m_change.redo = static_cast<const Step*>(other)->m_change.redo;
        return true;
    }

private:
    Change m_change;
    bool m_hasHappened = true;
};

} // namespace

Changes::Changes() {
    m_stack.setUndoLimit(kMostChanges);
    connect(&m_stack, &QUndoStack::indexChanged, this, &Changes::moved);
}

Changes::~Changes() {
    m_stack.disconnect(this); // it clears itself, which nobody is to hear any more
}

void Changes::note(const Change& change) {
    m_stack.push(new Step(change));
}

} // namespace xbr::host
