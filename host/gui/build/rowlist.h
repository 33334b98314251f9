#pragma once

#include "framework/abi/controller.h"
#include "framework/support/objects/ref.h"
#include "host/base/listener.h"

#include <QObject>
#include <QRect>
#include <QTimer>

#include <functional>
#include <string>
#include <vector>

class QScrollArea;

namespace xbr::host {

/// Repeats a form in a scroll area, a row for each numbered child of a controller: "entry0", "entry1" and so
/// on until there is none.
///
/// Rows are made a few at a time, when they come near what is seen, and go when they are far away, but for
/// their places: a long list costs what a person looks at of it. They are made anew when the controller
/// signals "changed".
class RowList final : public QObject {
public:
    /// What rows are made by.
    struct Rows {
        std::function<QWidget*(IController& child, QWidget* parent)> make;
        std::function<void()> release; ///< frees what the rows needed; they are gone
    };

    /// Belongs to `area`, which has a widget with a vertical box layout for the rows.
    RowList(QScrollArea& area, Ref<IController> controller, std::string children, Rows rows);

    static bool fits(const QWidget& widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A row that was made; null when it has gone, and an empty place stands for it.
    struct Row {
        QWidget* widget = nullptr;
        QWidget* lastStop = nullptr; ///< of the Tab key, if there is one in the row
    };

    void rebuild();
    void fill();
    void fillSoon() { m_filling.start(0); }
    QRect surroundings(int heights) const;
    bool isMoreNeeded() const;
    void letGo();
    bool bringBack(const QRect& area);
    bool addRow();
    bool makeRow(std::size_t index);
    void removeRows();

    QScrollArea* m_area;
    Ref<IController> m_controller;
    std::string m_children;
    Rows m_rows;
    std::vector<Row> m_made;
    bool m_isComplete = false;
    QTimer m_filling;
    QTimer m_rebuilding;
    Listener m_listener;
};

} // namespace xbr::host
