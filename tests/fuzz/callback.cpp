#include "auth/authorizationgrant.h"
#include "framework/abi/filetype.h"
#include "framework/support/objects/text.h"
#include "host/app/process/callbackplace.h"
#include "host/app/process/callbackserver.h"
#include "tests/fuzz/fuzz.h"

#include <QCoreApplication>

#include <algorithm>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

/// Takes every URL, and reads it as the one that the browser was sent to.
class Handler final : public xbr::Object<xbr::IFileHandler> {
public:
    bool openUrl(xbr::Text url) noexcept override {
        opened.emplace_back(xbr::view(url));
        const auto redirect = brindlex::readRedirect(xbr::Url(opened.back()));
        fuzz::expect(redirect.code.find('#') == std::string::npos);
        return true;
    }

    std::vector<std::string> opened;
};

/// The host that waits for a browser.
struct Host final : xbr::host::CallbackServer::Host {
    Host() : server(*this) {
        fuzz::expect(static_cast<bool>(server.start()));
        XBRGetFileTypeRegistry()->addHandler(handler.get());
    }

    std::optional<std::int64_t> waitsForBrowserSince() override { return std::nullopt; }
    bool isHeld() override { return false; }
    void urlCame() override {}

    int count = 0;
    QCoreApplication application{count, nullptr};
    xbr::host::CallbackServer server;
    xbr::Ref<Handler> handler = xbr::make<Handler>();
};

int connectToHost() {
    const std::string path = xbr::host::callbackFolder() + "/" + std::to_string(getpid()) + ".sock";
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof(address.sun_path) - 1);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    fuzz::expect(connect(socket, reinterpret_cast<sockaddr*>(&address), sizeof(address)) == 0);
    return socket;
}

/// Sends the bytes as another process would; what the host answers.
std::string send(std::string_view bytes) {
    const int socket = connectToHost();
    fuzz::expect(write(socket, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()));
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
    }
    std::string answer(3, '\0');
    answer.resize(
        static_cast<std::size_t>(std::max<ssize_t>(::read(socket, answer.data(), answer.size()), 0)));
    close(socket);
    QCoreApplication::processEvents();
    return answer;
}

} // namespace

/// Of what another process sends, one line is taken at most, and nothing but a printable one opened.
void fuzz::read(std::string_view input) {
    static Host host;
    std::string_view rest = input;
    const auto first = takeLine(rest);
    const bool isLine = first.size() < input.size() && first.size() <= xbr::host::kMaximumUrlSize;
    const std::string answer = send(input);
    auto& opened = host.handler->opened;
    expect(answer == (!isLine ? "" : opened.empty() ? "no\n" : "ok\n"));
    expect(opened.size() <= 1 && (opened.empty() || opened.front() == first));
    opened.clear();
}
