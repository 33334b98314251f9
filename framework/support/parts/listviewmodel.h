#pragma once

#include "framework/abi/listmodel.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/value.h"

#include <string>
#include <unordered_set>
#include <vector>

namespace xbr {

struct Cell {
    std::string text;
    CellStyle style = CellStyle::kNormal;
};

/// What a list model asks its owner about its items.
struct IListViewDelegate {
    virtual std::int32_t countColumns() const = 0;
    virtual Column columnAt(std::int32_t index) const = 0;
    virtual Cell cellOf(IObject& item, std::int32_t column) const = 0;
    virtual bool isItemEditable(IObject& item) const = 0;
    virtual DropEffect dragOver(IObjectIterator& objects) = 0;
    virtual Result drop(IObjectIterator& objects) = 0;
    virtual Result removeFocused() = 0;
    virtual Ref<ICommandList> contextCommands() = 0;

protected:
    ~IListViewDelegate() = default;
};

/// A list of items with selection and focus. Changes of the structure are told by "changed", changes of one
/// item's cells by "itemChanged", so that selection and focus live on.
class ListViewModel final : public Object<IListViewModel, ISubject> {
public:
    explicit ListViewModel(IListViewDelegate& delegate) : m_delegate(&delegate) {}
    ~ListViewModel() override;

    // IListViewModel
    std::int32_t countColumns() const noexcept override;
    Column columnAt(std::int32_t index) const noexcept override;
    std::int32_t countRows() const noexcept override { return static_cast<std::int32_t>(m_items.size()); }
    Result getCell(std::int32_t row, std::int32_t column, IString** text, CellStyle* style) noexcept override;
    Result getItem(std::int32_t row, IObject** out) noexcept override;
    bool isEditable(std::int32_t row) const noexcept override;
    void setSelection(const std::int32_t* rows, std::int32_t count) noexcept override;
    bool isSelected(std::int32_t row) const noexcept override;
    void setFocus(std::int32_t row) noexcept override;
    std::int32_t focus() const noexcept override { return m_focus; }
    DropEffect dragOver(IObjectIterator* objects) noexcept override;
    Result drop(IObjectIterator* objects) noexcept override;
    Result removeFocused() noexcept override;
    Result getContextCommands(ICommandList** out) noexcept override;

    /// The items in their order; borrowed.
    const std::vector<Ref<IObject>>& items() const { return m_items; }

    /// The selected items in the order of selection.
    const std::vector<Ref<IObject>>& selection() const { return m_selection; }

    /// The item with the focus; null for none.
    IObject* focusItem() const;

    void append(const Ref<IObject>& item) { m_items.push_back(item); }
    void remove(std::int32_t row);
    void clear();

    /// Signals "changed".
    void signalChanged();

    /// Signals "itemChanged" for a row.
    void signalItemChanged(std::int32_t row);

    /// The owner is going; the model may outlive it in a view and is empty then.
    void detach();

private:
    bool hasRow(std::int32_t row) const noexcept { return row >= 0 && row < countRows(); }
    void deselect(const IObject* item);

    IListViewDelegate* m_delegate;
    std::vector<Ref<IObject>> m_items;
    std::vector<Ref<IObject>> m_selection;
    std::unordered_set<const IObject*> m_selected; ///< the same, for quick questions
    std::int32_t m_focus = -1;
};

} // namespace xbr
