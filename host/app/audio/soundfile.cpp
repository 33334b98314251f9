#include "host/app/audio/soundfile.h"

#include "host/app/audio/riffchunks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <limits>
#include <memory>
#include <vector>

namespace xbr::host {

namespace {

struct Depth {
    int subtype; ///< of the WAV file
    int bytes;   ///< of a sample
    SampleForm form;
};

Depth depthFor(int subtype) {
    switch (subtype) {
    case SF_FORMAT_PCM_S8:
    case SF_FORMAT_PCM_U8:
        return {SF_FORMAT_PCM_U8, 1, SampleForm::kInteger}; // WAV has no signed bytes
    case SF_FORMAT_PCM_16:
    case SF_FORMAT_ALAC_16:
    case SF_FORMAT_DWVW_16:
    case SF_FORMAT_DPCM_16:
    case SF_FORMAT_ULAW:
    case SF_FORMAT_ALAW:
        return {SF_FORMAT_PCM_16, 2, SampleForm::kInteger};
    case SF_FORMAT_PCM_32:
    case SF_FORMAT_ALAC_32:
        return {SF_FORMAT_PCM_32, 4, SampleForm::kInteger};
    case SF_FORMAT_FLOAT:
        return {SF_FORMAT_FLOAT, 4, SampleForm::kFloat};
    case SF_FORMAT_DOUBLE:
        return {SF_FORMAT_DOUBLE, 8, SampleForm::kDouble};
    case SF_FORMAT_PCM_24:
    case SF_FORMAT_ALAC_20:
    case SF_FORMAT_ALAC_24:
    case SF_FORMAT_DWVW_24:
        return {SF_FORMAT_PCM_24, 3, SampleForm::kInteger};
    default: // decoders answer floating point, and peaks beyond full scale
        return {SF_FORMAT_PCM_24, 3, SampleForm::kFloat};
    }
}

std::string words(SNDFILE* file) {
    std::string text = sf_strerror(file);
    while (!text.empty() && (text.back() == '.' || text.back() == '\n')) {
        text.pop_back();
    }
    return text;
}

/// The rates of recordings and of what measures sound, with room on both sides.
constexpr int kLowestRate = 1000;
constexpr int kHighestRate = 1'000'000;

/// Some programs write lengths that are too large by a header; less than a millisecond is no missing part.
constexpr int kTolerance = 1000;

constexpr const char* kDamaged = "is damaged: a part of the audio is missing";

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

using File = std::unique_ptr<FILE, int (*)(FILE*)>;

/// How many frames the header says there are; 0 when it does not say.
std::int64_t claimedFrames(const std::string& path) {
    static constexpr std::int64_t kUnknown = std::int64_t{1}
                                             << 29U; // what four bytes of ones come to, at least
    const File file(std::fopen(path.c_str(), "rbe"), &std::fclose);
    SF_VIRTUAL_IO access{&Pretence::length, &Pretence::seek, &Pretence::read, &Pretence::write,
                         &Pretence::tell};
    SF_INFO info{};
    SNDFILE* opened = file ? sf_open_virtual(&access, SFM_READ, &info, file.get()) : nullptr;
    sf_close(opened);
    return opened && info.frames < kUnknown ? info.frames : 0;
}

/// W64 is the one format whose header the library does not believe: the file's whole size is its
/// third word.
bool isCutW64(const std::string& path, int format) {
    std::array<char, 24> head{};
    const File file(std::fopen(path.c_str(), "rbe"), &std::fclose);
    if ((format & SF_FORMAT_TYPEMASK) != SF_FORMAT_W64 || !file ||
        std::fread(head.data(), 1, head.size(), file.get()) != head.size()) {
        return false;
    }
    const auto claimed = littleEndian({head.data() + 16, 8});
    return std::fseek(file.get(), 0, SEEK_END) == 0 &&
           claimed > static_cast<std::uint64_t>(std::ftell(file.get())) &&
           claimed < std::uint64_t{Pretence::kLength};
}

/// How many frames follow the header of a WAV file whose sizes were never filled in (0): the library sees
/// none.
std::int64_t framesOfUnfinished(const std::string& path, const SF_INFO& info) {
    std::ifstream file(path, std::ios::binary);
    const auto chunks = readChunks(file);
    const auto data =
        std::find_if(chunks.begin(), chunks.end(), [](auto& each) { return each.id == "data"; });
    std::array<char, 8> head{};
    file.clear();
    file.seekg(0);
    file.read(head.data(), head.size());
    const std::uint64_t size = std::filesystem::file_size(path);
    if (data == chunks.end() || data->size != 0 || littleEndian({head.data() + 4, 4}) + head.size() == size) {
        return 0; // not WAV, or really without audio
    }
    const auto frame = std::int64_t{depthFor(info.format & SF_FORMAT_SUBMASK).bytes} * info.channels;
    return static_cast<std::int64_t>(size - data->position) / frame;
}

std::string lengthText(std::int64_t frames, int rate) {
    const std::int64_t seconds = frames / rate;
    const std::string rest = std::to_string(seconds % 60);
    return std::to_string(seconds / 60) + (rest.size() < 2 ? ":0" : ":") + rest;
}

} // namespace

Outcome<SoundFile> SoundFile::open(const std::string& path) {
    SF_INFO info{};
    SNDFILE* opened = sf_open(path.c_str(), SFM_READ, &info);
    const std::string reason = opened ? std::string() : " (" + words(nullptr) + ")";
    if (!opened && claimedFrames(path) > 0) {
        return Problem{Fault::kCutShort, path, 0, kDamaged, {}, {}};
    }
    if (!opened || (info.format & SF_FORMAT_TYPEMASK) == SF_FORMAT_RAW) {
        sf_close(opened);
        return Problem{Fault::kNotAudio, path, 0, "is not audio that can be read" + reason, {}, {}};
    }
    SoundFile file(opened, info);
    if (Problem problem = file.check(path)) {
        return problem;
    }
    return file;
}

Problem SoundFile::check(const std::string& path) {
    if (m_info.samplerate < kLowestRate || m_info.samplerate > kHighestRate) {
        return {Fault::kWrongRate,
                path,
                0,
                "has a sample rate that cannot be right",
                std::to_string(m_info.samplerate) + " Hz",
                {}};
    }
    const std::int64_t claimed = claimedFrames(path);
    if (m_info.frames <= 0 && claimed <= 0) {
        m_info.frames = framesOfUnfinished(path, m_info);
        if (m_info.frames > 0) {
            return {};
        }
        return {Fault::kNotAudio, path, 0, "holds no audio", {}, {}};
    }
    if (claimed - m_info.frames > m_info.samplerate / kTolerance || isCutW64(path, m_info.format)) {
        return {Fault::kCutShort,
                path,
                0,
                kDamaged,
                lengthText(m_info.frames, m_info.samplerate),
                claimed > m_info.frames ? lengthText(claimed, m_info.samplerate) : "more"};
    }
    return hasLastFrame() ? Problem{} : Problem{Fault::kCutShort, path, 0, kDamaged, {}, {}};
}

bool SoundFile::hasLastFrame() {
    std::vector<float> frame(static_cast<std::size_t>(m_info.channels));
    const bool isThere =
        sf_seek(m_file, m_info.frames - 1, SEEK_SET) >= 0 && sf_readf_float(m_file, frame.data(), 1) == 1;
    return sf_seek(m_file, 0, SEEK_SET) == 0 && isThere;
}

Outcome<SoundFile> SoundFile::create(const std::string& path, const SF_INFO& info) {
    SF_INFO wanted = info;
    SNDFILE* opened = sf_open(path.c_str(), SFM_WRITE, &wanted);
    if (!opened) {
        return Problem{Fault::kNotWritable, path, 0, words(nullptr), {}, {}};
    }
    sf_command(opened, SFC_SET_CLIPPING, nullptr, SF_TRUE);
    // It would hold the time of day: the same song should become the same file.
    sf_command(opened, SFC_SET_ADD_PEAK_CHUNK, nullptr, SF_FALSE);
    return SoundFile(opened, info);
}

SoundFile::~SoundFile() {
    close();
}

std::string SoundFile::lastError() const {
    return words(m_file);
}

bool SoundFile::close() {
    SNDFILE* file = std::exchange(m_file, nullptr);
    return !file || sf_close(file) == 0;
}

Problem findNotNumbers(const SoundFile& file, const std::string& path) {
    static constexpr sf_count_t kPiece = 65536;
    const int subtype = file.info().format & SF_FORMAT_SUBMASK;
    if (subtype != SF_FORMAT_FLOAT && subtype != SF_FORMAT_DOUBLE) {
        return {};
    }
    std::vector<double> samples(static_cast<std::size_t>(kPiece * file.info().channels));
    bool isFinite = true;
    sf_count_t frames = 0;
    while (isFinite && (frames = sf_readf_double(file.handle(), samples.data(), kPiece)) > 0) {
        isFinite = std::all_of(samples.begin(), samples.begin() + frames * file.info().channels,
                               [](double sample) { return std::isfinite(sample); });
    }
    sf_seek(file.handle(), 0, SEEK_SET);
    return isFinite ? Problem{}
                    : Problem{Fault::kNotNumbers, path, 0, "holds samples that are not numbers", {}, {}};
}

WavFormat wavFormatFor(const SF_INFO& info) {
    static constexpr std::int64_t kHeaders = 4096;
    static constexpr std::int64_t kLargestWav = std::numeric_limits<std::uint32_t>::max() - kHeaders;
    const Depth depth = depthFor(info.format & SF_FORMAT_SUBMASK);
    const std::int64_t frameSize = static_cast<std::int64_t>(depth.bytes) * info.channels;
    const bool fits = info.frames <= kLargestWav / frameSize;
    return {(fits ? SF_FORMAT_WAV : SF_FORMAT_RF64) | depth.subtype, depth.form};
}

} // namespace xbr::host
