#include "framework/abi/filetype.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "host/app/process/callbackclient.h"
#include "host/app/process/callbackplace.h"
#include "host/app/process/callbackserver.h"
#include "tests/fixtures/testfolder.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QTimer>
#include <gmock/gmock.h>

#include <filesystem>
#include <future>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace xbr::host {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Takes URLs of one protocol, as a module does.
class FakeHandler final : public Object<IFileHandler> {
public:
    bool openUrl(Text url) noexcept override {
        if (!view(url).starts_with("test:")) {
            return false;
        }
        urls.push_back(toString(url));
        if (const auto act = std::exchange(inside, {})) {
            act();
        }
        return true;
    }
    std::vector<std::string> urls;
    std::function<void()> inside; ///< done by the next one that is taken
};

/// A program that connects by hand and need not be polite.
class Client {
public:
    explicit Client(const std::string& path) : m_socket(socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0)) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        path.copy(address.sun_path, sizeof(address.sun_path) - 1);
        m_isConnected = connect(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
    }
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;
    ~Client() { close(m_socket); }

    bool isConnected() const { return m_isConnected; }
    void send(const std::string& bytes) const { ::send(m_socket, bytes.data(), bytes.size(), MSG_NOSIGNAL); }

    /// Everything until the server closes; "open" when it does not within the time.
    std::string answer(int milliseconds = 5000) const {
        std::string answer;
        const bool isClosed = runUntil(
            [&] {
                char bytes[64];
                const auto count = recv(m_socket, bytes, sizeof(bytes), 0);
                if (count > 0) {
                    answer.append(bytes, static_cast<std::size_t>(count));
                }
                return count == 0 || (count < 0 && errno != EAGAIN);
            },
            milliseconds);
        return isClosed ? answer : "open";
    }

private:
    int m_socket;
    bool m_isConnected = false;
};

/// Another running host, with one answer to the question who waits; without it never heard of again. An
/// answer that ends with "cut" is no whole line.
class OtherHost {
public:
    OtherHost(const std::string& path, std::string answer) : m_answer(std::move(answer)) {
        m_server.listen(QString::fromStdString(path));
        QObject::connect(&m_server, &QLocalServer::newConnection, &m_server, [this] {
            QLocalSocket* socket = m_server.nextPendingConnection();
            QObject::connect(socket, &QLocalSocket::readyRead, socket, [this, socket] { read(*socket); });
        });
    }

    const std::string& answer() const { return m_answer; }
    bool wasSentUrl() const { return m_wasSentUrl; }

private:
    void read(QLocalSocket& socket) {
        const bool isQuestion = socket.readLine() == "?\n";
        m_wasSentUrl = m_wasSentUrl || !isQuestion;
        if (!isQuestion || !m_answer.empty()) {
            const std::string line = m_answer.ends_with("cut") ? m_answer : m_answer + "\n";
            socket.write(isQuestion ? line.c_str() : "ok\n");
            socket.disconnectFromServer();
        }
    }

    std::string m_answer;
    bool m_wasSentUrl = false;
    QLocalServer m_server;
};

class Callbacks : public testing::Test, protected CallbackServer::Host {
protected:
    Callbacks() : m_runtime("XDG_RUNTIME_DIR", m_folder.path()) {
        XBRGetFileTypeRegistry()->addHandler(m_handler.get());
    }
    ~Callbacks() override { XBRGetFileTypeRegistry()->removeHandler(m_handler.get()); }

    bool start() { return static_cast<bool>(m_server.start()); }
    std::string socketPath() const { return m_folder.path("xbrhost/" + std::to_string(getpid()) + ".sock"); }

    /// Sends a URL as another process would, while this one runs its event loop.
    static Delivery sendElsewhere(const std::string& url,
                                  Delivery (*send)(const std::string&) = &sendToHosts) {
        auto result = std::async(std::launch::async, [url, send] { return send(url); });
        runUntil([&] { return result.wait_for(std::chrono::seconds(0)) == std::future_status::ready; });
        return result.get();
    }

    std::optional<std::int64_t> waitsForBrowserSince() override { return m_since; }
    bool isHeld() override { return m_isHeld; }
    void urlCame() override { ++m_told; }

