#pragma once

#include "framework/abi/controller.h"
#include "framework/support/objects/ref.h"
#include "host/base/listener.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <string>

class QScrollArea;

namespace xbr::host {

/// Repeats a form in a scroll area, a row for each numbered child of a controller: "entry0", "entry1" and so
/// on until there is none.
///
/// Rows are made in portions, when they come near what is seen: a long list costs what a person looks at of
/// it. They are made anew when the controller signals "changed".
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
    void rebuild();
    void fill();
    void fillSoon() { m_filling.start(0); }
    bool isMoreNeeded() const;
    bool addRow();
    void removeRows();

    QScrollArea* m_area;
    Ref<IController> m_controller;
    std::string m_children;
    Rows m_rows;
    QWidget* m_lastStop; ///< of the Tab key, in the rows or before them
    int m_count = 0;
    bool m_isComplete = false;
    QTimer m_filling;
    QTimer m_rebuilding;
    Listener m_listener;
};

} // namespace xbr::host
