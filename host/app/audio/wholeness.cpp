#include "host/app/audio/wholeness.h"

#include "host/app/audio/mediasignature.h"

#include <FLAC/stream_decoder.h>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <vector>

namespace xbr::host {

namespace {

/// The rates of recordings and of what measures sound, with room on both sides.
constexpr int kLowestRate = 1000;
constexpr int kHighestRate = 1'000'000;

/// Some programs write lengths that are too large by a header; less than a millisecond is no missing part.
constexpr int kTolerance = 1000;

/// A file as the library sees it, with a length that it does not have: what the header claims is not cut down
/// to what is there then.
struct Pretence {
    /// Far beyond each file: a claim of this size was taken from it, as the header says "unknown".
    static constexpr sf_count_t kLength = sf_count_t{1} << 50U;

    static sf_count_t length(void*) { return kLength; }
    static sf_count_t seek(sf_count_t offset, int whence, void* self) {
        FILE* file = static_cast<FILE*>(self);
        const bool isFromEnd = whence == SEEK_END;
        const int failed = fseeko(file, isFromEnd ? kLength + offset : offset, isFromEnd ? SEEK_SET : whence);
        return failed != 0 ? -1 : ftello(file);
    }
    static sf_count_t read(void* bytes, sf_count_t count, void* self) {
        return static_cast<sf_count_t>(
            fread(bytes, 1, static_cast<std::size_t>(count), static_cast<FILE*>(self)));
    }
    static sf_count_t write(const void*, sf_count_t, void*) { return 0; }
    static sf_count_t tell(void* self) { return ftello(static_cast<FILE*>(self)); }
};

/// How many frames the header says there are; 0 when it does not say.
std::int64_t claimedFrames(const std::string& path) {
    static constexpr std::int64_t kUnknown = std::int64_t{1}
                                             << 29U; // what four bytes of ones come to, at least
    const std::unique_ptr<FILE, int (*)(FILE*)> file(std::fopen(path.c_str(), "rbe"), &std::fclose);
    SF_VIRTUAL_IO access{&Pretence::length, &Pretence::seek, &Pretence::read, &Pretence::write,
                         &Pretence::tell};
    SF_INFO info{};
    SNDFILE* opened = file ? sf_open_virtual(&access, SFM_READ, &info, file.get()) : nullptr;
    sf_close(opened);
    return opened && info.frames < kUnknown ? info.frames : 0;
}

/// W64 is the one format whose header the library does not believe: the file's whole size is its
/// third word.
bool isCutW64(std::ifstream& file, std::uint64_t size) {
    const std::uint64_t claimed = littleEndian(readAt(file, 16, 8));
    return claimed > size && claimed < std::uint64_t{Pretence::kLength};
}

/// How many frames follow the header of a WAV file whose sizes were never filled in (0): the library sees
/// none.
std::int64_t framesOfUnfinished(std::ifstream& file, std::uint64_t size, SNDFILE* opened, int rate) {
    const auto chunks = readChunks(file);
    const auto* data = findChunk(chunks, "data");
    const std::int64_t bytesPerFrame = sf_current_byterate(opened) / rate;
    if (!data || data->size != 0 || bytesPerFrame <= 0 || littleEndian(readAt(file, 4, 4)) + 8 == size) {
        return 0; // not WAV, or really without audio
    }
    return static_cast<std::int64_t>(size - data->position) / bytesPerFrame;
}

/// A FLAC file, read to its end for want of a length in its header: streaming encoders do not know it.
struct FlacWalk {
    std::int64_t frames = 0;
    FLAC__uint64 end = 0; ///< of the last whole frame, in bytes

