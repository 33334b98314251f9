#pragma once

#include "framework/abi/message.h"

namespace xbr {

struct Column {
    Text title;         ///< translated
    std::int32_t width; ///< points
};

enum class CellStyle : std::int32_t { kNormal = 0, kBusy = 1, kError = 2 };

enum class DropEffect : std::int32_t { kNone = 0, kCopy = 1 };

/// Gives objects one after the other.
struct IObjectIterator : IObject {
    static constexpr Uid kUid = uid("8a432bfe-4a01-418f-a9a4-0916e95a655c");

    /// The next object, handed over; kFalse and null after the last.
    virtual Result next(IObject** out) noexcept = 0;
};

/// An object that stands for a location: a dragged file, a rendered song.
struct IUrlSource : IObject {
    static constexpr Uid kUid = uid("52460337-fcef-428d-a66c-0ba4f1e423a5");

    /// kFalse and null when the object has no location at the moment.
    virtual Result getUrl(IString** out) noexcept = 0;
};

/// Commands that the user can choose from a menu.
struct ICommandList : IObject {
    static constexpr Uid kUid = uid("8a15c636-2f00-4b43-8e7f-fbab5981f44c");

    virtual std::int32_t count() const noexcept = 0;
    virtual Text categoryAt(std::int32_t index) const noexcept = 0;
    virtual Text nameAt(std::int32_t index) const noexcept = 0;
    virtual bool isEnabled(std::int32_t index) const noexcept = 0;

    /// kFalse when the command is disabled.
    virtual Result perform(std::int32_t index) noexcept = 0;
};

/// Rows and columns for a list view; selection and focus live here, so that they survive the view.
///
/// A list model is also an ISubject: "changed" when rows came, went or moved; "itemChanged" with a row as its
/// argument when cells of that row changed; "selectionChanged" when selection or focus changed.
struct IListViewModel : IObject {
    static constexpr Uid kUid = uid("474ab1d3-32fb-46d7-81ff-0ebd2ed4feb8");

    virtual std::int32_t countColumns() const noexcept = 0;
    virtual Column columnAt(std::int32_t index) const noexcept = 0;

    virtual std::int32_t countRows() const noexcept = 0;

    /// What a cell shows. kInvalidArgument outside the model.
    virtual Result getCell(std::int32_t row, std::int32_t column, IString** text,
                           CellStyle* style) noexcept = 0;

    /// The item of a row, handed over; items are IPropertySource.
    virtual Result getItem(std::int32_t row, IObject** out) noexcept = 0;

    /// False while the user may not change or remove the row.
    virtual bool isEditable(std::int32_t row) const noexcept = 0;

    /// The rows that are selected, in the order of selection. Rows outside the model are left out.
    virtual void setSelection(const std::int32_t* rows, std::int32_t count) noexcept = 0;
    virtual bool isSelected(std::int32_t row) const noexcept = 0;

    /// The row with the focus, -1 for none.
    virtual void setFocus(std::int32_t row) noexcept = 0;
    virtual std::int32_t focus() const noexcept = 0;

    /// What would happen if these objects (IUrlSource, usually) were dropped here.
    virtual DropEffect dragOver(IObjectIterator* objects) noexcept = 0;

    /// kFalse when nothing of it was taken.
    virtual Result drop(IObjectIterator* objects) noexcept = 0;

    /// Removes the row with the focus. kFalse when there is none or it may not be removed.
    virtual Result removeFocused() noexcept = 0;

    /// Commands of the list's context menu for the present selection; kFalse and null when there are none.
    virtual Result getContextCommands(ICommandList** out) noexcept = 0;
};

} // namespace xbr
