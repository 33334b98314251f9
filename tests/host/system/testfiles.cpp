#include "tests/host/system/testfiles.h"

#include "host/base/fileurl.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>
#include <sys/resource.h>

namespace xbr::host::tests {

TestFolder::TestFolder() : m_path(m_folder.path().toStdString()) {}

std::string TestFolder::url(const std::string& name) const {
    return fileUrl((m_path / name).string());
}

void writeFile(const std::filesystem::path& path, const std::string& bytes) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

void writeSparseFile(const std::filesystem::path& path, std::uint64_t size) {
    writeFile(path, "");
    std::filesystem::resize_file(path, size);
}

std::string readFile(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> namesIn(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string noise(std::size_t size) {
    std::mt19937 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same bytes in each run
    std::string bytes(size, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random()); });
    return bytes;
}

FileSizeLimit::FileSizeLimit(std::uint64_t bytes) {
    XBRGetFileSystem(); // which keeps the signal away that would end the process
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    m_before = limit.rlim_cur;
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
}

FileSizeLimit::~FileSizeLimit() {
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = m_before;
    setrlimit(RLIMIT_FSIZE, &limit);
}

} // namespace xbr::host::tests
