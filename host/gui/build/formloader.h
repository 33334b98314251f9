#pragma once

#include <QUiLoader>

namespace xbr::host {

/// Makes widgets from Designer descriptions: Qt's own kinds only, and the list of this library for QTreeView.
class FormLoader final : public QUiLoader {
    Q_OBJECT

public:
    FormLoader();

    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override;
};

} // namespace xbr::host
