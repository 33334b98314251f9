#include "host/system/filetyperegistry.h"

#include "framework/support/objects/text.h"
#include "host/base/mainthread.h"
#include "host/base/qttext.h"

#include <QMimeType>

#include <algorithm>

namespace xbr::host {

namespace {

class FileType final : public Object<IFileType> {
public:
    FileType(std::string extension, std::string mimeType, std::string description)
        : m_extension(std::move(extension)),
          m_mimeType(std::move(mimeType)),
          m_description(std::move(description)) {}

    Text extension() const noexcept override { return toText(m_extension); }
    Text mimeType() const noexcept override { return toText(m_mimeType); }
    Text description() const noexcept override { return toText(m_description); }

private:
    std::string m_extension;
    std::string m_mimeType;
    std::string m_description;
};

QString toLowerQString(Text text) {
    return toQString(text).trimmed().toLower();
}

Result giveType(const QString& extension, const QMimeType& type, IFileType** out) {
    *out = make<FileType>(extension.toStdString(), type.name().toStdString(), type.comment().toStdString())
               .detach();
    return kOk;
}

/// An extension may belong to a family of types (".ogg": audio, video, single codecs). A workstation means
/// audio, and the general type comes first in the database's answer.
QMimeType choose(const QList<QMimeType>& types) {
    const auto audio = std::find_if(types.begin(), types.end(),
                                    [](const QMimeType& type) { return type.name().startsWith("audio/"); });
    return audio == types.end() ? types.front() : *audio;
}

/// The extension that people expect for a type.
QString usualExtension(const QMimeType& type) {
    // The database prefers RFC 5334's "oga", which audio programs hardly ever write.
    return type.name() == "audio/ogg" ? QStringLiteral("ogg") : type.preferredSuffix();
}

} // namespace

Result FileTypeRegistry::getTypeByExtension(Text extension, IFileType** out) noexcept {
    assertMainThread();
    *out = nullptr;
    const QString wanted = toLowerQString(extension);
    if (wanted.isEmpty() || wanted.contains('/')) {
        return kFalse;
    }
    const auto types = m_database.mimeTypesForFileName("name." + wanted);
    return types.isEmpty() ? kFalse : giveType(wanted, choose(types), out);
}

Result FileTypeRegistry::getTypeByMimeType(Text mimeType, IFileType** out) noexcept {
    assertMainThread();
    *out = nullptr;
    // Parameters ("; charset=...") do not belong to the type (RFC 2045, 5.1).
    const QString name = toLowerQString(mimeType).section(';', 0, 0).trimmed();
    const QMimeType type = m_database.mimeTypeForName(name);
    const QString extension = type.isValid() ? usualExtension(type) : QString();
    return extension.isEmpty() ? kFalse : giveType(extension, type, out);
}

Result FileTypeRegistry::createType(Text extension, IFileType** out) noexcept {
    assertMainThread();
    *out = nullptr;
    if (extension.length == 0) {
        return kInvalidArgument;
    }
    *out = make<FileType>(std::string(view(extension)), std::string(), std::string()).detach();
    return kOk;
}

Result FileTypeRegistry::addHandler(IFileHandler* handler) noexcept {
    assertMainThread();
    if (!handler) {
        return kInvalidArgument;
    }
    auto added = Ref<IFileHandler>::share(handler);
    if (std::find(m_handlers.begin(), m_handlers.end(), added) != m_handlers.end()) {
        return kFalse;
    }
    m_handlers.push_back(std::move(added));
    return kOk;
}

Result FileTypeRegistry::removeHandler(IFileHandler* handler) noexcept {
    assertMainThread();
    const auto found = std::find_if(m_handlers.begin(), m_handlers.end(),
                                    [&](const auto& known) { return known.get() == handler; });
    if (found == m_handlers.end()) {
        return kFalse;
    }
    const auto removed = std::move(*found);
    m_handlers.erase(found);
    return kOk;
}

bool FileTypeRegistry::openUrl(Text url) noexcept {
    assertMainThread();
    const auto handlers = m_handlers; // a copy: handlers may come and go while they are asked
    return std::any_of(handlers.begin(), handlers.end(), [&](const Ref<IFileHandler>& handler) {
        const bool isStillThere =
            std::find(m_handlers.begin(), m_handlers.end(), handler) != m_handlers.end();
        return isStillThere && handler->openUrl(url);
    });
}

} // namespace xbr::host

xbr::IFileTypeRegistry* XBRGetFileTypeRegistry() noexcept {
    static auto* const registry = xbr::make<xbr::host::FileTypeRegistry>().detach();
    return registry;
}
