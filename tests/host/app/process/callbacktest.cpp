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
#include <list>
#include <unistd.h>

namespace xbr::host {

namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::IsEmpty;

/// Takes URLs of one protocol, as a module does.
struct FakeHandler final : Object<IFileHandler> {
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
    explicit Client(const std::string& path) { m_socket.connectToServer(QString::fromStdString(path)); }

    void send(const std::string& bytes) { m_socket.write(bytes.data(), static_cast<qint64>(bytes.size())); }

    /// Everything until the server closes; "open" when it does not within the time.
    std::string answer(int milliseconds = 5000) {
        const auto isClosed = [this] { return m_socket.state() == QLocalSocket::UnconnectedState; };
        return runUntil(isClosed, milliseconds) ? m_socket.readAll().toStdString() : "open";
    }

private:
    QLocalSocket m_socket;
};

/// Another running host, with one answer to the question who waits; without it never heard of again. An
/// answer that ends with "cut" is no whole line.
class OtherHost {
public:
    OtherHost(const std::string& path, std::string theAnswer) : answer(std::move(theAnswer)) {
        m_server.listen(QString::fromStdString(path));
        QObject::connect(&m_server, &QLocalServer::newConnection, &m_server, [this] {
            QLocalSocket* socket = m_server.nextPendingConnection();
            QObject::connect(socket, &QLocalSocket::readyRead, socket, [this, socket] { read(*socket); });
        });
    }

    const std::string answer;
    bool wasSentUrl = false;

private:
    void read(QLocalSocket& socket) {
        const bool isQuestion = socket.readLine() == "?\n";
        wasSentUrl = wasSentUrl || !isQuestion;
        if (!isQuestion || !answer.empty()) {
            const std::string line = answer.ends_with("cut") ? answer : answer + "\n";
            socket.write(isQuestion ? line.c_str() : "ok\n");
            socket.disconnectFromServer();
        }
    }

    QLocalServer m_server;
};

class Callbacks : public testing::Test, protected CallbackServer::Host {
protected:
    Callbacks() { XBRGetFileTypeRegistry()->addHandler(m_handler.get()); }
    ~Callbacks() override { XBRGetFileTypeRegistry()->removeHandler(m_handler.get()); }

    bool start() { return static_cast<bool>(m_server.start()); }

    void folderWith(fs::perms permissions) const {
        fs::create_directory(m_folder);
        fs::permissions(m_folder, permissions);
    }

    /// Sends a URL as another process would, while this one runs its event loop.
    static Delivery sendElsewhere(const std::string& url,
                                  Delivery (*send)(const std::string&) = &sendToHosts) {
        auto result = std::async(std::launch::async, [url, send] { return send(url); });
        runUntil([&] { return result.wait_for(std::chrono::seconds(0)) == std::future_status::ready; });
        return result.get();
    }

    std::optional<std::int64_t> waitsForBrowserSince() override {
        return m_isOvertaken ? std::exchange(m_since, std::nullopt) : m_since;
    }
    bool isHeld() override { return m_isHeld; }
    void urlCame() override { ++m_told; }

