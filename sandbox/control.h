#pragma once

#include "sandbox/http/exchange.h"
#include "sandbox/http/faults.h"
#include "sandbox/http/requestlog.h"
#include "sandbox/pages/grants.h"
#include "sandbox/upload/inbox.h"

namespace sandbox {

// The switches for tests: what is to go wrong, and what happened so far.
class Control {
public:
    Control(Faults& faults, RequestLog& log, const Grants& grants, const Inbox& inbox)
        : m_faults(faults),
          m_log(log),
          m_grants(grants),
          m_inbox(inbox) {}

    Reply addFault(Exchange& exchange);
    Reply clearFaults();
    Reply showLog() const;
    Reply clearLog();
    Reply showState() const;

private:
    Faults& m_faults;
    RequestLog& m_log;
    const Grants& m_grants;
    const Inbox& m_inbox;
};

} // namespace sandbox
