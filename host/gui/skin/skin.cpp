#include "host/gui/skin/skin.h"

#include "framework/abi/filesystem.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/objects/text.h"
#include "host/base/xmlscan.h"

#include <QByteArray>
#include <QStringDecoder>
#include <QXmlStreamReader>

#include <optional>

namespace xbr::host {

namespace {

constexpr std::string_view kManifest = "skin.xml";

/// Forms and style sheets are some ten kilobytes; more than this is no skin.
constexpr std::int64_t kMaximumFileSize = std::int64_t{4} << 20;

std::optional<std::string> readFile(const std::string& url) {
    Ref<IStream> stream;
    if (XBRGetFileSystem()->openForReading(toText(url), stream.out()) != kOk) {
        return std::nullopt;
    }
    const std::int64_t size = measure(*stream);
    if (size < 0 || size > kMaximumFileSize) {
        return std::nullopt;
    }
    std::string bytes = readAll(*stream);
    return bytes.size() == static_cast<std::size_t>(size) ? std::optional(std::move(bytes)) : std::nullopt;
}

/// A file of a skin lies inside its folder.
bool isInside(std::string_view path) {
    if (path.empty() || path.front() == '/' || path.find_first_of(":\\?#%") != std::string_view::npos) {
        return false;
    }
    const std::string framed = "/" + std::string(path) + "/";
    return framed.find("/../") == std::string::npos && framed.find("/./") == std::string::npos &&
           framed.find("//") == std::string::npos;
}

bool isUtf8(const std::string& bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded = decoder(QByteArrayView(bytes));
    return !decoder.hasError() && decoded.isValidUtf16();
}

/// Reads one manifest into a skin.
class SkinReader {
public:
    SkinReader(std::string_view folder, Skin& skin) : m_folder(folder), m_skin(&skin) {}

    bool readManifest(const std::string& manifest) {
        QXmlStreamReader reader{QByteArrayView(manifest).toByteArray()};
        bool isSkin = false;
        for (int depth = 0; nextToken(reader);) {
            if (reader.isStartElement()) {
                isSkin = depth == 0 ? reader.name() == u"Skin" : isSkin;
                if (!isSkin || (depth == 1 && !readEntry(reader))) {
                    return false;
                }
                ++depth;
            } else if (reader.isEndElement()) {
                --depth;
            }
        }
        return isSkin && !reader.hasError();
    }

private:
    /// Elements of other names are for front ends that know them.
    bool readEntry(const QXmlStreamReader& reader) {
        const auto attributes = reader.attributes();
        const std::string file = attributes.value(QStringLiteral("file")).toString().toStdString();
        if (reader.name() == u"Form") {
            return readForm(attributes.value(QStringLiteral("name")).toString().toStdString(), file);
        }
        if (reader.name() == u"Image") {
            return readImage(file);
        }
        return reader.name() != u"Style" ||
               readStyleSheet(attributes.value(QStringLiteral("appearance")), file);
    }

    bool readForm(const std::string& name, const std::string& file) {
        auto form = read(file);
        if (name.empty() || !form || !isXmlDocument(*form, "ui")) {
            return false;
        }
        return m_skin->forms.emplace(name, std::move(*form)).second;
    }

    bool readImage(const std::string& file) {
        auto image = read(file);
        return image && isXmlDocument(*image, "svg") &&
               m_skin->images.emplace(file, std::move(*image)).second;
    }

    bool readStyleSheet(QStringView appearance, const std::string& file) {
        std::string* const sheet = styleSheetFor(appearance);
        const auto read = this->read(file);
        if (!sheet || !read || !isUtf8(*read)) {
            return false;
        }
        *sheet += *read;
        return true;
    }

    std::string* styleSheetFor(QStringView appearance) {
        if (appearance.isEmpty()) {
            return &m_skin->styleSheet;
        }
        if (appearance == u"light") {
            return &m_skin->lightStyleSheet;
        }
        return appearance == u"dark" ? &m_skin->darkStyleSheet : nullptr;
    }

    std::optional<std::string> read(const std::string& file) const {
        return isInside(file) ? readFile(m_folder + "/" + file) : std::nullopt;
    }

    std::string m_folder;
    Skin* m_skin;
};

/// "brindlex" of "resource://brindlex/skin".
std::string moduleOf(std::string_view folder) {
    static constexpr std::string_view kResources = "resource://";
    if (!folder.starts_with(kResources)) {
        return {};
    }
    folder.remove_prefix(kResources.size());
    return std::string(folder.substr(0, folder.find('/')));
}

} // namespace

SkinResult readSkin(std::string_view folder, Skin& skin) {
    while (!folder.empty() && folder.back() == '/') {
        folder.remove_suffix(1);
    }
    const std::string manifestUrl = std::string(folder) + "/" + std::string(kManifest);
    if (!XBRGetFileSystem()->fileExists(toText(manifestUrl))) {
        return SkinResult::kMissing;
    }
    const auto manifest = readFile(manifestUrl);
    Skin found;
    if (!manifest || !SkinReader(folder, found).readManifest(*manifest)) {
        return SkinResult::kUnreadable;
    }
    found.module = moduleOf(folder);
    skin = std::move(found);
    return SkinResult::kRead;
}

} // namespace xbr::host
