#include "bench/publish/preparation.h"
#include "framework/abi/filesystem.h"
#include "framework/abi/webservice.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/objects/text.h"
#include "host/base/fileurl.h"

#include <QCoreApplication>

#include <cstdio>

namespace bench {

namespace {

class Completion final : public xbr::Object<xbr::IObserver> {
public:
    void notify(xbr::ISubject* /*subject*/, xbr::IMessage* message) noexcept override {
        if (xbr::view(message->name()) != "onprogress") {
            QCoreApplication::quit();
        }
    }
};

xbr::Ref<xbr::MemoryStream> load(const std::string& file) {
    xbr::Ref<xbr::IStream> stream;
    XBRGetFileSystem()->openForReading(xbr::toText(xbr::host::fileUrl(file)), stream.out());
    auto body = xbr::make<xbr::MemoryStream>();
    const auto size = stream ? xbr::measure(*stream) : -1;
    if (size < 0 || !body->writeFrom(*stream, static_cast<std::uint64_t>(size))) {
        return {};
    }
    xbr::rewind(*body);
    return body;
}

} // namespace

int measureUpload(const std::string& file, const std::string& url) {
    const auto body = load(file);
    xbr::Ref<xbr::IWebRequest> request;
    XBRGetWebService()->createRequest(request.out());
    if (!body || request->open(xbr::toText("POST"), xbr::toText(url), nullptr) != xbr::kOk) {
        return 1;
    }
    const auto completion = xbr::make<Completion>();
    const auto start = Clock::now();
    if (request->send(body.get(), completion.get()) != xbr::kOk) {
        return 1;
    }
    QCoreApplication::exec();
    const Milliseconds took = Clock::now() - start;
    std::printf("{\"seconds\": %.4f}\n", took.count() / 1000);
    return request->status() == 200 ? 0 : 1;
}

} // namespace bench
