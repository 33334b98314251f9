#include "tests/host/gui/testlist.h"
#include "tests/host/gui/testskin.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QTreeView>
#include <QUrl>
#include <gtest/gtest.h>

namespace xbr::host::tests {
namespace {

using Texts = std::vector<std::string>;

class List : public testing::Test {
protected:
    List() {
        controller = make<TestController>("Root");
        controller->addObject("rows", query<IObject>(&list.model()));
        list.add({"a", "b", "c", "d"});
        skin.addForm("F", "<layout class='QVBoxLayout'><item>" +
                              widgetXml("QTreeView", "list",
                                        "xbrListModel=rows;xbrRemoveText=Remove;xbrPlaceholder=Empty") +
                              "</item></layout>");
        form = skin.widget("F", *controller);
        form->resize(400, 300);
        view = &child<QTreeView>(*form, "list");
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
    std::set<int> selectedInView() const {
        std::set<int> rows;
        for (const auto& index : view->selectionModel()->selectedRows()) {
            rows.insert(index.row());
        }
        return rows;
    }
    QMenu* openMenu(QContextMenuEvent::Reason reason) {
        QContextMenuEvent event(reason, QPoint(5, 5), view->viewport()->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(view->viewport(), &event);
        return view->findChild<QMenu*>();
    }

    TestList list;
    TestSkin skin;
    Ref<TestController> controller;
    std::unique_ptr<QWidget> form;
    QTreeView* view = nullptr;
};

TEST_F(List, tellsTheModelWhatIsSelectedInTheOrderOfSelection) {
    click(2);
    EXPECT_EQ(list.selectedTexts(), (Texts{"c"}));
    EXPECT_EQ(list.model().focus(), 2);
    click(0, Qt::ControlModifier);
    click(3, Qt::ControlModifier);
    EXPECT_EQ(list.selectedTexts(), (Texts{"c", "a", "d"}));
    click(0, Qt::ControlModifier);
    EXPECT_EQ(list.selectedTexts(), (Texts{"c", "d"}));
    EXPECT_EQ(list.model().focus(), 3) << "not on the one that was taken out";
    click(1);
    click(3, Qt::ShiftModifier);
    EXPECT_EQ(list.selectedTexts(), (Texts{"b", "c", "d"}));
    QTest::keyClick(view, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(list.selectedTexts().size(), 4U);
    QTest::keyClick(view, Qt::Key_Up);
    EXPECT_EQ(list.selectedTexts(), (Texts{"c"}));
    EXPECT_EQ(list.model().focus(), 2);
}

TEST_F(List, takesSelectionAndFocusFromTheModel) {
    const std::int32_t rows[] = {3, 1};
    list.model().setSelection(rows, 2);
    list.model().setFocus(1);
    settle();
    EXPECT_EQ(selectedInView(), (std::set<int>{1, 3}));
    EXPECT_EQ(view->currentIndex().row(), 1);
    EXPECT_EQ(list.selectedTexts(), (Texts{"d", "b"})); // without echo: the order is the model's
    click(0, Qt::ControlModifier);
    EXPECT_EQ(list.selectedTexts().back(), "a");
    list.model().setFocus(-1);
    settle();
    EXPECT_FALSE(view->currentIndex().isValid());
}

TEST_F(List, changedValuesLeaveSelectionAndFocusAlone) {
    click(1);
    click(2, Qt::ControlModifier);
    list.model().signalChanged();
    list.model().signalItemChanged(2);
    list.model().signalItemChanged(99);
    settle();
    EXPECT_EQ(list.selectedTexts(), (Texts{"b", "c"}));
    EXPECT_EQ(selectedInView(), (std::set<int>{1, 2}));
    EXPECT_EQ(view->currentIndex().row(), 2);
}

TEST_F(List, followsRowsThatComeAndGo) {
    click(1);
    click(3, Qt::ControlModifier);
    list.model().remove(0);
    list.model().signalChanged();
    list.add({"e", "f"});
    settle();
    EXPECT_EQ(shown(), (Texts{"b", "c", "d", "e", "f"}));
    EXPECT_EQ(selectedInView(), (std::set<int>{0, 2}));
    EXPECT_EQ(list.selectedTexts(), (Texts{"b", "d"}));
    EXPECT_EQ(view->currentIndex().row(), 2);
    list.insert(1, "between"); // all rows are new ones
    settle();
    EXPECT_EQ(shown(), list.texts());
    EXPECT_EQ(selectedInView(), std::set<int>());
    list.model().clear();
    list.model().signalChanged();
    settle();
    EXPECT_EQ(shown(), Texts());
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
        menu->actions()[4]->trigger();
        menu->close();
        settle();
        EXPECT_EQ(view->findChild<QMenu*>(), nullptr);
    }
    EXPECT_EQ(list.performed, (Texts{"Cut & paste", "Cut & paste"}));
    openMenu(QContextMenuEvent::Keyboard)->actions()[6]->trigger();
    EXPECT_EQ(list.texts(), (Texts{"a", "c", "d"}));
}

TEST_F(List, showsWhereFilesCanBeDropped) {
    struct Row {
        QList<QUrl> urls;
        bool isTaken;
    };
    const std::vector<Row> table = {
        {{}, false},
        {{QUrl("file:///x.txt")}, false},
        {{QUrl("file:///x.txt"), QUrl::fromLocalFile("/my ä.wav")}, true},
    };
    for (const auto& [urls, isTaken] : table) {
        QMimeData data;
        data.setUrls(urls);
        const auto before = list.texts().size();
        QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(view->viewport(), &enter);
        EXPECT_EQ(enter.isAccepted(), isTaken);
        EXPECT_EQ(view->property("dropTarget").toBool(), isTaken);
        if (isTaken) {
            QDropEvent drop(QPointF(9, 9), Qt::CopyAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(view->viewport(), &drop);
            EXPECT_FALSE(view->property("dropTarget").toBool());
            EXPECT_EQ(list.texts().size(), before + 2);
            EXPECT_EQ(list.texts().back(), "file:///my%20%C3%A4.wav");
        }
        QDragLeaveEvent leave;
        QApplication::sendEvent(view->viewport(), &leave);
        EXPECT_FALSE(view->property("dropTarget").toBool());
    }
}

TEST_F(List, columnsFitThePanelUntilThePersonMovesThem) {
    EXPECT_EQ(view->header()->model()->headerData(0, Qt::Horizontal).toString(), "Name");
    form->resize(1200, 300);
    settle();
    EXPECT_EQ(view->columnWidth(0), 300 * view->logicalDpiX() / 72);
    form->resize(300, 300);
    settle();
    EXPECT_LE(view->columnWidth(0) + view->columnWidth(1), view->viewport()->width());
    EXPECT_GE(view->columnWidth(1), 100);
    view->header()->resizeSection(0, 70);
    form->resize(500, 300);
    settle();
    EXPECT_EQ(view->columnWidth(0), 70);
}

TEST_F(List, readsWhatIsSeenAndNoMore) {
    Texts many;
    for (int i = 0; i < 10000; ++i) {
        many.push_back("row " + std::to_string(i));
    }
    list.add(many);
    settle();
    view->grab();
    list.cellsRead = 0;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 20; ++i) {
        list.model().signalChanged(); // several for one keystroke
    }
    settle();
    view->grab();
    EXPECT_LT(list.cellsRead, 500);
    EXPECT_LT(timer.elapsed(), 500); // some milliseconds; more on a busy machine
}

} // namespace
} // namespace xbr::host::tests
