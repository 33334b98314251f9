// What the arguments mean, and what the program says of those that make no sense.

#include "host/app/headless/commandline/commandline.h"

#include "tests/fixtures/testfolder.h"

#include <QProcess>
#include <gmock/gmock.h>

#include <regex>

namespace xbr::host {

namespace {

using testing::HasSubstr;
using testing::MatchesRegex;
using Words = std::vector<std::string>;

} // namespace

TEST(CommandLine, takesOptionsInEveryForm) {
    const auto line =
        parseCommandLine({"publish", "-qn", "--album", "a.wav", "--title=A = B", "--track-number", "7", "-",
                          "--artist", "--x", "--genre", "Pop", "--", "-b.wav"});
    ASSERT_TRUE(line) << line.problem().words;
    EXPECT_EQ(line->command, Command::kPublish);
    EXPECT_TRUE(line->isQuiet && line->isDryRun && !line->isJson);
    EXPECT_EQ(line->wish.mode, ReleaseMode::kAlbum);
    EXPECT_EQ(line->wish.genre, "Pop");
    ASSERT_EQ(line->wish.songs.size(), 3U);
    EXPECT_EQ(line->wish.songs[0].title, "A = B");
    EXPECT_EQ(line->wish.songs[0].number, 7);
    EXPECT_EQ(line->wish.songs[1].path, "-");
    EXPECT_EQ(line->wish.songs[1].artist, "--x");
    EXPECT_EQ(line->wish.songs[2].path, "-b.wav");

    const std::tuple<Words, Command, const char*> cases[] = {
        {{}, Command::kWindow, ""},
        {{"--module", "x.so"}, Command::kWindow, ""},
        {{"window", "a.wav", "b.wav"}, Command::kWindow, ""},
        {{"--version"}, Command::kVersion, ""},
        {{"-h"}, Command::kHelp, ""},
        {{"help", "publish"}, Command::kHelp, "publish"},
        {{"publish", "--help"}, Command::kHelp, "publish"},
        {{"genres", "house"}, Command::kGenres, ""},
    };
    for (const auto& [arguments, command, topic] : cases) {
        const auto parsed = parseCommandLine(arguments);
        ASSERT_TRUE(parsed) << parsed.problem().words;
        EXPECT_EQ(parsed->command, command);
        EXPECT_EQ(parsed->topic, topic);
        EXPECT_NE(helpText(parsed->topic), "");
    }
}

TEST(CommandLine, saysWhatMakesNoSense) {
    const std::pair<Words, const char*> cases[] = {
        {{"publsh"}, "There is no command “publsh”. Nearest: publish."},
        {{"help", "statsu"}, "There is no command “statsu”. Nearest: status."},
        {{"publish"}, "publish needs a song, or a folder with songs."},
        {{"publish", "--albun", "a.wav"}, "There is no option “--albun” for “publish”. Nearest: --album."},
        {{"publish", "-x", "a.wav"}, "There is no option “-x” for “publish”."},
        {{"publish", "a.wav", "--module"}, "--module needs a value behind it."},
        {{"publish", "--json=yes", "a.wav"}, "--json takes no value."},
        {{"publish", "--title", "x", "a.wav"}, "--title belongs to the song before it"},
        {{"publish", "--track-number", "1", "a.wav"}, "--track-number belongs to the song before it"},
        {{"publish", "a.wav", "--title", " "}, "--title is empty"},
        {{"publish", "a.wav", "--title", "a\nb"}, "--title holds a line break"},
        {{"publish", "a.wav", "--title", "\xff"}, "--title is not UTF-8."},
        {{"publish", "a.wav", "--title", "x", "--title=y"}, "--title is there twice."},
        {{"publish", "a.wav", "--track-number", "1", "--track-number", "2"},
         "--track-number is there twice."},
        {{"publish", "a.wav", "--track-number", "0"}, "--track-number needs a whole number from 1 to 9999."},
        {{"publish", "a.wav", "--track-number=2x"}, "--track-number needs a whole number from 1 to 9999."},
        {{"publish", "a.wav", "--album-title", "x"}, "need --album"},
        {{"publish", "--genre", "Pop", "--genre", "Pop"}, "--genre is there twice."},
        {{"publish", "--release", "r.json", "a.wav"}, "leave out songs and details"},
        {{"publish", "--release", "r.json", "--album"}, "leave out songs and details"},
        {{"sign-in", "--genre", "Pop"}, "There is no option “--genre” for “sign-in”."},
        {{"window", "--json"}, "There is no option “--json” for “window”."},
        {{"open-url"}, "open-url needs a link."},
        {{"open-url", "a:b", "c:d"}, "“c:d” is one word too many."},
        {{"status", "more"}, "“more” is one word too many."},
    };
    for (const auto& [arguments, words] : cases) {
        const auto line = parseCommandLine(arguments);
        ASSERT_FALSE(line) << words;
        EXPECT_THAT(line.problem().words, HasSubstr(words));
    }
}

TEST(Program, everyErrorHasItsExitCodeAndOneLine) {
    const TestFolder folder;
    const TestVariable runtime("XDG_RUNTIME_DIR", folder.path());
    const std::pair<QStringList, int> cases[] = {
        {{"unknown"}, 2},
        {{"publish", "--release", "/none.json"}, 2},
        {{"open-url", QString(9000, 'x')}, 2},
        {{"publish", "--module", "/none.so", "a.wav"}, 4},
        {{"open-url", "brindlex://authorize?code=1"}, 8},
    };
    for (const auto& [arguments, exitCode] : cases) {
        QProcess process;
        process.start(TEST_PROGRAM, arguments);
        process.waitForFinished();
        EXPECT_EQ(process.exitCode(), exitCode) << arguments.join(' ').toStdString();
        EXPECT_EQ(process.readAllStandardOutput(), "");
        EXPECT_THAT(process.readAllStandardError().toStdString(), MatchesRegex("xbrhost: [^\n]+\n"));
    }
}

TEST(Program, manualAndCompletionsTellEveryOptionAndExitCode) {
    const auto contents = [](const char* name) { return readFile(std::string(TEST_PACKAGING "/") + name); };
    const std::string manual = std::regex_replace(contents("xbrhost.1"), std::regex(R"(\\-)"), "-");
    const std::pair<std::string, std::string> texts[] = {{manual, "--"},
                                                         {contents("completions/xbrhost.bash"), "--"},
                                                         {contents("completions/_xbrhost"), "--"},
                                                         {contents("completions/xbrhost.fish"), "-l "}};
    const auto forEach = [](const std::string& text, const char* expression, const auto& act) {
        const std::regex pattern(expression);
        for (std::sregex_iterator found(text.begin(), text.end(), pattern), end; found != end; ++found) {
            act(found->str(1));
        }
    };
    const std::string help = helpText("") + helpText("publish");
    forEach(help, "--([a-z-]+)", [&](const std::string& option) {
        for (const auto& [text, start] : texts) {
            EXPECT_TRUE(option == "option" || text.find(start + option) != std::string::npos) << option;
        }
    });
    forEach(help.substr(help.find("Exit codes:")), "(?:^|  )([0-9]+)  [a-z]",
            [&](const std::string& code) { EXPECT_THAT(manual, HasSubstr(".B " + code + "\n")); });
    forEach(help, "([^\n]*)", [](const std::string& line) { EXPECT_LE(line.size(), 80U) << line; });
}

} // namespace xbr::host
