#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/classfactory.h"
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
        for (const char* name : {"a", "b", "c"}) {
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
    const struct {
        const char* name;
        std::function<void()> action;
        const char* state;
        const char* told;
    } steps[] = {
        {"select",
         [&] {
             select({2, -1, 2, 0, 3});
         },
         "-; a a0 a1 editable selected; b b0 b1; c c0 c1 editable selected; -; -",
         "list: selectionChanged\n"},
        {"the same",
         [&] {
             select({2, 0});
         },
         "-; a a0 a1 editable selected; b b0 b1; c c0 c1 editable selected; -; -", ""},
        {"focus", [&] { list->setFocus(2); },
         "-; a a0 a1 editable selected; b b0 b1; c c0 c1 editable selected focus; -; c",
         "list: selectionChanged\n"},
        {"focus again", [&] { list->setFocus(2); },
         "-; a a0 a1 editable selected; b b0 b1; c c0 c1 editable selected focus; -; c", ""},
        {"remove another", [&] { list->remove(1); },
         "-; a a0 a1 editable selected; c c0 c1 editable selected focus; -; c", "list: selectionChanged\n"},
        {"remove none", [&] { list->remove(2); },
         "-; a a0 a1 editable selected; c c0 c1 editable selected focus; -; c", ""},
        {"remove a selected one", [&] { list->remove(0); }, "-; c c0 c1 editable selected focus; -; c",
         "list: selectionChanged\n"},
        {"remove that with the focus", [&] { list->remove(0); }, "-; -; -", "list: selectionChanged\n"},
        {"clear what is clear", [&] { list->clear(); }, "-; -; -", ""},
    };
    for (const auto& [name, action, after, told] : steps) {
        host().signals.takeTold();
        action();
        EXPECT_EQ(state(), after) << name;
        EXPECT_EQ(host().signals.takeTold(), told) << name;
    }
    EXPECT_TRUE(list->selection().empty());
}

TEST_F(ListModelTest, RemovingBehindTheFocusTellsNothing) {
    list->setFocus(0);
    host().signals.takeTold();
    list->remove(2);
    EXPECT_EQ(list->focus(), 0);
    EXPECT_EQ(host().signals.takeTold(), "");
    list->clear();
    EXPECT_EQ(host().signals.takeTold(), "list: selectionChanged\n");
    EXPECT_EQ(list->focus(), -1);
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

TEST(ClassFactory, KnowsItsClassesOnly) {
    const auto known = xbr::describe(xbr::uid("00000000-0000-0000-0000-000000000001"), "Category", "Name");
    const auto factory = xbr::make<xbr::ClassFactory>();
    factory->add(known, xbr::creatorOf<xbr::ObjectList>(), xbr::make<xbr::Attributes>());
    EXPECT_EQ(factory->classAt(0), &known);
    EXPECT_NE(factory->attributesAt(0), nullptr);
    for (const std::int32_t outside : {-1, 1}) {
        EXPECT_EQ(factory->classAt(outside), nullptr);
        EXPECT_EQ(factory->attributesAt(outside), nullptr);
    }
    void* out = &out;
    const auto other = xbr::uid("00000000-0000-0000-0000-000000000002");
    EXPECT_EQ(factory->createInstance(other, xbr::IObjectIterator::kUid, &out), xbr::kNoInterface);
    EXPECT_EQ(out, nullptr);
    ASSERT_EQ(factory->createInstance(known.uid, xbr::IObjectIterator::kUid, &out), xbr::kOk);
    static_cast<xbr::IObjectIterator*>(out)->release();
}

} // namespace