    explicit FlacWalk(const std::string& path) {
        const std::unique_ptr<FLAC__StreamDecoder, void (*)(FLAC__StreamDecoder*)> decoder(
            FLAC__stream_decoder_new(), &FLAC__stream_decoder_delete);
        if (decoder &&
            FLAC__stream_decoder_init_file(decoder.get(), path.c_str(), &FlacWalk::count, nullptr,
                                           &FlacWalk::ignore, this) == FLAC__STREAM_DECODER_INIT_STATUS_OK) {
            FLAC__stream_decoder_process_until_end_of_stream(decoder.get());
        }
    }

private:
    static FLAC__StreamDecoderWriteStatus count(const FLAC__StreamDecoder* decoder, const FLAC__Frame* frame,
                                                const FLAC__int32* const*, void* self) {
        auto& walk = *static_cast<FlacWalk*>(self);
        walk.frames += frame->header.blocksize;
        FLAC__stream_decoder_get_decode_position(decoder, &walk.end);
        return FLAC__STREAM_DECODER_WRITE_STATUS_CONTINUE;
    }
    static void ignore(const FLAC__StreamDecoder*, FLAC__StreamDecoderErrorStatus, void*) {}
};

/// Counts the frames of a FLAC file; 0 when another one begins behind the last whole one. A tag may be there.
std::int64_t countFlacFrames(const std::string& path, std::ifstream& file) {
    const FlacWalk walk(path);
    return readAt(file, walk.end, 1) == "\xFF" ? 0 : walk.frames;
}

/// Counts the frames of a file whose header does not say how many there are; 0 when that cannot be done.
std::int64_t countFrames(const std::string& path, std::ifstream& file, std::uint64_t size, SNDFILE* opened,
                         const SF_INFO& info) {
    if (info.frames <= 0) {
        return framesOfUnfinished(file, size, opened, info.samplerate);
    }
    return (info.format & SF_FORMAT_TYPEMASK) == SF_FORMAT_FLAC ? countFlacFrames(path, file) : 0;
}

bool hasLastFrame(SNDFILE* file, const SF_INFO& info) {
    std::vector<float> frame(static_cast<std::size_t>(info.channels));
    const bool isThere =
        sf_seek(file, info.frames - 1, SEEK_SET) >= 0 && sf_readf_float(file, frame.data(), 1) == 1;
    return sf_seek(file, 0, SEEK_SET) == 0 && isThere;
}

std::string lengthText(std::int64_t frames, int rate) {
    const std::int64_t seconds = frames / rate;
    const std::string rest = std::to_string(seconds % 60);
    return std::to_string(seconds / 60) + (rest.size() < 2 ? ":0" : ":") + rest;
}

} // namespace

Problem checkWhole(const std::string& path, SNDFILE* opened, SF_INFO& info) {
    if (info.samplerate < kLowestRate || info.samplerate > kHighestRate) {
        return {Fault::kWrongRate,
                path,
                0,
                "has a sample rate that cannot be right",
                std::to_string(info.samplerate) + " Hz",
                {}};
    }
    std::ifstream file(path, std::ios::binary);
    std::error_code unknown;
    const std::uint64_t size = std::filesystem::file_size(path, unknown);
    const std::int64_t claimed = claimedFrames(path);
    if (claimed <= 0 && (info.frames <= 0 || info.frames == SF_COUNT_MAX)) {
        const bool isUnfinished = info.frames <= 0;
        info.frames = countFrames(path, file, size, opened, info);
        if (info.frames > 0) {
            return {};
        }
        return isUnfinished ? Problem{Fault::kNotAudio, path, 0, "holds no audio", {}, {}}
                            : Problem{Fault::kCutShort, path, 0, kDamaged, {}, {}};
    }
    const bool isW64 = (info.format & SF_FORMAT_TYPEMASK) == SF_FORMAT_W64;
    if (claimed - info.frames > info.samplerate / kTolerance || (isW64 && isCutW64(file, size))) {
        return {Fault::kCutShort,
                path,
                0,
                kDamaged,
                lengthText(info.frames, info.samplerate),
                claimed > info.frames ? lengthText(claimed, info.samplerate) : "more"};
    }
    return hasLastFrame(opened, info) ? Problem{} : Problem{Fault::kCutShort, path, 0, kDamaged, {}, {}};
}

bool isHeaderOnly(const std::string& path) {
    return claimedFrames(path) > 0;
}

} // namespace xbr::host
