#include "host/app/publishing/verdict/words.h"

#include "host/app/publishing/signin/reachability.h"
#include "host/base/textscan.h"

#include <QDateTime>
#include <QLocale>
#include <QStringList>

#include <array>

namespace xbr::host {

namespace {

QString nameOf(Detail detail) {
    switch (detail) {
    case Detail::kAlbumTitle:
        return Words::tr("album title");
    case Detail::kAlbumArtist:
        return Words::tr("album artist");
    case Detail::kGenre:
        return Words::tr("genre");
    case Detail::kSongTitle:
        return Words::tr("song title");
    case Detail::kSongArtist:
        break;
    }
    return Words::tr("song artist");
}

std::string joined(const std::vector<std::string>& texts) {
    QStringList list;
    for (const std::string& text : texts) {
        list.append(QString::fromStdString(text));
    }
    return list.join(", ").toStdString();
}

std::string wordsOfMissing(const Finding& finding) {
    const std::string details = wordsOf(finding.missing);
    if (!finding.isAlbum) {
        return say(Words::tr("“%1” lacks: %2."), finding.song, details);
    }
    return finding.song.empty() ? say(Words::tr("The album lacks: %1."), details)
                                : say(Words::tr("The album “%1” lacks: %2."), finding.song, details);
}

std::string wordsOfGenre(const Finding& finding) {
    if (finding.isWish) {
        return finding.near.empty()
                   ? say(Words::tr("The service does not know the genre “%1”."), finding.text)
                   : say(Words::tr("The service does not know the genre “%1”. Nearest: %2."), finding.text,
                         joined(finding.near));
    }
    return finding.near.empty()
               ? say(Words::tr("“%1” has the genre “%2”, which the service does not know."), finding.song,
                     finding.text)
               : say(Words::tr("“%1” has the genre “%2”, which the service does not know. Nearest: %3."),
                     finding.song, finding.text, joined(finding.near));
}

struct Unit {
    double bytes;
    const char* name;
};

constexpr std::array kUnits{Unit{1e9, "GB"}, Unit{1e6, "MB"}, Unit{1e3, "kB"}, Unit{1, "B"}};

const Unit& unitFor(std::int64_t bytes) {
    for (const Unit& unit : kUnits) {
        if (static_cast<double>(bytes) >= unit.bytes) {
            return unit;
        }
    }
    return kUnits.back();
}

/// Three digits, but all of those before the point.
QString digits(std::int64_t bytes, const Unit& unit) {
    const double value = static_cast<double>(bytes) / unit.bytes;
    const int decimals = unit.bytes == 1 || value >= 100 ? 0 : (value >= 10 ? 1 : 2);
    return QLocale().toString(value, 'f', decimals);
}

} // namespace

std::string wordsOf(const std::vector<Detail>& details) {
    QStringList list;
    for (const Detail detail : details) {
        list.append(nameOf(detail));
    }
    return list.join(", ").toStdString();
}

std::string wordsOfFile(const Problem& problem) {
    const std::string name = fileNameOf(problem.subject);
    switch (problem.fault) {
    case Fault::kMissing:
        return say(Words::tr("“%1” cannot be published: it is not there."), name);
    case Fault::kUnreadable:
        return problem.words.empty()
                   ? say(Words::tr("“%1” cannot be published: it cannot be read."), name)
                   : say(Words::tr("“%1” cannot be published: it cannot be read (%2)."), name, problem.words);
    case Fault::kNotFile:
        return say(Words::tr("“%1” cannot be published: it is not a file."), name);
    case Fault::kWrongKind:
        return say(Words::tr("“%1” cannot be published: it is %2, not %3 as its name says."), name,
                   problem.found, problem.expected);
    case Fault::kCutShort:
        return problem.found.empty() ? say(Words::tr("“%1” cannot be published: it is cut off."), name)
                                     : say(Words::tr("“%1” cannot be published: it is cut off: %2 of %3."),
                                           name, problem.found, problem.expected);
    case Fault::kWrongRate:
        return say(Words::tr("“%1” cannot be published: its sample rate of %2 cannot be right."), name,
                   problem.found);
    case Fault::kNotNumbers:
        return say(Words::tr("“%1” cannot be published: it holds samples that are not numbers."), name);
    case Fault::kNameNotUtf8:
        return say(Words::tr("“%1” cannot be published: its name is not UTF-8."), name);
    case Fault::kNameControl:
        return say(Words::tr("“%1” cannot be published: its name holds control characters."), name);
    case Fault::kModule:
        return say(Words::tr("“%1” cannot be published: it would have to become %2, which is not possible."),
                   name, problem.expected);
    default:
        return say(Words::tr("“%1” cannot be published: it holds no audio that can be read."), name);
    }
}

std::string wordsOf(const ConfigurationReport& report) {
    if (report.result == ConfigurationResult::kUnreadable) {
        return say(Words::tr("The settings of %1 cannot be read from “%2”."), report.title, report.path);
    }
    if (report.isUnencrypted) {
        return say(Words::tr("%1 is not set up: %2 is not encrypted, and only this computer "
                             "may be reached that way."),
                   report.title, serverOf(report.serverUrl));
    }
    return report.missingKeys.empty()
               ? say(Words::tr("%1 is not set up: %2 is wrong in “%3”, section [%4]."), report.title,
                     joined(report.wrongKeys), report.path, report.id)
               : say(Words::tr("%1 is not set up: %2 is missing in “%3”, section [%4]."), report.title,
                     joined(report.missingKeys), report.path, report.id);
}

std::string wordsOfPublished(const std::string& song, std::int64_t time) {
    return say(Words::tr("“%1” was published from this computer on %2."), song, wordsOfDate(time));
}

std::string wordsOf(const Finding& finding) {
    switch (finding.kind) {
    case Finding::Kind::kUnknownGenre:
        return wordsOfGenre(finding);
    case Finding::Kind::kSameFile:
        return say(Words::tr("“%1” is there twice."), finding.song);
    case Finding::Kind::kUnreadable:
        return wordsOfFile(finding.problem);
    case Finding::Kind::kSameName:
        return say(Words::tr("“%1” and “%2” have the same file name; in an album each song needs its own."),
                   finding.text, finding.path);
    case Finding::Kind::kMissingDetails:
        return wordsOfMissing(finding);
    case Finding::Kind::kPublished:
        return wordsOfPublished(finding.song, finding.time);
    case Finding::Kind::kTwoNumbers:
        break;
    }
    return say(Words::tr("“%1” and “%2” both have the number %3."), finding.text, finding.song,
               std::to_string(finding.number));
}

std::string wordsOfSize(std::int64_t bytes) {
    return wordsOfSizes(0, bytes).second;
}

std::pair<std::string, std::string> wordsOfSizes(std::int64_t part, std::int64_t whole) {
    const Unit& unit = unitFor(whole);
    return {digits(part, unit).toStdString(), (digits(whole, unit) + " " + unit.name).toStdString()};
}

std::string wordsOfSeconds(std::int64_t seconds) {
    static constexpr std::int64_t kMinute = 60;
    const std::int64_t minutes = (seconds + kMinute - 1) / kMinute;
    if (seconds < kMinute) {
        return say(Words::tr("%1 s"), std::to_string(seconds));
    }
    return minutes < kMinute ? say(Words::tr("%1 min"), std::to_string(minutes))
                             : say(Words::tr("%1 h %2 min"), std::to_string(minutes / kMinute),
                                   std::to_string(minutes % kMinute));
}

std::string wordsOfDate(std::int64_t seconds) {
    return QLocale()
        .toString(QDateTime::fromSecsSinceEpoch(seconds).date(), QLocale::ShortFormat)
        .toStdString();
}

std::string wordsOfLength(std::int64_t milliseconds) {
    static constexpr std::int64_t kSecond = 1000;
    static constexpr std::int64_t kMinute = 60;
    if (milliseconds <= 0) {
        return {};
    }
    const std::int64_t seconds = (milliseconds + kSecond / 2) / kSecond;
    const std::int64_t minutes = seconds / kMinute;
    const auto twoDigits = [](std::int64_t number) {
        return (number < 10 ? "0" : "") + std::to_string(number);
    };
    const std::string end = ":" + twoDigits(seconds % kMinute);
    return minutes < kMinute ? std::to_string(minutes) + end
                             : std::to_string(minutes / kMinute) + ":" + twoDigits(minutes % kMinute) + end;
}

std::string reasonOf(const Problem& problem) {
    const std::string words =
        problem.code == 0 ? problem.words : say(Words::tr("it answered %1"), std::to_string(problem.code));
    return words.substr(0, words.size() - (words.ends_with('.') ? 1 : 0));
}

std::string wordsOfServer(const Problem& problem) {
    const std::string reason = reasonOf(problem);
    return problem.fault == Fault::kUntrusted
               ? say(Words::tr("%1 could not prove its identity: %2."), problem.subject, reason)
               : say(Words::tr("The service at %1 cannot be reached: %2."), problem.subject, reason);
}

std::string quoted(const std::string& said) {
    static constexpr std::size_t kMost = 200;
    const QString line = QString::fromStdString(plainText(said)).simplified();
    const std::string text = line.toStdString();
    const std::string_view shown = firstCharacters(text, kMost);
    return shown.size() < text.size() ? std::string(firstCharacters(text, kMost - 1)) + "…"
                                      : std::string(shown);
}

} // namespace xbr::host