    std::optional<std::int64_t> m_since;
    bool m_isHeld = false;
    int m_told = 0;
    TestFolder m_folder;
    TestVariable m_runtime;
    Ref<FakeHandler> m_handler = make<FakeHandler>();
    CallbackServer m_server{*this};
};

} // namespace

TEST_F(Callbacks, urlReachesTheModule) {
    EXPECT_EQ(sendElsewhere("test:before"), Delivery::kNoHost);
    ASSERT_TRUE(start());
    const std::string longest = "test:" + std::string(kMaximumUrlSize - 5, 'x');
    EXPECT_EQ(sendElsewhere("test:a?code=1"), Delivery::kTaken);
    EXPECT_EQ(sendElsewhere("other:a"), Delivery::kNoHost);
    EXPECT_EQ(sendElsewhere(longest), Delivery::kTaken);
    EXPECT_EQ(sendElsewhere(longest + "x"), Delivery::kTooLong);
    EXPECT_EQ(sendElsewhere("test:a\ntest:b"), Delivery::kTooLong);
    EXPECT_EQ(sendElsewhere(std::string("test:a\0b", 8)), Delivery::kTooLong);
    EXPECT_THAT(m_handler->urls, ElementsAre("test:a?code=1", longest));
    EXPECT_EQ(m_told, 3);
}

TEST_F(Callbacks, onlyOneOrdinaryLineIsTaken) {
    ASSERT_TRUE(start());
    const struct {
        std::string sent;
        const char* answer;
    } cases[] = {
        {"test:a\ntest:b\n", "ok\n"},
        {"\n", "no\n"},
        {"test:a\x1b[2J\n", "no\n"},
        {std::string("test:a\0b\n", 9), "no\n"},
        {"test:a b\n", "no\n"},
        {"test:a\x7F\n", "no\n"},
        {std::string(8193, 'x') + "\n", ""},
        {std::string(100000, 'x'), ""},
    };
    for (const auto& one : cases) {
        const Client client(socketPath());
        client.send(one.sent);
        EXPECT_EQ(client.answer(CallbackServer::kTimeLimit / 2), one.answer) << one.sent.substr(0, 20);
    }
    EXPECT_THAT(m_handler->urls, ElementsAre("test:a"));
    EXPECT_EQ(m_told, 1) << "nothing else came";
}

TEST_F(Callbacks, slowAndSilentConnectionsEnd) {
    ASSERT_TRUE(start());
    const Client silent(socketPath());
    const Client slow(socketPath());
    slow.send("test:a");
    EXPECT_EQ(silent.answer(CallbackServer::kTimeLimit + 2000), "");
    EXPECT_EQ(slow.answer(1000), "");
    EXPECT_THAT(m_handler->urls, IsEmpty());
}

TEST_F(Callbacks, aFloodOfConnectionsIsTurnedAway) {
    ASSERT_TRUE(start());
    std::vector<std::unique_ptr<Client>> clients;
    for (int i = 0; i < CallbackServer::kMaximumConnections; ++i) {
        clients.push_back(std::make_unique<Client>(socketPath()));
        ASSERT_TRUE(clients.back()->isConnected());
        EXPECT_EQ(clients.back()->answer(20), "open");
    }
    EXPECT_EQ(Client(socketPath()).answer(1000), "");
    clients.front()->send("test:a\n");
    EXPECT_EQ(clients.front()->answer(), "ok\n");
    clients.push_back(std::make_unique<Client>(socketPath()));
    QTimer::singleShot(200, [&] { clients.clear(); });
    EXPECT_EQ(sendElsewhere("test:b"), Delivery::kTaken) << "it is tried again";
}

TEST_F(Callbacks, whatComesWaitsWhileModulesMayNotBeCalled) {
    ASSERT_TRUE(start());
    m_isHeld = true;
    const Client client(socketPath());
    client.send("test:a\n");
    EXPECT_EQ(client.answer(100), "open");
    EXPECT_THAT(m_handler->urls, IsEmpty());
    m_isHeld = false;
    m_handler->inside = [&client] { // what a module does may run the event loop
        client.send("test:b\n");
        runUntil([] { return false; }, 50);
    };
    EXPECT_EQ(client.answer(), "ok\n");
    EXPECT_THAT(m_handler->urls, ElementsAre("test:a"));
}

