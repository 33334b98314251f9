#include "host/app/publishing/upload/progresswords.h"

#include "host/app/publishing/verdict/words.h"

namespace xbr::host {

namespace {

std::string joined(const std::string& left, const std::string& right) {
    return left.empty() || right.empty() ? left + right : left + " · " + right;
}

std::string wordsOfLeft(const Amount& amount) {
    return amount.secondsLeft < 0 ? std::string()
                                  : say(Words::tr("%1 left"), wordsOfSeconds(amount.secondsLeft));
}

std::string wordsOfBytes(const Amount& amount) {
    const auto [part, whole] = wordsOfSizes(amount.bytes, amount.total);
    return say(Words::tr("%1 of %2"), part, whole);
}

std::string headlineOf(const UploadProgress& progress) {
    if (progress.isSent()) {
        return say(Words::tr("“%1” is sent. Waiting for the service's answer."), progress.label);
    }
    if (progress.isStuck()) {
        return say(Words::tr("Sending “%1”: no bytes have left for %2 s. Waiting for the connection."),
                   progress.label, std::to_string(progress.quietSeconds));
    }
    return progress.isAlbum ? say(Words::tr("Sending the album “%1”"), progress.label)
                            : say(Words::tr("Sending “%1”, %2 of %3"), progress.label,
                                  std::to_string(progress.index + 1), std::to_string(progress.songs));
}

} // namespace

ProgressWords wordsOf(const UploadProgress& progress) {
    ProgressWords words;
    words.headline = headlineOf(progress);
    words.bytes = wordsOfBytes(progress.song);
    if (progress.bytesPerSecond >= 0 && !progress.isSent()) {
        words.speed = say(Words::tr("%1/s"), wordsOfSize(progress.bytesPerSecond));
    }
    words.left = progress.isSent() ? std::string() : wordsOfLeft(progress.song);
    words.all = say(Words::tr("All: %1"), joined(wordsOfBytes(progress.all), wordsOfLeft(progress.all)));
    return words;
}

std::string wordsOf(const PreparationProgress& progress) {
    const auto [part, whole] = wordsOfSizes(progress.amount.bytes, progress.amount.total);
    return progress.songs == 1
               ? say(Words::tr("Preparing one song: %1 of %2. Nothing is sent yet."), part, whole)
               : say(Words::tr("Preparing %1 songs: %2 of %3. Nothing is sent yet."),
                     std::to_string(progress.songs), part, whole);
}

} // namespace xbr::host
