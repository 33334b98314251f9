#include "host/app/audio/tagreader.h"

#include <taglib/flacfile.h>
#include <taglib/id3v2framefactory.h>
#include <taglib/id3v2tag.h>
#include <taglib/infotag.h>
#include <taglib/mpegfile.h>
#include <taglib/oggflacfile.h>
#include <taglib/opusfile.h>
#include <taglib/speexfile.h>
#include <taglib/tbytevectorstream.h>
#include <taglib/tfilestream.h>
#include <taglib/vorbisfile.h>

#include <algorithm>

namespace xbr::host {

namespace {

// Pictures take a few MiB, texts a few KiB.
constexpr unsigned long kMiB = 1UL << 20U;
constexpr unsigned long kMostInAll = 64 * kMiB;
constexpr unsigned long kMostAtOnce = 16 * kMiB;
constexpr unsigned long kMostTexts = 4 * kMiB;

/// A file that ends when much was read of it.
class BoundedStream final : public TagLib::FileStream {
public:
    explicit BoundedStream(const std::string& path) : FileStream(path.c_str(), true) {}

    TagLib::ByteVector readBlock(unsigned long length) override {
        static constexpr unsigned long kCost = 256; // of each look: there may be millions of small ones
        const auto bytes = FileStream::readBlock(std::min({length, kMostAtOnce, m_left}));
        m_left -= std::min<unsigned long>(m_left, std::max<unsigned long>(bytes.size(), kCost));
        return bytes;
    }

private:
    unsigned long m_left = kMostInAll;
};

/// Names the type, which is protected although factories are given it.
struct AnyFrame : TagLib::ID3v2::Frame {
    using Head = Frame::Header;
};

/// Lets TagLib read the frames of texts alone: no pictures, no frames in frames, nothing compressed, and not
/// more than a song can need.
class TextFrames final : public TagLib::ID3v2::FrameFactory {
protected:
    bool updateFrame(AnyFrame::Head* header) const override {
        static constexpr unsigned kMostFrames = 10000;
        const bool isText = header->frameID().startsWith("T") && !header->compression();
        m_texts += isText ? header->frameSize() : 0;
        if (++m_frames > kMostFrames || m_texts > kMostTexts) {
            header->setFrameSize(kMostInAll); // the tag ends with it
            return false;
        }
        if (isText) {
            return FrameFactory::updateFrame(header);
        }
        const unsigned size = header->frameSize();
        header->setData(TagLib::ByteVector(10, '\0'), 4U); // no flag asks for anything
        header->setFrameSize(size);
        return false;
    }

private:
    mutable unsigned m_frames = 0;
    mutable unsigned long m_texts = 0;
};

/// The INFO chunk names no encoding. What is not UTF-8 was written by a program of the Windows world.
class InfoTexts final : public TagLib::RIFF::Info::StringHandler {
public:
    TagLib::String parse(const TagLib::ByteVector& data) const override {
        const std::string text = data.data() ? std::string(data.data(), data.size()) : std::string();
        const auto end = std::min(text.find('\0'), text.size());
        const TagLib::String decoded(text.substr(0, end), TagLib::String::UTF8);
        return decoded.isEmpty() ? TagLib::String(text.substr(0, end), TagLib::String::Latin1) : decoded;
    }
};

TagLib::PropertyMap infoProperties(const TagLib::ByteVector& list) {
    [[maybe_unused]] static const bool isHandlerSet = [] {
        TagLib::RIFF::Info::Tag::setStringHandler(new InfoTexts); // used until the process ends
        return true;
    }();
    const TagLib::RIFF::Info::Tag tag(list);
    TagLib::PropertyMap properties = tag.properties();
    const TagLib::String track = tag.fieldText("ITRK");
    if (!track.isEmpty()) {
        properties.insert("TRACKNUMBER", track);
    }
    return properties;
}

/// Of any stream that begins with an ID3v2 tag, or has what an MP3 file has instead. Audio properties are not
/// read: finding the length of an MP3 may take the whole file.
TagLib::PropertyMap mpegProperties(TagLib::IOStream& stream) {
    TextFrames frames;
    return TagLib::MPEG::File(&stream, &frames, false).properties();
}

void addMissing(TagLib::PropertyMap& properties, const TagLib::PropertyMap& further) {
    for (const auto& [name, values] : further) {
        if (!properties.contains(name)) {
            properties.insert(name, values);
        }
    }
}

/// What the ID3v2 chunk lacks is taken from the INFO chunk: programs write the one, the other or both.
TagLib::PropertyMap chunkProperties(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    TagLib::PropertyMap id3;
    TagLib::PropertyMap info;
    for (const auto& [id, position, size] : readChunks(file)) {
        const bool isId3 = id == "ID3 " || id == "id3 ";
        const bool isInfo = id == "LIST" && size <= kMostTexts && readAt(file, position, 4) == "INFO";
        if (isId3 || isInfo) {
            const std::string bytes = readAt(file, position, std::min<std::uint64_t>(size, kMostAtOnce));
            const TagLib::ByteVector data(bytes.data(), static_cast<unsigned>(bytes.size()));
            TagLib::ByteVectorStream stream(data);
            addMissing(isId3 ? id3 : info, isId3 ? mpegProperties(stream) : infoProperties(data));
        }
    }
    addMissing(id3, info);
    return id3;
}

template <class File>
void addOgg(TagLib::PropertyMap& properties, const std::string& path) {
    BoundedStream stream(path);
    File file(&stream, false);
    if (properties.isEmpty() && file.isValid()) {
        properties = file.properties();
    }
}

TagLib::PropertyMap oggProperties(const std::string& path) {
    TagLib::PropertyMap properties;
    addOgg<TagLib::Ogg::Vorbis::File>(properties, path);
    addOgg<TagLib::Ogg::Opus::File>(properties, path);
    addOgg<TagLib::Ogg::FLAC::File>(properties, path);
    addOgg<TagLib::Ogg::Speex::File>(properties, path);
    return properties;
}

} // namespace

TagLib::PropertyMap readProperties(const std::string& path, MediaKind kind) {
    BoundedStream stream(path);
    TextFrames frames;
    switch (kind) {
    case MediaKind::kFlac:
        return TagLib::FLAC::File(&stream, &frames, false).properties();
    case MediaKind::kMp3:
        return mpegProperties(stream);
    default:
        return stream.readBlock(4) == "OggS" ? oggProperties(path) : chunkProperties(path);
    }
}

} // namespace xbr::host
