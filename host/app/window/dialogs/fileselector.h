#pragma once

#include "framework/abi/view.h"
#include "framework/support/objects/object.h"
#include "host/app/window/dialogs/dialogplace.h"

#include <QStringList>

#include <string>
#include <vector>

namespace xbr::host {

struct FileQuestion {
    QString title;
    QStringList filters; ///< as QFileDialog takes them; empty for any file
    bool isSaving = false;
    bool isForSeveral = false;
};

/// Asks the user for files, beginning in the folder where they were last; empty when the user thinks better
/// of it, or when the program is to end meanwhile. Runs the event loop.
QStringList askForFiles(DialogPlace& place, const FileQuestion& question);

/// Lets the user choose files, in the desktop's own dialog where there is one.
class FileSelector final : public Object<IFileSelector> {
public:
    explicit FileSelector(DialogPlace& place) : m_place(&place) {}

    Result addFilter(IFileType* type) noexcept override;
    Result run(Mode mode, Text title) noexcept override;
    std::int32_t countUrls() const noexcept override { return static_cast<std::int32_t>(m_urls.size()); }
    Text urlAt(std::int32_t index) const noexcept override;

private:
    struct Filter {
        QString extension;
        QString description;
    };
    QStringList nameFilters() const;

    DialogPlace* m_place;
    std::vector<Filter> m_filters;
    std::vector<std::string> m_urls;
};

} // namespace xbr::host
