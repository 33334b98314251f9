#pragma once

#include <QTemporaryDir>

#include <functional>
#include <string>
#include <string_view>

namespace xbr::host {

/// A folder for the files of one test.
class TestFolder {
public:
    std::string path(const std::string& name = {}) const;

    /// Writes a file, with the folders above it, and answers its path.
    std::string write(const std::string& name, std::string_view bytes) const;

private:
    QTemporaryDir m_folder;
};

/// An environment variable for the time of one test.
class TestVariable {
public:
    TestVariable(const char* name, const std::string& value) : m_name(name) {
        qputenv(name, QByteArray::fromStdString(value));
    }
    TestVariable(const TestVariable&) = delete;
    TestVariable& operator=(const TestVariable&) = delete;
    ~TestVariable() { qunsetenv(m_name); }

private:
    const char* m_name;
};

/// Runs the event loop until the condition holds; false when that takes more than some seconds.
bool runUntil(const std::function<bool()>& condition, int milliseconds = 10000);

} // namespace xbr::host
