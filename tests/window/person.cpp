#include "tests/window/person.h"

#include <QAbstractButton>
#include <QAction>
#include <QDropEvent>
#include <QLineEdit>
#include <QMessageBox>
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
    if (QWidget* button = find(window, name)) {
        EXPECT_TRUE(button->isEnabled()) << name;
        QTest::mouseClick(button, Qt::LeftButton);
    }
}

void type(QWidget& window, const char* name, const QString& text) {
    if (auto* field = findAs<QLineEdit>(window, name)) {
        field->setFocus();
        field->selectAll();
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
    return drop(target, data, target.rect().center(), Qt::CopyAction);
}

bool drop(QWidget& target, const QMimeData& data, QPoint place, Qt::DropAction action) {
    QDragEnterEvent enter(place, action, &data, Qt::LeftButton, Qt::NoModifier);
    QDragMoveEvent move(place, action, &data, Qt::LeftButton, Qt::NoModifier);
    QDropEvent dropped(place, action, &data, Qt::LeftButton, Qt::NoModifier);
    for (QDropEvent* event : {static_cast<QDropEvent*>(&enter), static_cast<QDropEvent*>(&move), &dropped}) {
        QApplication::sendEvent(&target, event);
        if (!enter.isAccepted()) {
            return false;
        }
    }
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

std::unique_ptr<QTimer> whenever(const std::function<bool()>& act) {
    static constexpr int kPause = 5;
    auto timer = std::make_unique<QTimer>();
    timer->callOnTimeout([timer = timer.get(), act] {
        timer->stop(); // it may run the event loop
        if (!act()) {
            timer->start();
        }
    });
    timer->start(kPause);
    return timer;
}

std::unique_ptr<QTimer> answer(const QString& button) {
    return inDialog<QMessageBox>([button](QMessageBox& box) {
        for (QAbstractButton* each : box.buttons()) {
            if (each->text().remove('&') == button) {
                QTest::mouseClick(each, Qt::LeftButton);
                return true;
            }
        }
        return false;
    });
}

bool waitFor(const std::function<bool()>& condition, int milliseconds) {
    return QTest::qWaitFor(condition, milliseconds);
}

} // namespace xbr::host::tests
