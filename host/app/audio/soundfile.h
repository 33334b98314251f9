#pragma once

#include "host/base/problem.h"

#include <sndfile.h>

#include <cstdint>
#include <string>
#include <utility>

namespace xbr::host {

/// A file that libsndfile reads or writes. Closes with this object.
class SoundFile {
public:
    /// Opens audio for reading. A problem when it is none that can be read (kNotAudio), holds less than it
    /// says (kCutShort), or has a rate that no audio has (kWrongRate); `words` go on after the file's name.
    /// Files without a header are refused: they could be anything.
    static Outcome<SoundFile> open(const std::string& path);

    /// Creates a file, replacing an old one.
    static Outcome<SoundFile> create(const std::string& path, const SF_INFO& info);

    SoundFile(SoundFile&& other) noexcept
        : m_file(std::exchange(other.m_file, nullptr)),
          m_info(other.m_info) {}
    SoundFile& operator=(SoundFile&&) = delete;
    ~SoundFile();

    SNDFILE* handle() const { return m_file; }
    const SF_INFO& info() const { return m_info; }

    /// What went wrong last, in the library's words.
    std::string lastError() const;

    /// Writes what is still to be written; false when that fails.
    bool close();

private:
    SoundFile(SNDFILE* file, const SF_INFO& info) : m_file(file), m_info(info) {}

    SNDFILE* m_file;
    SF_INFO m_info;
};

/// Reads all samples in floating point, where they can be none: kNotNumbers when one is not finite.
Problem findNotNumbers(const SoundFile& file, const std::string& path);

/// In which form samples travel without loss from a format to another.
enum class SampleForm : std::uint8_t { kInteger, kFloat, kDouble };

/// The WAV format that keeps what the audio has.
struct WavFormat {
    int format = 0; ///< of libsndfile
    SampleForm samples = SampleForm::kInteger;
};

/// Chooses the format for audio of `info`: the same depth; floating point stays so; what was compressed with
/// loss gets 24 bits. What would not fit into the 4 GiB of a WAV file becomes RF64 (EBU Tech 3306), as
/// workstations write it.
WavFormat wavFormatFor(const SF_INFO& info);

} // namespace xbr::host
