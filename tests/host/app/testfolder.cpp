#include "tests/host/app/testfolder.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <filesystem>
#include <fstream>

namespace xbr::host {

std::string TestFolder::path(const std::string& name) const {
    return m_folder.path().toStdString() + (name.empty() ? "" : "/" + name);
}

std::string TestFolder::write(const std::string& name, std::string_view bytes) const {
    const std::filesystem::path file = path(name);
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
    return file.string();
}

bool runUntil(const std::function<bool()>& condition, int milliseconds) {
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > milliseconds) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 10);
    }
    return true;
}

} // namespace xbr::host