    std::optional<std::int64_t> m_since;
    bool m_isOvertaken = false; ///< another link comes between the question who waits and the link
    bool m_isHeld = false;
    int m_told = 0;
    TestFolder m_place;
    TestVariable m_runtime{"XDG_RUNTIME_DIR", m_place.path()};
    const std::string m_folder = m_place.path("xbrhost");
    const std::string m_socket = m_folder + "/" + std::to_string(getpid()) + ".sock";
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
    EXPECT_THAT(m_handler->urls, ElementsAre("test:a?code=1", longest));
    EXPECT_EQ(m_told, 3);
}

TEST_F(Callbacks, onlyOneOrdinaryLineIsTaken) {
    ASSERT_TRUE(start());
    const std::pair<std::string, const char*> cases[] = {
        {"test:a\ntest:b\n", "ok\n"}, {"\n", "no\n"},
        {"test:a\x1b[2J\n", "no\n"},  {std::string("test:a\0b\n", 9), "no\n"},
        {"test:a b\n", "no\n"},       {std::string(9000, 'x') + "\n", ""},
    };
    for (const auto& [sent, answer] : cases) {
        Client client(m_socket);
        client.send(sent);
        EXPECT_EQ(client.answer(CallbackServer::kTimeLimit / 2), answer) << sent.substr(0, 20);
    }
    EXPECT_THAT(m_handler->urls, ElementsAre("test:a"));
}

TEST_F(Callbacks, slowAndSilentConnectionsEnd) {
    ASSERT_TRUE(start());
    Client silent(m_socket);
    Client slow(m_socket);
    slow.send("test:a");
    EXPECT_EQ(silent.answer(CallbackServer::kTimeLimit + 2000), "");
    EXPECT_EQ(slow.answer(1000), "");
    EXPECT_THAT(m_handler->urls, IsEmpty());
}

TEST_F(Callbacks, aFloodOfConnectionsIsTurnedAway) {
    ASSERT_TRUE(start());
    std::list<Client> clients;
    for (int i = 0; i < CallbackServer::kMaximumConnections; ++i) {
        clients.emplace_back(m_socket);
    }
    EXPECT_EQ(Client(m_socket).answer(1000), "");
    clients.front().send("test:a\n");
    EXPECT_EQ(clients.front().answer(), "ok\n");
    clients.emplace_back(m_socket);
    QTimer::singleShot(200, [&] { clients.clear(); });
    EXPECT_EQ(sendElsewhere("test:b"), Delivery::kTaken) << "it is tried again";
}

TEST_F(Callbacks, whatComesWaitsWhileModulesMayNotBeCalled) {
    ASSERT_TRUE(start());
    m_isHeld = true;
    Client client(m_socket);
    client.send("test:a\n");
    EXPECT_EQ(client.answer(100), "open");
    EXPECT_THAT(m_handler->urls, IsEmpty());
    m_isHeld = false;
    m_handler->inside = [&client] { // what a module does may run the event loop
        client.send("test:b\n");
        runFor(50);
    };
    EXPECT_EQ(client.answer(), "ok\n");
    EXPECT_THAT(m_handler->urls, ElementsAre("test:a"));
}

TEST_F(Callbacks, oneHostThatWaitsGetsTheLinkBack) {
    const struct {
        std::vector<std::string> others; ///< what other hosts answer to the question; empty: they are stopped
        std::optional<std::int64_t> since;
        Delivery delivery;
        bool isOurs;
    } cases[] = {{{}, std::nullopt, Delivery::kNoHost, false},
                 {{"no", "no"}, 5, Delivery::kTaken, true},
                 {{"waits 4", "waits x", "waits 9 cut", "nonsense"}, 5, Delivery::kTaken, true},
                 {{"waits 6", "waits 10", "no", "", ""}, 9, Delivery::kTaken, false},
                 {{"", "", "", ""}, 5, Delivery::kTaken, true},
                 {{"waits", "", "no"}, std::nullopt, Delivery::kNoHost, false}};
    ASSERT_TRUE(start());
    for (const auto& each : cases) {
        m_since = each.since;
        m_handler->urls.clear();
        std::list<OtherHost> others;
        for (const std::string& answer : each.others) {
            others.emplace_back(m_folder + "/" + std::to_string(others.size()) + ".sock", answer);
        }
        EXPECT_EQ(sendElsewhere("test:a", &sendLinkBack), each.delivery);
        EXPECT_EQ(m_handler->urls.size(), each.isOurs ? 1U : 0U);
        for (const OtherHost& other : others) {
            EXPECT_EQ(other.wasSentUrl, !each.isOurs && other.answer == "waits 10");
        }
    }
    m_since = 5;
    EXPECT_EQ(sendElsewhere("other:a", &sendLinkBack), Delivery::kNoHost) << "it waits, and takes another";
    EXPECT_EQ(sendElsewhere("test:a\nb", &sendLinkBack), Delivery::kTooLong);
}

TEST_F(Callbacks, ofTwoLinksAtOnceEachGoesToAHostThatStillWaits) {
    ASSERT_TRUE(start());
    const OtherHost other(m_folder + "/1.sock", "waits 4");
    m_since = 5;
    m_isOvertaken = true;
    EXPECT_EQ(sendElsewhere("test:a", &sendLinkBack), Delivery::kTaken);
    EXPECT_THAT(m_handler->urls, IsEmpty());
    EXPECT_TRUE(other.wasSentUrl);
}

TEST_F(Callbacks, socketsOfDeadHostsAreRemoved) {
    folderWith(fs::perms::owner_all);
    const std::string stale = m_folder + "/1.sock";
    for (const std::string& path : {stale, m_socket}) { // ours, too: our number was another's before
        QLocalServer dead;
        ASSERT_TRUE(dead.listen(QString::fromStdString(path + ".alive")));
        fs::rename(path + ".alive", path); // which it does not find when it ends
    }
    ASSERT_TRUE(start());
    EXPECT_EQ(sendElsewhere("test:a"), Delivery::kTaken);
    EXPECT_FALSE(fs::exists(stale));
}

TEST_F(Callbacks, aPlantedFolderIsRefused) {
    folderWith(fs::perms(0755));
    EXPECT_FALSE(start());
    {
        const OtherHost planted(m_folder + "/1.sock", "waits 5");
        EXPECT_EQ(sendElsewhere("test:a"), Delivery::kNoHost);
        EXPECT_FALSE(planted.wasSentUrl);
    }
    folderWith(fs::perms::owner_all);
    if (chown(m_folder.c_str(), 1, 1) == 0) { // the superuser runs the tests
        EXPECT_FALSE(start()) << "somebody else's";
    }
    fs::remove(m_folder);
    folderWith(fs::perms::owner_all);
    fs::rename(m_folder, m_place.path("elsewhere"));
    fs::create_symlink("elsewhere", m_folder);
    EXPECT_FALSE(start());
    EXPECT_EQ(sendToHosts("test:a"), Delivery::kNoHost);
}

} // namespace xbr::host
