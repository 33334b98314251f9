#include "tests/window/person.h"

#include "tests/window/stage.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QTest>
#include <QUrl>
#include <gtest/gtest.h>

namespace xbr::host::tests {

QWidget* find(QWidget& window, const char* name) {
    for (QWidget* widget : window.findChildren<QWidget*>(name)) {
        if (widget->isVisible()) {
            return widget;
        }
    }
    ADD_FAILURE() << "nothing to be seen is named " << name;
    return nullptr;
}

void click(QWidget& window, const char* name) {
    QWidget* button = find(window, name);
    if (button) {
        EXPECT_TRUE(button->isEnabled()) << name;
        QTest::mouseClick(button, Qt::LeftButton);
    }
}

void type(QWidget& window, const char* name, const QString& text) {
    auto* field = findAs<QLineEdit>(window, name);
    if (field) {
        field->setFocus();
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Return);
    }
}

bool drop(QWidget& target, const std::vector<std::string>& files) {
    QMimeData data;
    QList<QUrl> urls;
    for (const std::string& file : files) {
        urls.append(QUrl::fromLocalFile(QString::fromStdString(file)));
    }
    data.setUrls(urls);
    const QPoint place = target.rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &enter);
    if (!enter.isAccepted()) {
        return false;
    }
    QDragMoveEvent move(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &move);
    QDropEvent dropped(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &dropped);
    return dropped.isAccepted();
}

void selectRows(QAbstractItemView& list, const std::vector<int>& rows) {
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    for (const int row : rows) {
        const QModelIndex index = list.model()->index(row, 0);
        list.scrollTo(index);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers, list.visualRect(index).center());
        modifiers = Qt::ControlModifier;
    }
}

std::string cell(const QAbstractItemView& list, int row, int column) {
    return list.model()->index(row, column).data().toString().toStdString();
}

bool choose(QWidget& window, const QString& text) {
    for (QAction* action : window.findChildren<QAction*>()) {
        if (action->text().remove('&') == text) {
            const bool isPossible = action->isEnabled();
            action->trigger();
            return isPossible;
        }
    }
    return false;
}

std::unique_ptr<QTimer> answer(const QString& button) {
    return whenever([button] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box) {
            return false;
        }
        for (QAbstractButton* each : box->buttons()) {
            if (each->text().remove('&') == button) {
                QTest::mouseClick(each, Qt::LeftButton);
                return true;
            }
        }
        return false;
    });
}

} // namespace xbr::host::tests
