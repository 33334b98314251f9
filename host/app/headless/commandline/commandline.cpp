#include "host/app/headless/commandline/commandline.h"

#include "host/app/publishing/verdict/words.h"
#include "host/base/nearness.h"
#include "host/base/textscan.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace xbr::host {

namespace {

struct CommandName {
    const char* name;
    Command command;
};

constexpr CommandName kCommands[] = {
    {"window", Command::kWindow},    {"publish", Command::kPublish},  {"genres", Command::kGenres},
    {"sign-in", Command::kSignIn},   {"sign-out", Command::kSignOut}, {"status", Command::kStatus},
    {"open-url", Command::kOpenUrl}, {"help", Command::kHelp},
};

constexpr unsigned only(Command command) {
    return 1U << static_cast<unsigned>(command);
}
constexpr unsigned kPublish = only(Command::kPublish);
constexpr unsigned kAlways = ~0U;
constexpr unsigned kConsole = kAlways & ~only(Command::kWindow); ///< what is told goes to the output
constexpr unsigned kModule = kAlways & ~only(Command::kOpenUrl) & ~only(Command::kHelp);

/// An option that is there or not.
struct Switch {
    const char* name;
    char letter; ///< 0 for none
    unsigned commands;
    bool& (*of)(CommandLine&);
};

constexpr Switch kSwitches[] = {
    {"--quiet", 'q', kConsole, [](CommandLine& line) -> bool& { return line.isQuiet; }},
    {"--verbose", 'v', kConsole, [](CommandLine& line) -> bool& { return line.isVerbose; }},
    {"--json", 0, kConsole, [](CommandLine& line) -> bool& { return line.isJson; }},
    {"--album", 0, kPublish, [](CommandLine& line) -> bool& { return line.isAlbum; }},
    {"--recursive", 'r', kPublish, [](CommandLine& line) -> bool& { return line.isRecursive; }},
    {"--dry-run", 'n', kPublish, [](CommandLine& line) -> bool& { return line.isDryRun; }},
    {"--again", 0, kPublish, [](CommandLine& line) -> bool& { return line.wish.sendsAgain; }},
    {"--skip-unreadable", 0, kPublish, [](CommandLine& line) -> bool& { return line.wish.skipsUnreadable; }},
    {"--skip-incomplete", 0, kPublish, [](CommandLine& line) -> bool& { return line.wish.skipsIncomplete; }},
};

/// An option with a text. `of` is null where the option belongs to a song and there is none.
struct TextOption {
    const char* name;
    unsigned commands;
    std::string* (*of)(CommandLine&);
    bool isDetail; ///< part of a release
};

std::vector<SongWish>& songsOf(CommandLine& line) {
    return line.wish.songs;
}

constexpr TextOption kValues[] = {
    {"--module", kModule, [](CommandLine& line) { return &line.module; }, false},
    {"--release", kPublish, [](CommandLine& line) { return &line.releaseFile; }, false},
    {"--as", kPublish, [](CommandLine& line) { return &line.account; }, false},
    {"--album-title", kPublish, [](CommandLine& line) { return &line.wish.albumTitle; }, true},
    {"--album-artist", kPublish, [](CommandLine& line) { return &line.wish.albumArtist; }, true},
    {"--genre", kPublish, [](CommandLine& line) { return &line.wish.genre; }, true},
    {"--title", kPublish,
     [](CommandLine& line) { return songsOf(line).empty() ? nullptr : &songsOf(line).back().title; }, true},
    {"--artist", kPublish,
     [](CommandLine& line) { return songsOf(line).empty() ? nullptr : &songsOf(line).back().artist; }, true},
};
constexpr char kTrackNumber[] = "--track-number";

template <class Table>
const auto* find(const Table& table, const std::string& name) {
    const auto found =
        std::find_if(std::begin(table), std::end(table), [&](const auto& row) { return name == row.name; });
    return found == std::end(table) ? nullptr : &*found;
}

std::string nameOf(Command command) {
    const auto* found = std::find_if(std::begin(kCommands), std::end(kCommands),
                                     [&](const CommandName& row) { return row.command == command; });
    return found == std::end(kCommands) ? "xbrhost" : found->name;
}

std::vector<std::string> optionNames(Command command) {
    std::vector<std::string> names{"--help", "--version"};
    for (const Switch& row : kSwitches) {
        if ((row.commands & only(command)) != 0) {
            names.emplace_back(row.name);
        }
    }
    for (const TextOption& row : kValues) {
        if ((row.commands & only(command)) != 0) {
            names.emplace_back(row.name);
        }
    }
    if (command == Command::kPublish) {
        names.emplace_back(kTrackNumber);
    }
    return names;
}

/// "Nearest: publish." behind a sentence, where something is near.
std::string withNearest(const std::string& sentence, const std::string& typed,
                        const std::vector<std::string>& names) {
    const auto near = nearestTo(typed, names);
    return near.empty() ? sentence : sentence + " " + say(CommandLine::tr("Nearest: %1."), near.front());
}

std::string unknownCommand(const std::string& typed) {
    std::vector<std::string> names;
    for (const CommandName& row : kCommands) {
        names.emplace_back(row.name);
    }
    return withNearest(say(CommandLine::tr("There is no command “%1”."), typed), typed, names);
}

/// Walks through the arguments and fills a command line. What is wrong ends it.
class Parser {
public:
    explicit Parser(const std::vector<std::string>& arguments) : m_rest(arguments.begin(), arguments.end()) {}

