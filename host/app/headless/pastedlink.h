#pragma once

#include "host/app/session/hostsession.h"

#include <QSocketNotifier>

#include <string>

namespace xbr::host {

class Output;

/// Takes the browser's link back from the terminal's input while it lives, a line at a time. What is no such
/// link is told. The terminal is left alone while another program has it.
class PastedLink {
public:
    PastedLink(HostSession& session, Output& output);
    PastedLink(const PastedLink&) = delete;
    PastedLink& operator=(const PastedLink&) = delete;
    ~PastedLink() = default;

private:
    void read();
    void take(std::string link);

    HostSession* m_session;
    Output* m_output;
    std::string m_received;
    QSocketNotifier m_notifier;
};

} // namespace xbr::host
