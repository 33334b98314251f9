#pragma once

#include "host/app/publishing/plan.h"
#include "host/app/settings/configurationstore.h"
#include "host/base/problem.h"

#include <QCoreApplication>
#include <QString>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

// Sentences for the user, in the user's language where the front end brought one. Both front ends show them
// word for word.

namespace xbr::host {

/// Translates what both front ends say.
class Words {
    Q_DECLARE_TR_FUNCTIONS(Words)
};

/// A translated text with what belongs in its places: "%1" is the first argument. What an argument holds is
/// not looked at for places of its own.
template <class... Texts>
std::string say(const QString& text, const Texts&... arguments) {
    if constexpr (sizeof...(arguments) == 0) {
        return text.toStdString();
    } else {
        return text.arg(QString::fromStdString(arguments)...).toStdString();
    }
}

/// "song title, genre"
std::string wordsOf(const std::vector<Detail>& details);

/// Why a file cannot be published: a sentence.
std::string wordsOfFile(const Problem& problem);

/// What is missing or wrong in the settings: a sentence.
std::string wordsOf(const ConfigurationReport& report);

/// What is worth knowing about a plan: a sentence, without what it means for the rest.
std::string wordsOf(const Finding& finding);

/// "9.41 MB": three digits, in units of 1000.
std::string wordsOfSize(std::int64_t bytes);

/// Two sizes in one unit: {"38.6", "94.1 MB"}.
std::pair<std::string, std::string> wordsOfSizes(std::int64_t part, std::int64_t whole);

/// "3:07"; empty when it is unknown.
std::string wordsOfLength(std::int64_t milliseconds);

/// "12 s", "3 min", "1 h 20 min": rounded up.
std::string wordsOfSeconds(std::int64_t seconds);

/// A day, as people here write it, of seconds since 1970.
std::string wordsOfDate(std::int64_t seconds);

/// Of a song that was published before.
std::string wordsOfPublished(const std::string& song, std::int64_t time);

/// Why a service cannot be reached: its own words, or the status of the answer; without a full stop.
std::string reasonOf(const Problem& problem);
std::string wordsOfServer(const Problem& problem);

/// The service's own words as they may be shown: plain, one line, 200 characters at most.
std::string quoted(const std::string& said);

} // namespace xbr::host
