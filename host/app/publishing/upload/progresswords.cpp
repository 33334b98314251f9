#include "host/app/publishing/upload/progresswords.h"

#include "host/app/publishing/words.h"

namespace xbr::host {

namespace {

std::string joined(const std::string& left, const std::string& right) {
    return left.empty() || right.empty() ? left + right : left + " · " + right;
}

std::string wordsOfLeft(const Amount& amount) {
    return amount.secondsLeft < 0 ? std::string()
                                  : say(QCoreApplication::translate("xbr::host::Words", "%1 left"),
                                        wordsOfSeconds(amount.secondsLeft));
}

std::string wordsOfBytes(const Amount& amount) {
    const auto [part, whole] = wordsOfSizes(amount.bytes, amount.total);
    return say(QCoreApplication::translate("xbr::host::Words", "%1 of %2"), part, whole);
}

std::string headlineOf(const UploadProgress& progress) {
    if (progress.isSent()) {
        return say(QCoreApplication::translate("xbr::host::Words",
                                               "“%1” is sent. Waiting for the service's answer."),
                   progress.label);
    }
    if (progress.isStuck()) {
        return say(
            QCoreApplication::translate(
                "xbr::host::Words", "Sending “%1”: no bytes have left for %2 s. Waiting for the connection."),
            progress.label, std::to_string(progress.quietSeconds));
    }
    return progress.isAlbum
               ? say(QCoreApplication::translate("xbr::host::Words", "Sending the album “%1”"),
                     progress.label)
               : say(QCoreApplication::translate("xbr::host::Words", "Sending “%1”, %2 of %3"),
                     progress.label, std::to_string(progress.index + 1), std::to_string(progress.songs));
}

} // namespace

std::string wordsOfSeconds(std::int64_t seconds) {
    static constexpr std::int64_t kMinute = 60;
    const std::int64_t minutes = (seconds + kMinute - 1) / kMinute;
    if (seconds < kMinute) {
        return say(QCoreApplication::translate("xbr::host::Words", "%1 s"), std::to_string(seconds));
    }
    return minutes < kMinute
               ? say(QCoreApplication::translate("xbr::host::Words", "%1 min"), std::to_string(minutes))
               : say(QCoreApplication::translate("xbr::host::Words", "%1 h %2 min"),
                     std::to_string(minutes / kMinute), std::to_string(minutes % kMinute));
}

ProgressWords wordsOf(const UploadProgress& progress) {
    ProgressWords words;
    words.headline = headlineOf(progress);
    words.bytes = wordsOfBytes(progress.song);
    if (progress.bytesPerSecond >= 0 && !progress.isSent()) {
        words.speed = say(QCoreApplication::translate("xbr::host::Words", "%1/s"),
                          wordsOfSize(progress.bytesPerSecond));
    }
    words.left = progress.isSent() ? std::string() : wordsOfLeft(progress.song);
    words.all = say(QCoreApplication::translate("xbr::host::Words", "All: %1"),
                    joined(wordsOfBytes(progress.all), wordsOfLeft(progress.all)));
    return words;
}

std::string wordsOf(const PreparationProgress& progress) {
    const auto [part, whole] = wordsOfSizes(progress.amount.bytes, progress.amount.total);
    return progress.songs == 1
               ? say(QCoreApplication::translate("xbr::host::Words",
                                                 "Preparing one song: %1 of %2. Nothing is sent yet."),
                     part, whole)
               : say(QCoreApplication::translate("xbr::host::Words",
                                                 "Preparing %1 songs: %2 of %3. Nothing is sent yet."),
                     std::to_string(progress.songs), part, whole);
}

} // namespace xbr::host
