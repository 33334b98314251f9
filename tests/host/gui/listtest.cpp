#include "framework/support/parts/listviewmodel.h"
#include "tests/host/gui/formtest.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QTreeView>

namespace xbr::host::tests {
namespace {

/// A list model of texts; rows that begin with "!" may not be removed.
class TestList final : private IListViewDelegate, private Object<ICommandList> {
public:
    ~TestList() override { m_model->detach(); }

    ListViewModel& model() const { return *m_model; }

    void add(const Texts& texts) {
        for (const std::string& text : texts) {
            m_model->append(Ref<IObject>::adopt(static_cast<IString*>(make<String>(text).detach())));
        }
        m_model->signalChanged();
    }
    Texts texts() const { return textsOf(m_model->items()); }
    Texts selectedTexts() const { return textsOf(m_model->selection()); }

    Texts performed; ///< commands of the context menu

private:
    static std::string textOf(IObject& item) { return toString(static_cast<String&>(item).text()); }
    static Texts textsOf(const std::vector<Ref<IObject>>& items) {
        Texts texts;
        for (const auto& item : items) {
            texts.push_back(textOf(*item));
        }
        return texts;
    }
    std::int32_t countColumns() const override { return 2; }
    Column columnAt(std::int32_t index) const override {
        return {toText(index == 0 ? "Name" : "State"), index == 0 ? 300 : 100};
    }
    Cell cellOf(IObject& item, std::int32_t column) const override {
        return {column == 0 ? textOf(item) : ""};
    }
    bool isItemEditable(IObject& item) const override { return !textOf(item).starts_with('!'); }
    DropEffect dragOver(IObjectIterator&) override { return DropEffect::kNone; }
    Result drop(IObjectIterator&) override { return kFalse; }
    Result removeFocused() override {
        if (!m_model->isEditable(m_model->focus())) {
            return kFalse;
        }
        m_model->remove(m_model->focus());
        m_model->signalChanged();
        return kOk;
    }
    Ref<ICommandList> contextCommands() override { return Ref<ICommandList>::share(this); }

    std::int32_t count() const noexcept override { return 3; }
    Text categoryAt(std::int32_t index) const noexcept override {
        return toText(index < 2 ? "Rows" : "Other");
    }
    Text nameAt(std::int32_t index) const noexcept override {
        return toText(index == 0 ? "Reset" : index == 1 ? "Cut & paste" : "Never");
    }
    bool isEnabled(std::int32_t index) const noexcept override { return index < 2; }
    Result perform(std::int32_t index) noexcept override {
        performed.push_back(toString(nameAt(index)));
        return kOk;
    }

    Ref<ListViewModel> m_model = make<ListViewModel>(static_cast<IListViewDelegate&>(*this));
};

class List : public FormTest {
protected:
    List() {
        root->addObject("rows", query<IObject>(&list.model()));
        list.add({"a", "b", "c", "d"});
        show(columnXml(
            {widgetXml("QTreeView", "list", "xbrListModel=rows;xbrRemoveText=Remove;xbrPlaceholder=Empty")}));
        form->resize(400, 300);
        view = &at<QTreeView>("list");
        settle();
    }

