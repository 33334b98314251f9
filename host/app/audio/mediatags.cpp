#include "host/app/audio/mediatags.h"

#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"
#include "host/app/audio/mediasignature.h"
#include "host/app/audio/tagreader.h"
#include "host/base/fileurl.h"

#include <sndfile.h>
#include <taglib/wavfile.h>

#include <algorithm>
#include <filesystem>

namespace xbr::host {

namespace {

struct Field {
    const char* property;  ///< TagLib's name
    const char* attribute; ///< ours
};

constexpr Field kTexts[] = {
    {"TITLE", "Media:Title"}, {"ARTIST", "Media:Artist"},
    {"ALBUM", "Media:Album"}, {"ALBUMARTIST", "Media:AlbumArtist"},
    {"GENRE", "Media:Genre"},
};

std::string textOf(const TagLib::PropertyMap& properties, const char* name) {
    const auto found = properties.find(name);
    const std::string text = found == properties.end() || found->second.isEmpty()
                                 ? std::string()
                                 : found->second.front().to8Bit(true);
    return std::string(trim(text));
}

/// The number of "3/12" or "03"; 0 when there is none.
std::int64_t trackNumber(const std::string& text) {
    std::int64_t number = 0;
    for (const char c : text) {
        if (c < '0' || c > '9' || number > 9999) {
            break;
        }
        number = number * 10 + (c - '0');
    }
    return number > 9999 ? 0 : number;
}

MediaTags tagsOf(const TagLib::PropertyMap& properties) {
    MediaTags tags;
    for (const Field& field : kTexts) {
        std::string text = textOf(properties, field.property);
        if (!text.empty()) {
            tags.texts.emplace_back(field.attribute, std::move(text));
        }
    }
    tags.trackIndex = trackNumber(textOf(properties, "TRACKNUMBER"));
    return tags;
}

/// What a file says in the way of its format, for example in the name chunk of an AIFF file.
TagLib::PropertyMap formatProperties(const std::string& path) {
    static constexpr std::pair<int, const char*> kStrings[] = {{SF_STR_TITLE, "TITLE"},
                                                               {SF_STR_ARTIST, "ARTIST"},
                                                               {SF_STR_ALBUM, "ALBUM"},
                                                               {SF_STR_GENRE, "GENRE"},
                                                               {SF_STR_TRACKNUMBER, "TRACKNUMBER"}};
    TagLib::PropertyMap properties;
    SF_INFO info{};
    SNDFILE* file = sf_open(path.c_str(), SFM_READ, &info);
    for (const auto& [kind, name] : kStrings) {
        const char* text = file ? sf_get_string(file, kind) : nullptr;
        if (text && *text) {
            properties.insert(name, TagLib::StringList(TagLib::String(text, TagLib::String::UTF8)));
        }
    }
    if (file) {
        sf_close(file);
    }
    return properties;
}

} // namespace

MediaTags readForeignTags(const std::string& path) {
    TagLib::PropertyMap properties = readProperties(path, MediaKind::kUnknown);
    for (const auto& [name, values] : formatProperties(path)) {
        if (!properties.contains(name)) {
            properties.insert(name, values);
        }
    }
    return tagsOf(properties);
}

void writeWavTags(const std::string& path, const MediaTags& tags) {
    static constexpr std::uintmax_t kLongestRiff =
        0xFFFF0000; // with room for the tags; RF64 files stay without
    std::error_code unknown;
    if (std::filesystem::file_size(path, unknown) > kLongestRiff || unknown) {
        return;
    }
    TagLib::PropertyMap properties;
    for (const Field& field : kTexts) {
        for (const auto& [name, text] : tags.texts) {
            if (name == field.attribute) {
                properties.insert(field.property, TagLib::String(text, TagLib::String::UTF8));
            }
        }
    }
    if (tags.trackIndex > 0) {
        properties.insert("TRACKNUMBER", TagLib::String::number(static_cast<int>(tags.trackIndex)));
    }
    TagLib::RIFF::WAV::File file(path.c_str(), false);
    if (file.isValid() && !properties.isEmpty()) {
        file.setProperties(properties);
        file.save();
    }
}

Ref<Attributes> attributesOf(const MediaTags& tags) {
    auto attributes = make<Attributes>();
    for (const auto& [name, text] : tags.texts) {
        attributes->set(name, text);
    }
    if (tags.trackIndex > 0) {
        attributes->set("Media:TrackIndex", integerValue(tags.trackIndex));
    }
    return attributes;
}

std::optional<MediaTags> readTags(const std::string& path) {
    const MediaKind kind = recognise(path);
    if (kind == MediaKind::kUnreadable || kind == MediaKind::kUnknown) {
        return std::nullopt;
    }
    return tagsOf(readProperties(path, kind));
}

Result MediaFileInfo::open(Text url) noexcept {
    m_attributes.reset();
    const auto path = localPath(view(url));
    if (!path) {
        return kInvalidArgument;
    }
    const auto tags = readTags(*path);
    if (!tags) {
        return kUnexpected;
    }
    m_attributes = attributesOf(*tags);
    return kOk;
}

Result MediaFileInfo::getAttributes(IAttributes* out) noexcept {
    if (!m_attributes || !out) {
        return kUnexpected;
    }
    for (std::int32_t i = 0; i < m_attributes->count(); ++i) {
        const Text name = m_attributes->nameAt(i);
        out->set(name, m_attributes->get(view(name)));
    }
    return kOk;
}

} // namespace xbr::host