    Outcome<CommandLine> parse() {
        takeCommand();
        bool areOptionsOver = false;
        while (m_wrong.empty() && m_next < m_rest.size()) {
            const std::string word = m_rest[m_next++];
            if (areOptionsOver || word.size() < 2 || word.front() != '-') {
                takeWord(word);
            } else if (word == "--") {
                areOptionsOver = true;
            } else if (word[1] == '-') {
                takeOption(word);
            } else {
                takeLetters(word);
            }
        }
        if (m_wrong.empty()) {
            checkAll();
        }
        if (!m_wrong.empty()) {
            return Problem{Fault::kWish, {}, 0, m_wrong, {}, {}};
        }
        return std::move(m_line);
    }

private:
    template <class... Texts>
    void complain(const QString& text, const Texts&... arguments) {
        m_wrong = say(text, arguments...);
    }

    void takeCommand() {
        if (m_rest.empty() || m_rest.front().starts_with('-')) {
            return;
        }
        if (const CommandName* found = find(kCommands, m_rest.front())) {
            m_line.command = found->command;
            m_isNamed = true;
            ++m_next;
        } else {
            m_wrong = unknownCommand(m_rest.front());
        }
    }

    void takeWord(const std::string& word) {
        const bool isMany =
            m_line.command == Command::kWindow || m_line.command == Command::kPublish || m_line.words.empty();
        const bool isNone = m_line.command == Command::kSignIn || m_line.command == Command::kSignOut ||
                            m_line.command == Command::kStatus;
        if (!isMany || isNone) {
            complain(CommandLine::tr("“%1” is one word too many."), word);
        } else if (m_line.command == Command::kPublish) {
            m_line.wish.songs.push_back({word, {}, {}, {}, 0});
        } else {
            m_line.words.push_back(word);
        }
    }

    void takeLetters(const std::string& word) {
        for (const char letter : word.substr(1)) {
            const auto* found = std::find_if(std::begin(kSwitches), std::end(kSwitches),
                                             [&](const Switch& row) { return row.letter == letter; });
            takeOption(letter == 'h' ? "--help" : found == std::end(kSwitches) ? word : found->name);
        }
    }

    // NOLINTNEXTLINE(readability-function-cognitive-complexity): one question for each kind of option
    void takeOption(const std::string& word) {
        const auto equals = word.find('=');
        const std::string name = word.substr(0, equals);
        const Switch* flag = find(kSwitches, name);
        const TextOption* value = find(kValues, name);
        if (name == "--help" || name == "--version") {
            m_help = name == "--help" ? Command::kHelp : Command::kVersion;
        } else if (flag && isHere(flag->commands)) {
            flag->of(m_line) = true;
        } else if ((value && isHere(value->commands)) || (name == kTrackNumber && isHere(kPublish))) {
            if (equals == std::string::npos && m_next == m_rest.size()) {
                complain(CommandLine::tr("%1 needs a value behind it."), name);
                return;
            }
            takeValue(name, value, equals == std::string::npos ? m_rest[m_next++] : word.substr(equals + 1));
            return;
        } else {
            m_wrong = withNearest(
                say(CommandLine::tr("There is no option “%1” for “%2”."), name, nameOf(m_line.command)), name,
                optionNames(m_line.command));
            return;
        }
        if (equals != std::string::npos) {
            complain(CommandLine::tr("%1 takes no value."), name);
        }
    }

