#pragma once

#include "framework/abi/webservice.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/objects/object.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace xbr::host::test {

/// Runs the event loop until `done`; false when that took longer than `milliseconds`.
bool spinUntil(const std::function<bool()>& done, int milliseconds = 10'000);

/// Runs the event loop for that long.
void spinFor(int milliseconds);

/// A handler that writes down what it hears.
class Recorder final : public Object<IObserver> {
public:
    Recorder() { ++s_alive; }
    ~Recorder() override { --s_alive; }

    void notify(ISubject* subject, IMessage* message) noexcept override;

    /// True when the request has said its last word.
    bool isCompleted() const { return heard("onloadend") + heard("onabort") > 0; }
    int heard(std::string_view name) const;

    std::vector<std::string> names;
    std::vector<double> fractions;
    ISubject* sender = nullptr;
    std::function<void(const std::string& name)> hook; ///< called for each message

    static int alive() { return s_alive; }

private:
    static int s_alive;
};

using Headers = std::vector<std::pair<std::string, std::string>>;

Ref<IWebCredentials> makeCredentials(std::string_view user, std::string_view password,
                                     std::string_view scheme);
Ref<IWebRequest> openRequest(std::string_view method, std::string_view url,
                             const Ref<IWebCredentials>& credentials = {});
Ref<MemoryStream> streamOf(std::string_view bytes);

/// What came of a request.
struct Exchanged {
    int status = -1;
    std::string body;
    std::string error;
    std::vector<std::string> messages;
    std::vector<double> fractions;
};

/// What a completed request answers.
Exchanged resultOf(IWebRequest& request, const Recorder& recorder);

/// Sends a request and waits for its end.
Exchanged exchange(IWebRequest& request, IStream* body = nullptr);
Exchanged get(const std::string& url);

} // namespace xbr::host::test
