#include "host/gui/picture/decodingtask.h"

#include "framework/support/objects/message.h"
#include "host/base/mainthread.h"
#include "host/gui/picture/image.h"

#include <QCoreApplication>
#include <QThreadPool>

#include <atomic>

namespace xbr::host {

namespace {

/// The thread, and the object of the main thread to which it reports. The work ends with the application.
struct Decoder {
    QThreadPool pool;
    QObject arrivals;

    static Decoder& instance() {
        static auto* const decoder = new Decoder; // never destroyed: a thread of it may still have to end
        return *decoder;
    }

    Decoder() {
        pool.setMaxThreadCount(1);
        qAddPostRoutine([] {
            instance().pool.clear();
            instance().pool.waitForDone();
        });
    }
};

} // namespace

Result makeImage(DecodeResult decoded, Picture picture, Ref<IImage>& image) {
    switch (decoded) {
    case DecodeResult::kUnknownFormat:
        return kNotImplemented;
    case DecodeResult::kUnusable:
        return kInvalidArgument;
    case DecodeResult::kNoRoom:
        return kUnexpected;
    default:
        break;
    }
    const auto pixels = std::make_shared<const Pixels>(std::move(picture.pixels));
    image = make<Image>(pixels, picture.size.width(), picture.size.height());
    return kOk;
}

struct DecodingTask::Work {
    Work(QByteArray bytes, std::string ending, std::int64_t pixels, DecodingTask* who)
        : file(std::move(bytes)),
          extension(std::move(ending)),
          maximumPixels(pixels),
          task(who) {}

    QByteArray file;
    std::string extension;
    std::int64_t maximumPixels;
    DecodingTask* task; ///< of the main thread; null when it has gone
    std::atomic<bool> isWanted = true;
    DecodeResult result = DecodeResult::kUnusable;
    Picture picture = {};
};

DecodingTask::DecodingTask(QByteArray file, std::string extension, std::int64_t maximumPixels)
    : m_work(std::make_shared<Work>(std::move(file), std::move(extension), maximumPixels, this)) {
    assertMainThread();
    Decoder::instance().pool.start([work = m_work] {
        if (!work->isWanted) {
            return;
        }
        work->result = decodePicture(work->file, work->extension, work->maximumPixels, work->picture);
        QMetaObject::invokeMethod(
            &Decoder::instance().arrivals,
            [work] {
                if (work->task) {
                    work->task->finish();
                }
            },
            Qt::QueuedConnection);
    });
}

DecodingTask::~DecodingTask() {
    m_work->isWanted = false;
    m_work->task = nullptr;
    XBRGetSignalHandler()->forgetSubject(this);
}

void DecodingTask::finish() {
    const auto self = Ref<DecodingTask>::share(this);
    m_result = makeImage(m_work->result, std::move(m_work->picture), m_image);
    signal(*this, "decoded");
}

Result DecodingTask::getImage(IImage** out) noexcept {
    *out = Ref<IImage>(m_image).detach();
    return m_result;
}

} // namespace xbr::host