    bool isHere(unsigned commands) const { return (commands & only(m_line.command)) != 0; }

    void takeValue(const std::string& name, const TextOption* value, const std::string& text) {
        if (!value) {
            takeNumber(text);
            return;
        }
        std::string* field = value->of(m_line);
        if (!field) {
            complainOfPlace(name);
        } else if (!field->empty()) {
            complainOfSecond(name);
        } else {
            *field = text;
            m_wrong = value->isDetail ? problemOfText(name, text) : m_wrong;
        }
    }

    void takeNumber(const std::string& text) {
        std::int32_t number = 0;
        const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), number);
        if (failed != std::errc() || end != text.data() + text.size() || number < 1 ||
            number > kMaximumTrackNumber) {
            complain(CommandLine::tr("%1 needs a whole number from 1 to %2."), kTrackNumber,
                     std::to_string(kMaximumTrackNumber));
        } else if (songsOf(m_line).empty()) {
            complainOfPlace(kTrackNumber);
        } else if (std::exchange(songsOf(m_line).back().number, number) != 0) {
            complainOfSecond(kTrackNumber);
        }
    }

    void complainOfPlace(const std::string& name) {
        complain(CommandLine::tr("%1 belongs to the song before it: put it behind a song."), name);
    }

    void complainOfSecond(const std::string& name) { complain(CommandLine::tr("%1 is there twice."), name); }

    /// Looks at all of it together.
    void checkAll() {
        m_line.wish.mode = m_line.isAlbum ? ReleaseMode::kAlbum : ReleaseMode::kSingles;
        if (m_help) {
            m_line.topic = m_isNamed && m_line.command != Command::kHelp ? nameOf(m_line.command) : "";
            m_line.command = *m_help;
        } else if (m_line.command == Command::kHelp && !m_line.words.empty()) {
            m_line.topic = m_line.words.front();
            m_wrong = find(kCommands, m_line.topic) ? "" : unknownCommand(m_line.topic);
        } else if (m_line.command == Command::kOpenUrl && m_line.words.empty()) {
            complain(CommandLine::tr("open-url needs a link."));
        } else if (m_line.command == Command::kPublish) {
            checkPublish();
        }
    }

    void checkPublish() {
        const ReleaseWish& wish = m_line.wish;
        const bool isAboutAlbum = !wish.albumTitle.empty() || !wish.albumArtist.empty();
        if (!m_line.releaseFile.empty()) {
            if (!wish.songs.empty() || m_line.isAlbum || isAboutAlbum || !wish.genre.empty()) {
                complain(
                    CommandLine::tr("--release tells all about the release: leave out songs and details."));
            }
        } else if (wish.songs.empty()) {
            complain(CommandLine::tr("publish needs a song, or a folder with songs."));
        } else if (isAboutAlbum && !m_line.isAlbum) {
            complain(CommandLine::tr(
                "--album-title and --album-artist need --album: a single bears the title and the artist of "
                "its song."));
        }
    }

    std::vector<std::string> m_rest;
    std::size_t m_next = 0;
    bool m_isNamed = false;        ///< the command
    std::optional<Command> m_help; ///< help or the version was asked for with an option
    CommandLine m_line;
    std::string m_wrong;
};

} // namespace

Outcome<CommandLine> parseCommandLine(const std::vector<std::string>& arguments) {
    return Parser(arguments).parse();
}

std::string problemOfText(const std::string& name, const std::string& text) {
    if (text.find_first_not_of(' ') == std::string::npos) {
        return say(CommandLine::tr("%1 is empty; leave it out to keep what the file's tags say."), name);
    }
    if (!isUtf8(text)) {
        return say(CommandLine::tr("%1 is not UTF-8."), name);
    }
    return hasControls(text)
               ? say(CommandLine::tr("%1 holds a line break or another control character."), name)
               : "";
}

} // namespace xbr::host
