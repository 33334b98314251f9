#include "host/text/localemanager.h"

#include "framework/abi/filesystem.h"
#include "framework/abi/textformats.h"
#include "framework/support/objects/text.h"
#include "host/base/languages.h"
#include "host/base/qttext.h"
#include "host/text/streams.h"

#include <QDateTime>
#include <QList>
#include <QLocale>
#include <QString>
#include <QTranslator>

#include <cstdlib>

xbr::Result XBRFoldCase(xbr::Text text, xbr::IString** out) noexcept {
    // By code point: QChar folds simply, one code point to one; what QString does to a whole text may change.
    auto codePoints = xbr::host::toQString(text).toUcs4();
    for (auto& codePoint : codePoints) {
        codePoint = QChar::toCaseFolded(codePoint);
    }
    const auto* folded = reinterpret_cast<const char32_t*>(codePoints.constData());
    return xbr::giveText(QString::fromUcs4(folded, codePoints.size()).toStdString(), out);
}

namespace xbr::host {

namespace {

class TranslationTable final : public Object<ITranslationTable> {
public:
    /// `file` is the contents of a .qm file; one that is damaged or empty makes an empty table.
    TranslationTable(std::string module, std::string file)
        : m_context(std::move(module)),
          m_file(std::move(file)) {
        // The translator refers to these bytes.
        [[maybe_unused]] const bool isLoaded =
            m_translator.load(reinterpret_cast<const uchar*>(m_file.data()), static_cast<int>(m_file.size()));
    }

    Result translate(Text source, IString** out) noexcept override {
        const std::string text = toString(source);
        const QString translation = m_translator.translate(m_context.c_str(), text.c_str());
        return giveText(translation.isNull() ? text : translation.toStdString(), out);
    }

private:
    std::string m_context;
    std::string m_file;
    QTranslator m_translator;
};

std::string readTranslations(const std::string& module) {
    static constexpr std::uint64_t kLimit = std::uint64_t{16} << 20U;
    const std::string folder = "resource://" + module + "/skin/translations/";
    for (const auto& name : wantedLanguages()) {
        const std::string url = folder + name + ".qm";
        Ref<IStream> stream;
        if (XBRGetFileSystem()->openForReading(toText(url), stream.out()) == kOk) {
            return readUpTo(*stream, kLimit).bytes;
        }
    }
    return {};
}

constexpr int kFirstYear = 1;
constexpr int kLastYear = 9999;

/// Rationale: QLocale::system() reads the environment by the same rules, and keeps the first answer for ever.
QLocale dateLocale() {
    for (const auto* variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const char* value =
            std::getenv(variable); // NOLINT(concurrency-mt-unsafe): nothing in the host sets variables
        if (value && *value != '\0') {
            return QLocale(QString::fromUtf8(value));
        }
    }
    return QLocale::c();
}

} // namespace

Result LocaleManager::getTable(Text module, ITranslationTable** out) noexcept {
    std::string name = toString(module);
    std::string file = readTranslations(name);
    *out = make<TranslationTable>(std::move(name), std::move(file)).detach();
    return kOk;
}

Result LocaleManager::getLocalDate(std::int64_t time, Date* out) noexcept {
    return localDate(time, *out);
}

Result LocaleManager::formatDate(const Date& date, std::int32_t format, IString** out) noexcept {
    return formattedDate(date, format, out);
}

Result localDate(std::int64_t time, Date& out) {
    static constexpr std::int64_t kFarthest = 400'000'000'000; // beyond any year that is answered
    if (time < -kFarthest || time > kFarthest) {
        return kInvalidArgument;
    }
    const QDate date = QDateTime::fromSecsSinceEpoch(time).date();
    if (!date.isValid() || date.year() < kFirstYear || date.year() > kLastYear) {
        return kInvalidArgument;
    }
    out = {date.year(), date.month(), date.day()};
    return kOk;
}

Result formattedDate(const Date& date, std::int32_t format, IString** out) {
    *out = nullptr;
    const QDate day(date.year, date.month, date.day);
    if (!day.isValid() || date.year < kFirstYear || date.year > kLastYear) {
        return kInvalidArgument;
    }
    if (format != IDateFormats::kLongDate) {
        return kNotImplemented;
    }
    return giveText(dateLocale().toString(day, QLocale::LongFormat).toStdString(), out);
}

} // namespace xbr::host

xbr::ILocaleManager* XBRGetLocaleManager() noexcept {
    // Never destroyed: modules may still call while the process ends.
    static auto* const manager = xbr::make<xbr::host::LocaleManager>().detach();
    return manager;
}
