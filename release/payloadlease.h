#pragma once

#include <functional>

namespace brindlex {

/// The right to put a payload on disk and to send it. There is one payload folder, so one lease for all
/// panels of the module: taken before a payload is built, given back when the reply to it is judged.
class PayloadLease {
public:
    /// `onFree` hears that a lease that was refused may be asked for again; it must not ask at once, as
    /// others hear it, too.
    explicit PayloadLease(std::function<void()> onFree);
    PayloadLease(const PayloadLease&) = delete;
    PayloadLease& operator=(const PayloadLease&) = delete;
    ~PayloadLease();

    bool isHeld() const;

    /// True when the lease is held now. False while another one holds it: `onFree` is called then, once.
    bool take();

    /// Nothing when it is not held.
    void giveBack();

private:
    std::function<void()> m_onFree;
};

} // namespace brindlex
