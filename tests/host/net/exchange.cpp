#include "tests/host/net/exchange.h"

#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>

namespace xbr::host::test {

int Recorder::s_alive = 0;

bool spinUntil(const std::function<bool()>& done, int milliseconds) {
    QEventLoop loop;
    QElapsedTimer clock;
    clock.start();
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (done() || clock.elapsed() > milliseconds) {
            loop.quit();
        }
    });
    poll.start(1);
    loop.exec();
    return done();
}

void spinFor(int milliseconds) {
    spinUntil([] { return false; }, milliseconds);
}

void Recorder::notify(ISubject* subject, IMessage* message) noexcept {
    const auto name = toString(message->name());
    names.push_back(name);
    sender = subject;
    if (name == "onprogress") {
        fractions.push_back(numberOf(message->argument(0)));
    }
    if (hook) {
        const auto running = hook;
        running(name);
    }
}

int Recorder::heard(std::string_view name) const {
    return static_cast<int>(std::count(names.begin(), names.end(), name));
}

Ref<IWebCredentials> makeCredentials(std::string_view user, std::string_view password,
                                     std::string_view scheme) {
    Ref<IWebCredentials> credentials;
    XBRGetWebService()->createCredentials(credentials.out());
    if (credentials->set(toText(user), toText(password), toText(scheme)) != kOk) {
        return {};
    }
    return credentials;
}

Ref<IWebRequest> openRequest(std::string_view method, std::string_view url,
                             const Ref<IWebCredentials>& credentials) {
    Ref<IWebRequest> request;
    XBRGetWebService()->createRequest(request.out());
    if (request->open(toText(method), toText(url), credentials.get()) != kOk) {
        return {};
    }
    return request;
}

Ref<MemoryStream> streamOf(std::string_view bytes) {
    auto stream = make<MemoryStream>();
    stream->write(bytes);
    rewind(*stream);
    return stream;
}

Exchanged resultOf(IWebRequest& request, const Recorder& recorder) {
    Exchanged result;
    result.status = request.status();
    Ref<IStream> body;
    if (request.getResponseBody(body.out()) == kOk) {
        result.body = readAll(*body);
    }
    Ref<IString> error;
    request.getErrorText(error.out());
    result.error = toString(error->text());
    result.messages = recorder.names;
    result.fractions = recorder.fractions;
    return result;
}

Exchanged exchange(IWebRequest& request, IStream* body) {
    const auto recorder = make<Recorder>();
    if (request.send(body, recorder.get()) != kOk) {
        return {};
    }
    spinUntil([&] { return recorder->isCompleted(); });
    return resultOf(request, *recorder);
}

Exchanged get(const std::string& url) {
    return exchange(*openRequest("GET", url));
}

} // namespace xbr::host::test