    void click(int row, Qt::KeyboardModifiers modifiers = {}) {
        const QRect rect = view->visualRect(view->model()->index(row, 0));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers, rect.center());
    }
    Texts shown() const {
        Texts texts;
        for (int row = 0; row < view->model()->rowCount(); ++row) {
            texts.push_back(view->model()->index(row, 0).data().toString().toStdString());
        }
        return texts;
    }
    void expectInView(const std::set<int>& selected, int focus) const {
        std::set<int> rows;
        for (const auto& index : view->selectionModel()->selectedRows()) {
            rows.insert(index.row());
        }
        EXPECT_EQ(rows, selected);
        EXPECT_EQ(view->currentIndex().row(), focus);
    }
    QMenu* openMenu(QContextMenuEvent::Reason reason) const {
        QContextMenuEvent event(reason, QPoint(5, 5), view->viewport()->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(view->viewport(), &event);
        return view->findChild<QMenu*>();
    }

    TestList list;
    QTreeView* view = nullptr;
};

TEST_F(List, tellsTheModelWhatIsSelectedInTheOrderOfSelection) {
    const struct {
        int row; ///< that is clicked; -1 for none
        Qt::KeyboardModifiers modifiers;
        int key;
        Texts selected;
        int focus;
    } steps[] = {
        {2, Qt::NoModifier, 0, {"c"}, 2},
        {0, Qt::ControlModifier, 0, {"c", "a"}, 0},
        {3, Qt::ControlModifier, 0, {"c", "a", "d"}, 3},
        {0, Qt::ControlModifier, 0, {"c", "d"}, 3}, // not on the one that was taken out
        {1, Qt::NoModifier, 0, {"b"}, 1},
        {3, Qt::ShiftModifier, 0, {"b", "c", "d"}, 3},
        {-1, Qt::ControlModifier, Qt::Key_A, {"b", "c", "d", "a"}, 3},
    };
    for (const auto& [row, modifiers, key, selected, focus] : steps) {
        row < 0 ? QTest::keyClick(view, static_cast<Qt::Key>(key), modifiers) : click(row, modifiers);
        EXPECT_EQ(list.selectedTexts(), selected);
        EXPECT_EQ(list.model().focus(), focus);
    }
}

TEST_F(List, takesSelectionAndFocusFromTheModel) {
    const std::int32_t rows[] = {3, 1};
    list.model().setSelection(rows, 2);
    list.model().setFocus(1);
    settle();
    expectInView({1, 3}, 1);
    EXPECT_EQ(list.selectedTexts(), (Texts{"d", "b"})); // without echo: the order is the model's
    click(0, Qt::ControlModifier);
    EXPECT_EQ(list.selectedTexts().back(), "a");
    list.model().setFocus(-1);
    settle();
    EXPECT_FALSE(view->currentIndex().isValid());
}

TEST_F(List, followsRowsThatChangeComeAndGo) {
    click(1);
    click(3, Qt::ControlModifier);
    list.model().signalChanged();
    list.model().signalItemChanged(2);
    list.model().signalItemChanged(99);
    settle();
    expectInView({1, 3}, 3);
    list.model().remove(0);
    list.model().signalChanged();
    list.add({"e", "f"});
    settle();
    EXPECT_EQ(shown(), (Texts{"b", "c", "d", "e", "f"}));
    expectInView({0, 2}, 2);
    EXPECT_EQ(list.selectedTexts(), (Texts{"b", "d"}));
    list.model().clear();
    list.add({"new", "ones"});
    settle();
    EXPECT_EQ(shown(), (Texts{"new", "ones"}));
    expectInView({}, -1);
}

TEST_F(List, aClickBeforeTheChangeWasTakenUpMeansTheRowsOfTheModel) {
    click(3);
    list.model().remove(0);
    list.model().remove(0);
    list.model().signalChanged();
    QTest::keyClick(view, Qt::Key_Up); // nothing was processed between
    EXPECT_EQ(list.selectedTexts(), (Texts{"c"}));
    EXPECT_EQ(list.model().focus(), 0);
}

TEST_F(List, deleteRemovesWhatMayBeRemovedAndGoesOnBeside) {
    list.add({"!fixed", "z"});
    settle();
    click(1);
    click(3, Qt::ControlModifier);
    click(4, Qt::ControlModifier);
    QTest::keyClick(view, Qt::Key_Delete);
    EXPECT_EQ(list.texts(), (Texts{"a", "c", "!fixed", "z"}));
    settle();
    EXPECT_EQ(view->currentIndex().row(), 1);
    EXPECT_EQ(list.selectedTexts(), (Texts{"c"}));
    QTest::keyClick(view, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(view, Qt::Key_Delete);
    EXPECT_EQ(list.texts(), (Texts{"!fixed"}));
}

TEST_F(List, theMenuHoldsTheModelsCommands) {
    click(1);
    for (const auto reason : {QContextMenuEvent::Mouse, QContextMenuEvent::Keyboard}) {
        QMenu* menu = openMenu(reason);
        ASSERT_NE(menu, nullptr);
        Texts entries;
        for (const QAction* action : menu->actions()) {
            entries.push_back(action->isSeparator() ? "-" : action->text().toStdString());
        }
        EXPECT_EQ(entries, (Texts{"-", "Reset", "Cut && paste", "-", "Never", "-", "Remove\tDel"}));
        EXPECT_FALSE(menu->actions()[4]->isEnabled());
        menu->actions()[2]->trigger();
        menu->close();
        settle();
    }
    EXPECT_EQ(list.performed, (Texts{"Cut & paste", "Cut & paste"}));
    openMenu(QContextMenuEvent::Keyboard)->actions()[6]->trigger();
    EXPECT_EQ(list.texts(), (Texts{"a", "c", "d"}));
}

} // namespace
} // namespace xbr::host::tests
