#pragma once

#include "framework/abi/filetype.h"
#include "framework/support/objects/object.h"

#include <QMimeDatabase>

#include <vector>

namespace xbr::host {

/// Knows what the shared MIME database knows, and keeps the handlers of URLs.
class FileTypeRegistry final : public Object<IFileTypeRegistry> {
public:
    Result getTypeByExtension(Text extension, IFileType** out) noexcept override;
    Result getTypeByMimeType(Text mimeType, IFileType** out) noexcept override;
    Result createType(Text extension, IFileType** out) noexcept override;
    Result addHandler(IFileHandler* handler) noexcept override;
    Result removeHandler(IFileHandler* handler) noexcept override;
    bool openUrl(Text url) noexcept override;

private:
    QMimeDatabase m_database;
    std::vector<Ref<IFileHandler>> m_handlers;
};

} // namespace xbr::host
