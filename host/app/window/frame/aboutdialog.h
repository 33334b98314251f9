#pragma once

#include <QDialog>

#include <vector>

namespace xbr::host {

/// One line of the table of versions.
struct VersionLine {
    QString name;
    QString version;
};

/// What this program is, and which versions of what it is made of. Helps whoever has to answer questions.
class AboutDialog final : public QDialog {
    Q_OBJECT

public:
    /// `modules` are listed below the program itself.
    AboutDialog(const std::vector<VersionLine>& modules, QWidget* parent);

private:
    void copyVersions() const;

    std::vector<VersionLine> m_lines;
};

} // namespace xbr::host
