// Certificates are checked, always.

#include "framework/abi/download.h"
#include "framework/support/objects/text.h"
#include "tests/host/net/exchange.h"
#include "tests/host/net/scriptedserver.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace xbr::host::test {

namespace {

using ::testing::HasSubstr;

class Tls : public ::testing::Test {
protected:
    ~Tls() override { qunsetenv("SSL_CERT_FILE"); }

    void trust(const TlsIdentity& identity) {
        const std::string path = m_folder.filePath("trusted.pem").toStdString();
        identity.writeCertificate(path);
        qputenv("SSL_CERT_FILE", path.c_str());
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(Tls, trustedCertificateOfTheRightServer) {
    const TlsIdentity identity("IP:127.0.0.1");
    trust(identity);
    const ScriptedServer server(answering(answer(200, "private")), &identity);
    EXPECT_EQ(get(server.url()).body, "private");
}

TEST_F(Tls, wrongCertificates) {
    const TlsIdentity right("IP:127.0.0.1");
    const TlsIdentity elsewhere("DNS:example.com");
    const ScriptedServer unknown(answering(answer(200, "private")), &right);
    const Exchanged untrusted = get(unknown.url("/?token=hidden"));
    EXPECT_EQ(untrusted.status, 0);
    EXPECT_EQ(untrusted.error, "The certificate of 127.0.0.1 is not trusted.");

    trust(elsewhere);
    const ScriptedServer misnamed(answering(answer(200, "private")), &elsewhere);
    EXPECT_EQ(get(misnamed.url()).error, "The certificate of 127.0.0.1 is not trusted.");
}

TEST_F(Tls, documentsStayWithIt) {
    const TlsIdentity identity("IP:127.0.0.1");
    trust(identity);
    const ScriptedServer plain(answering(answer(200, "changed on the way")));
    const ScriptedServer secure(answering(answer(302, "", "Location: " + plain.url() + "\r\n")), &identity);
    Ref<IDownloadTask> task;
    query<IDownloadService>(XBRGetWebService())->createTask(toText(secure.url()), task.out());
    task->start();
    EXPECT_TRUE(spinUntil([&] { return task->state() != DownloadState::kRunning; }));
    EXPECT_EQ(task->state(), DownloadState::kFailed);
    EXPECT_EQ(plain.connections(), 0);
}

TEST_F(Tls, otherFailures) {
    const ScriptedServer plain([](Peer& peer) {
        peer.read(100);
        peer.send("HTTP/1.1 400 Bad Request\r\n\r\n");
        peer.waitForClose();
    });
    const std::string url = "https://127.0.0.1:" + std::to_string(plain.port()) + "/";
    EXPECT_EQ(get(url).error, "No secure connection to 127.0.0.1 could be made.");
    qputenv("SSL_CERT_FILE", "/nowhere/trusted.pem");
    EXPECT_THAT(get(url).error, HasSubstr("could not be read"));
}

TEST_F(Tls, resetInTheMiddleOfABody) {
    // Writing to a closed connection must not raise SIGPIPE, which would end the host.
    const TlsIdentity identity("IP:127.0.0.1");
    trust(identity);
    const ScriptedServer server(
        [](Peer& peer) {
            peer.readHead();
            peer.reset();
        },
        &identity);
    const std::string bytes(std::size_t{16} << 20U, 'b');
    const Exchanged result = exchange(*openRequest("POST", server.url()), streamOf(bytes).get());
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.error, HasSubstr("127.0.0.1"));
}

} // namespace

} // namespace xbr::host::test
