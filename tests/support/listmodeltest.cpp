#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/listviewmodel.h"
#include "tests/fakehost/fakehost.h"

#include <gtest/gtest.h>

namespace {

using fakehost::host;

/// A list of messages: each cell is the item's name and the column.
class Names final : public xbr::IListViewDelegate {
public:
    std::int32_t countColumns() const override { return 2; }
    xbr::Column columnAt(std::int32_t index) const override { return {xbr::toText("column"), index + 1}; }
    xbr::Cell cellOf(xbr::IObject& item, std::int32_t column) const override {
        return {nameOf(&item) + std::to_string(column), xbr::CellStyle::kBusy};
    }
    bool isItemEditable(xbr::IObject& item) const override { return nameOf(&item) != "b"; }
    xbr::DropEffect dragOver(xbr::IObjectIterator&) override { return xbr::DropEffect::kCopy; }
    xbr::Result drop(xbr::IObjectIterator&) override { return xbr::kOk; }
    xbr::Result removeFocused() override { return xbr::kOk; }
    xbr::Ref<xbr::ICommandList> contextCommands() override { return {}; }

    static std::string nameOf(xbr::IObject* item) {
        const auto message = xbr::query<xbr::IMessage>(item);
        return message ? xbr::toString(message->name()) : "-";
    }
};

class ListModelTest : public testing::Test {
protected:
    ListModelTest() {
        fakehost::resetHost();
        append({"a", "b", "c"});
    }

    void append(std::initializer_list<const char*> items) {
        for (const char* name : items) {
            list->append(xbr::query<xbr::IObject>(xbr::make<xbr::Message>(name).get()));
        }
    }

    /// Rows from before the first to behind the last: cells, what may be edited, selection, focus.
    std::string state() {
        std::string text;
        for (std::int32_t row = -1; row <= list->countRows(); ++row) {
            xbr::Ref<xbr::IObject> item;
            list->getItem(row, item.out());
            text += Names::nameOf(item.get());
            for (std::int32_t column = -1; column <= 2; ++column) {
                xbr::Ref<xbr::IString> cell;
                xbr::CellStyle style{};
                text +=
                    list->getCell(row, column, cell.out(), &style) == xbr::kOk ? " " + xbr::take(cell) : "";
            }
            text += list->isEditable(row) ? " editable" : "";
            text += list->isSelected(row) ? " selected" : "";
            text += row >= 0 && list->focus() == row ? " focus" : "";
            text += "; ";
        }
        return text + Names::nameOf(list->focusItem());
    }

    Names names;
    xbr::Ref<xbr::ListViewModel> list =
        xbr::make<xbr::ListViewModel>(static_cast<xbr::IListViewDelegate&>(names));
};

TEST_F(ListModelTest, SelectionAndFocusFollowTheItems) {
    EXPECT_EQ(state(), "-; a a0 a1 editable; b b0 b1; c c0 c1 editable; -; -");
    const auto select = [&](std::vector<std::int32_t> rows) {
        list->setSelection(rows.data(), static_cast<std::int32_t>(rows.size()));
    };
    using Act = std::function<void()>;
    for (const auto& [action, after, isTold] : fakehost::Rows<Act, const char*, bool>{
             {[&] {
                  select({2, -1, 2, 0, 3});
              },
              "-; a a0 a1 editable selected; b b0 b1; c c0 c1 editable selected; -; -", true},
             {[&] {
                  select({2, 0});
              },
              "-; a a0 a1 editable selected; b b0 b1; c c0 c1 editable selected; -; -", false},
             {[&] { list->setFocus(2); },
              "-; a a0 a1 editable selected; b b0 b1; c c0 c1 editable selected focus; -; c", true},
             {[&] { list->setFocus(2); },
              "-; a a0 a1 editable selected; b b0 b1; c c0 c1 editable selected focus; -; c", false},
             {[&] { list->remove(1); }, "-; a a0 a1 editable selected; c c0 c1 editable selected focus; -; c",
              true},
             {[&] { list->remove(2); }, "-; a a0 a1 editable selected; c c0 c1 editable selected focus; -; c",
              false},
             {[&] { list->remove(0); }, "-; c c0 c1 editable selected focus; -; c", true},
             {[&] { list->remove(0); }, "-; -; -", true},
             {[&] { list->clear(); }, "-; -; -", false},
             {[&] {
                  append({"d", "e"});
              },
              "-; d d0 d1 editable; e e0 e1 editable; -; -", false},
             {[&] { list->setFocus(0); }, "-; d d0 d1 editable focus; e e0 e1 editable; -; d", true},
             {[&] { list->remove(1); }, "-; d d0 d1 editable focus; -; d", false},
             {[&] { list->clear(); }, "-; -; -", true},
         }) {
        host().signals.takeTold();
        action();
        EXPECT_EQ(state(), after);
        EXPECT_EQ(host().signals.takeTold(), isTold ? "list: selectionChanged\n" : "") << after;
    }
    EXPECT_TRUE(list->selection().empty());
}

TEST_F(ListModelTest, AsksItsOwnerUntilThatGoes) {
    const auto objects = xbr::make<xbr::ObjectList>();
    const auto answers = [&] {
        xbr::Ref<xbr::ICommandList> commands;
        std::string text = std::to_string(list->countColumns()) + " columns: ";
        for (std::int32_t i = -1; i <= 2; ++i) {
            text += std::to_string(list->columnAt(i).width) + " ";
        }
        return text + std::to_string(static_cast<int>(list->dragOver(objects.get()))) +
               std::to_string(list->drop(objects.get())) + std::to_string(list->removeFocused()) +
               std::to_string(list->getContextCommands(commands.out()));
    };
    EXPECT_EQ(answers(), "2 columns: 0 1 2 0 1001");
    list->detach();
    EXPECT_EQ(answers(), "0 columns: 0 0 0 0 0111");
    EXPECT_EQ(list->countRows(), 0);
}

} // namespace
