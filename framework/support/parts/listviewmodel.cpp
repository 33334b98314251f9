#include "framework/support/parts/listviewmodel.h"

#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"

#include <algorithm>

namespace xbr {

ListViewModel::~ListViewModel() {
    XBRGetSignalHandler()->forgetSubject(this);
}

std::int32_t ListViewModel::countColumns() const noexcept {
    return m_delegate ? m_delegate->countColumns() : 0;
}

Column ListViewModel::columnAt(std::int32_t index) const noexcept {
    return index >= 0 && index < countColumns() ? m_delegate->columnAt(index) : Column{};
}

Result ListViewModel::getCell(std::int32_t row, std::int32_t column, IString** text,
                              CellStyle* style) noexcept {
    *text = nullptr;
    if (!m_delegate || !hasRow(row) || column < 0 || column >= countColumns()) {
        return kInvalidArgument;
    }
    Cell cell = m_delegate->cellOf(*m_items[static_cast<std::size_t>(row)], column);
    *style = cell.style;
    return giveText(std::move(cell.text), text);
}

Result ListViewModel::getItem(std::int32_t row, IObject** out) noexcept {
    *out = nullptr;
    if (!hasRow(row)) {
        return kInvalidArgument;
    }
    *out = Ref<IObject>(m_items[static_cast<std::size_t>(row)]).detach();
    return kOk;
}

bool ListViewModel::isEditable(std::int32_t row) const noexcept {
    return m_delegate && hasRow(row) && m_delegate->isItemEditable(*m_items[static_cast<std::size_t>(row)]);
}

void ListViewModel::setSelection(const std::int32_t* rows, std::int32_t count) noexcept {
    std::vector<Ref<IObject>> selection;
    std::unordered_set<const IObject*> selected;
    for (std::int32_t i = 0; i < count; ++i) {
        if (hasRow(rows[i]) && selected.insert(m_items[static_cast<std::size_t>(rows[i])].get()).second) {
            selection.push_back(m_items[static_cast<std::size_t>(rows[i])]);
        }
    }
    if (selection == m_selection) {
        return;
    }
    m_selection = std::move(selection);
    m_selected = std::move(selected);
    signal(*this, "selectionChanged");
}

bool ListViewModel::isSelected(std::int32_t row) const noexcept {
    return hasRow(row) && m_selected.contains(m_items[static_cast<std::size_t>(row)].get());
}

void ListViewModel::setFocus(std::int32_t row) noexcept {
    const auto focus = hasRow(row) ? row : -1;
    if (focus != m_focus) {
        m_focus = focus;
        signal(*this, "selectionChanged");
    }
}

DropEffect ListViewModel::dragOver(IObjectIterator* objects) noexcept {
    return m_delegate ? m_delegate->dragOver(*objects) : DropEffect::kNone;
}

Result ListViewModel::drop(IObjectIterator* objects) noexcept {
    return m_delegate ? m_delegate->drop(*objects) : kFalse;
}

Result ListViewModel::removeFocused() noexcept {
    return m_delegate ? m_delegate->removeFocused() : kFalse;
}

Result ListViewModel::getContextCommands(ICommandList** out) noexcept {
    auto commands = m_delegate ? m_delegate->contextCommands() : nullptr;
    *out = commands.detach();
    return *out ? kOk : kFalse;
}

IObject* ListViewModel::focusItem() const {
    return hasRow(m_focus) ? m_items[static_cast<std::size_t>(m_focus)].get() : nullptr;
}

void ListViewModel::deselect(const IObject* item) {
    if (m_selected.erase(item) > 0) {
        std::erase_if(m_selection, [&](const auto& selected) { return selected.get() == item; });
    }
}

void ListViewModel::remove(std::int32_t row) {
    if (!hasRow(row)) {
        return;
    }
    const auto item = m_items[static_cast<std::size_t>(row)];
    m_items.erase(m_items.begin() + row);
    const auto selectedBefore = m_selected.size();
    deselect(item.get());
    const auto focusBefore = m_focus;
    if (m_focus == row) {
        m_focus = -1;
    } else if (m_focus > row) {
        --m_focus;
    }
    if (m_selected.size() != selectedBefore || m_focus != focusBefore) {
        signal(*this, "selectionChanged");
    }
}

void ListViewModel::clear() {
    m_items.clear();
    if (m_selection.empty() && m_focus < 0) {
        return;
    }
    m_selection.clear();
    m_selected.clear();
    m_focus = -1;
    signal(*this, "selectionChanged");
}

void ListViewModel::signalChanged() {
    signal(*this, "changed");
}

void ListViewModel::signalItemChanged(std::int32_t row) {
    signal(*this, "itemChanged", {integerValue(row)});
}

void ListViewModel::detach() {
    m_delegate = nullptr;
    clear();
}

} // namespace xbr
