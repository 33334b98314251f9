// Certificates are checked, always.

#include "framework/abi/download.h"
#include "tests/host/net/exchange.h"
#include "tests/host/net/scriptedserver.h"

#include <QProcess>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <openssl/ssl.h>

namespace xbr::host::test {

namespace {

using ::testing::HasSubstr;

class Tls : public ::testing::Test {
protected:
    ~Tls() override { qunsetenv("SSL_CERT_FILE"); }

    /// For a server with a certificate that it signs itself; `subject` is its alternative name, for example
    /// "IP:127.0.0.1".
    ssl_ctx_st* identity(const QString& subject, bool isTrusted = true) {
        const QString file = m_folder.filePath("both.pem");
        QProcess openssl;
        openssl.start("openssl", {"req", "-x509", "-noenc", "-newkey", "ec", "-pkeyopt",
                                  "ec_paramgen_curve:P-256", "-subj", "/CN=throwaway", "-addext",
                                  "subjectAltName=" + subject, "-keyout", file, "-out", file});
        openssl.waitForFinished();
        if (isTrusted) {
            qputenv("SSL_CERT_FILE", file.toUtf8());
        }
        SSL_CTX* context = SSL_CTX_new(TLS_server_method());
        SSL_CTX_use_certificate_file(context, file.toUtf8(), SSL_FILETYPE_PEM);
        SSL_CTX_use_PrivateKey_file(context, file.toUtf8(), SSL_FILETYPE_PEM);
        return context;
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(Tls, onlyTheTrustedCertificateOfTheRightServerWillDo) {
    const struct {
        const char* subject;
        bool isTrusted;
        const char *body, *error;
    } cases[] = {
        {"IP:127.0.0.1", false, "", "The certificate of 127.0.0.1 is not trusted."},
        {"DNS:example.com", true, "", "The certificate of 127.0.0.1 is not trusted."},
        {"IP:127.0.0.1", true, "private", ""},
    };
    for (const auto& [subject, isTrusted, body, error] : cases) {
        const ScriptedServer server(answering(answer(200, "private")), identity(subject, isTrusted));
        const Exchanged result = get(server.url("/?token=hidden"));
        EXPECT_EQ(result.body, body);
        EXPECT_EQ(result.error, error);
    }
}

TEST_F(Tls, documentsStayWithIt) {
    const ScriptedServer plain(answering(answer(200, "changed on the way")));
    const ScriptedServer secure(answering(answer(302, "", "Location: " + plain.url() + "\r\n")),
                                identity("IP:127.0.0.1"));
    Ref<IDownloadTask> task;
    query<IDownloadService>(XBRGetWebService())->createTask(toText(secure.url()), task.out());
    task->start();
    EXPECT_TRUE(runUntil([&] { return task->state() != DownloadState::kRunning; }));
    EXPECT_EQ(task->state(), DownloadState::kFailed);
    EXPECT_EQ(plain.connections(), 0);
}

TEST_F(Tls, otherFailuresAreTold) {
    const ScriptedServer plain([](Peer& peer) {
        peer.read(100);
        peer.send("HTTP/1.1 400 Bad Request\r\n\r\n");
        peer.waitForClose();
    });
    const std::string url = plain.url("/", "https");
    EXPECT_EQ(get(url).error, "No secure connection to 127.0.0.1 could be made.");
    qputenv("SSL_CERT_FILE", "/nowhere/trusted.pem");
    EXPECT_THAT(get(url).error, HasSubstr("could not be read"));

    // Writing to a closed connection must not raise SIGPIPE, which would end the host.
    const ScriptedServer closing(answering("", &Peer::reset), identity("IP:127.0.0.1"));
    const std::string bytes(std::size_t{16} << 20U, 'b');
    const Exchanged result = exchange(*openRequest("POST", closing.url()), streamOf(bytes).get());
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.error, HasSubstr("127.0.0.1"));
}

} // namespace

} // namespace xbr::host::test
