#include "host/app/publishing/releaseplan.h"

#include <QByteArrayView>
#include <QStringDecoder>

#include <algorithm>

namespace xbr::host {

namespace {

bool isUtf8(const std::string& text) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded = decoder(QByteArrayView(text));
    return !decoder.hasError() && decoded.size() <= static_cast<qsizetype>(text.size());
}

bool isControl(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7F;
}

} // namespace

std::string problemOfText(const std::string& name, const std::string& text) {
    if (text.find_first_not_of(' ') == std::string::npos) {
        return name + " is empty; leave it out to keep what the file's tags say";
    }
    if (!isUtf8(text)) {
        return name + " is not UTF-8";
    }
    return std::any_of(text.begin(), text.end(), &isControl) ? name + " holds a line break or another "
                                                                      "control character"
                                                             : "";
}

} // namespace xbr::host
