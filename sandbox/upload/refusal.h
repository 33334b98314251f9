#pragma once

#include <stdexcept>
#include <string>

namespace sandbox {

// Thrown by the checks of an upload: why the service does not take it, in words for the sender.
class Refusal : public std::runtime_error {
public:
    Refusal(int status, const std::string& text) : std::runtime_error(text), m_status(status) {}

    int status() const { return m_status; }

private:
    int m_status;
};

} // namespace sandbox
