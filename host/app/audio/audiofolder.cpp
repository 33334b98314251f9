#include "host/app/audio/audiofolder.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

namespace xbr::host {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostFiles = 10000;

bool isAudio(const fs::directory_entry& entry) {
    std::error_code failed;
    std::string extension = entry.path().extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char letter) { return std::tolower(letter); });
    const auto& known = audioExtensions();
    return !extension.empty() && std::find(known.begin(), known.end(), extension.substr(1)) != known.end() &&
           entry.is_regular_file(failed);
}

template <class Iterator>
std::error_code collect(const std::string& folder, std::vector<std::string>& files) {
    std::error_code failed;
    Iterator entry(folder, failed);
    while (!failed && entry != Iterator() && files.size() < kMostFiles) {
        if (isAudio(*entry)) {
            files.push_back(entry->path().string());
        }
        entry.increment(failed);
    }
    return failed;
}

} // namespace

const std::vector<std::string>& audioExtensions() {
    static const std::vector<std::string> extensions{"wav", "w64", "aif", "aiff", "aifc", "flac",
                                                     "mp3", "ogg", "oga", "caf",  "au"};
    return extensions;
}

Outcome<std::vector<std::string>> audioFilesIn(const std::string& folder, bool isRecursive) {
    std::vector<std::string> files;
    const std::error_code failed = isRecursive ? collect<fs::recursive_directory_iterator>(folder, files)
                                               : collect<fs::directory_iterator>(folder, files);
    if (failed) {
        return fileProblem(folder, failed.value(), Fault::kUnreadable);
    }
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace xbr::host
