#pragma once

#include "framework/abi/locale.h"

#include <QByteArray>
#include <QUiLoader>

#include <string>

namespace xbr::host {

/// Makes widgets from Designer descriptions: Qt's own kinds only, and the list of this library for QTreeView.
class FormLoader final : public QUiLoader {
    Q_OBJECT

public:
    FormLoader();

    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override;

    /// An unknown kind becomes a column, as Qt goes on with what it gets, be it null.
    QLayout* createLayout(const QString& className, QObject* parent, const QString& name) override;
};

/// The form with its texts in the user's language. `form` is well-formed; texts marked as not to be
/// translated (`notr`) stay as they are.
QByteArray translateForm(const std::string& form, ITranslationTable& translations);

} // namespace xbr::host
