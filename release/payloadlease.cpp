#include "release/payloadlease.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace brindlex {

namespace {

struct Lessees {
    const PayloadLease* holder = nullptr;
    std::vector<const PayloadLease*> waiting;
};

Lessees& lessees() {
    static Lessees instance;
    return instance;
}

} // namespace

PayloadLease::PayloadLease(std::function<void()> onFree) : m_onFree(std::move(onFree)) {}

PayloadLease::~PayloadLease() {
    std::erase(lessees().waiting, this);
    giveBack();
}

bool PayloadLease::isHeld() const {
    return lessees().holder == this;
}

bool PayloadLease::take() {
    auto& [holder, waiting] = lessees();
    if (!holder) {
        holder = this;
    } else if (holder != this && std::find(waiting.begin(), waiting.end(), this) == waiting.end()) {
        waiting.push_back(this);
    }
    return holder == this;
}

// NOLINTNEXTLINE(readability-make-member-function-const): what it changes lies outside of the object
void PayloadLease::giveBack() {
    if (!isHeld()) {
        return;
    }
    lessees().holder = nullptr;
    // All of them: the first one may have nothing left to send.
    for (const PayloadLease* each : std::exchange(lessees().waiting, {})) {
        each->m_onFree();
    }
}

} // namespace brindlex
