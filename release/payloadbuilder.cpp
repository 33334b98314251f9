#include "release/payloadbuilder.h"

#include "framework/abi/filesystem.h"
#include "framework/support/data/attributes.h"
#include "framework/support/objects/text.h"
#include "release/releasedocument.h"

namespace brindlex {

namespace {

xbr::Ref<xbr::IStream> openAudio(const xbr::Url& file) {
    xbr::Ref<xbr::IStream> stream;
    XBRGetFileSystem()->openForReading(xbr::toText(file.toString()), stream.out());
    return stream;
}

void copyAudio(const xbr::Url& file, const xbr::Url& folder) {
    // A copy that fails is no error of its own here: the host does not pack a folder into which a copy
    // failed, so there is no archive and no request.
    const std::string copy = folder.join("assets").join(file.fileName()).toString();
    XBRGetFileSystem()->copyFile(xbr::toText(file.toString()), xbr::toText(copy));
}

void appendSong(xbr::IAttributeQueue& songs, const TrackMetadata& record, const xbr::Url& file) {
    const auto song = xbr::make<xbr::Attributes>();
    writeSongAttributes(*song, record, file.fileName());
    songs.append(xbr::objectValue(song.get()));
}

void writeDocument(xbr::Attributes& release, xbr::IAttributeQueue& songs, const xbr::Url& folder) {
    release.set("songs", xbr::objectValue(&songs));
    xbr::Ref<xbr::IStream> stream;
    const std::string location = folder.join("metadata.json").toString();
    if (XBRGetFileSystem()->createFile(xbr::toText(location), stream.out()) == xbr::kOk) {
        xbr::writeJson(release, *stream);
    }
}

} // namespace

xbr::Ref<IngestionRequest> buildPayload(const std::vector<xbr::Ref<TrackMetadata>>& records,
                                        const std::vector<xbr::Url>& files, std::string_view clientId,
                                        xbr::IProgress& progress) {
    const xbr::Url folder = getPayloadFolder();
    if (folder.isEmpty()) {
        return {};
    }
    const auto release = xbr::make<xbr::Attributes>();
    const auto songs = xbr::make<xbr::AttributeQueue>();
    for (std::size_t i = 0; i < records.size(); ++i) {
        const auto audio = openAudio(files[i]); // held open while it is copied
        if (!audio) {
            return {};
        }
        if (i == 0) {
            writeReleaseAttributes(*release, *records[i], clientId);
        }
        appendSong(*songs, *records[i], files[i]);
        copyAudio(files[i], folder);
    }
    writeDocument(*release, *songs, folder);
    return createIngestionRequest(progress);
}

} // namespace brindlex