TEST_F(Callbacks, oneHostThatWaitsGetsTheLinkBack) {
    struct Case {
        std::vector<std::string> others; ///< what other hosts answer to the question; empty: they are stopped
        std::optional<std::int64_t> since;
        Delivery delivery;
        bool isOurs;
    };
    const Case cases[] = {{{}, std::nullopt, Delivery::kNoHost, false},
                          {{"no", "no"}, 5, Delivery::kTaken, true},
                          {{"waits 4", "waits x", "waits 9 cut", "nonsense"}, 5, Delivery::kTaken, true},
                          {{"waits 6", "waits 10", "no", "", ""}, 9, Delivery::kTaken, false},
                          {{"", "", "", ""}, 5, Delivery::kTaken, true},
                          {{"waits", "", "no"}, std::nullopt, Delivery::kNoHost, false}};
    ASSERT_TRUE(start());
    for (const Case& each : cases) {
        m_since = each.since;
        m_handler->urls.clear();
        std::vector<std::unique_ptr<OtherHost>> others;
        for (const std::string& answer : each.others) {
            others.push_back(std::make_unique<OtherHost>(
                m_folder.path("xbrhost/" + std::to_string(others.size()) + ".sock"), answer));
        }
        const auto began = std::chrono::steady_clock::now();
        EXPECT_EQ(sendElsewhere("test:a", &sendLinkBack), each.delivery);
        EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(2));
        EXPECT_EQ(m_handler->urls.size(), each.isOurs ? 1U : 0U);
        for (const auto& other : others) {
            EXPECT_EQ(other->wasSentUrl(), !each.isOurs && other->answer() == "waits 10");
        }
    }
    m_since = 5;
    EXPECT_EQ(sendElsewhere("other:a", &sendLinkBack), Delivery::kNoHost) << "it waits, and takes another";
    EXPECT_EQ(sendElsewhere("test:a\nb", &sendLinkBack), Delivery::kTooLong);
}

TEST_F(Callbacks, socketsOfDeadHostsAreRemoved) {
    const std::string stale = m_folder.path("xbrhost/1.sock");
    std::filesystem::create_directory(m_folder.path("xbrhost"));
    chmod(m_folder.path("xbrhost").c_str(), S_IRWXU);
    for (const std::string& path : {stale, socketPath()}) { // ours, too: our number was another's before
        const int dead = socket(AF_UNIX, SOCK_STREAM, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        path.copy(address.sun_path, sizeof(address.sun_path) - 1);
        ASSERT_EQ(bind(dead, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
        close(dead);
    }
    ASSERT_TRUE(start());
    EXPECT_EQ(sendElsewhere("test:a"), Delivery::kTaken);
    EXPECT_FALSE(std::filesystem::exists(stale));
}

TEST_F(Callbacks, aPlantedFolderIsRefused) {
    const std::string folder = m_folder.path("xbrhost");
    std::filesystem::create_directory(folder);
    chmod(folder.c_str(), 0755);
    EXPECT_FALSE(start());
    {
        const OtherHost planted(folder + "/1.sock", "waits 5");
        EXPECT_EQ(sendElsewhere("test:a"), Delivery::kNoHost);
        EXPECT_FALSE(planted.wasSentUrl());
    }
    chmod(folder.c_str(), S_IRWXU);
    if (chown(folder.c_str(), 1, 1) == 0) { // the superuser runs the tests
        EXPECT_FALSE(start()) << "somebody else's";
    }
    std::filesystem::remove(folder);
    std::filesystem::create_directory(m_folder.path("elsewhere"));
    chmod(m_folder.path("elsewhere").c_str(), S_IRWXU);
    std::filesystem::create_symlink(m_folder.path("elsewhere"), folder);
    EXPECT_FALSE(start());
    EXPECT_TRUE(std::filesystem::is_empty(m_folder.path("elsewhere")));
    EXPECT_EQ(sendToHosts("test:a"), Delivery::kNoHost);
}

TEST_F(Callbacks, nothingIsLeftBehind) {
    {
        CallbackServer server(*this);
        ASSERT_TRUE(server.start());
        struct stat status {};
        ASSERT_EQ(stat(socketPath().c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & (S_IRWXG | S_IRWXO), 0U);
    }
    EXPECT_FALSE(std::filesystem::exists(m_folder.path("xbrhost")));
}

} // namespace xbr::host
