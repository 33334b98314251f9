#pragma once

#include "host/app/publishing/upload/progress.h"

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace xbr::host {

/// How far the bytes are, of the song and of all, in two lines whose place is reserved.
class ProgressRow final : public QWidget {
    Q_OBJECT

public:
    explicit ProgressRow(QWidget* parent);

    void show(const UploadProgress& progress);

    /// What is done, for screen readers and the window's title.
    QString text() const;

signals:
    void stopAsked();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showDetails();

    UploadProgress m_progress;
    QLabel* m_headline;
    QProgressBar* m_bar;
    QLabel* m_percent;
    QPushButton* m_stop;
    QLabel* m_details;
    QLabel* m_all;
};

} // namespace xbr::host
