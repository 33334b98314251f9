#include "sandbox/upload/metadata.h"

#include "sandbox/upload/refusal.h"

#include <gtest/gtest.h>

#include <string>

namespace {

const std::string kGood =
    R"({"external_release_id":"","client_id":"c","title":"Night","various":"true",)"
    R"("main_artists":[{"name":"Lamps"}],"primary_genre":"Pop","songs":[)"
    R"({"title":"One","audio_filename":"1.wav","artists":[{"name":"L","roles":["Main Artist"]}],)"
    R"("track_number":-3},)"
    R"({"title":"Two","audio_filename":"2.wav","artists":[{"name":"L","roles":["Main Artist"]}]}]})";

// The good document with one stretch of text replaced by another.
std::string with(const std::string& part, const std::string& other) {
    auto text = kGood;
    const auto at = text.find(part);
    EXPECT_NE(at, std::string::npos) << part;
    return text.replace(at, part.size(), other);
}

// The refusal's status and text; 0 when the document is taken.
std::pair<int, std::string> outcome(const std::string& text) {
    try {
        sandbox::checkMetadata(text, "c");
        return {0, ""};
    } catch (const sandbox::Refusal& refusal) {
        return {refusal.status(), refusal.what()};
    }
}

TEST(Metadata, NamesTheAudioFiles) {
    EXPECT_EQ(sandbox::checkMetadata(kGood, "c").audioFiles, (std::set<std::string>{"1.wav", "2.wav"}));
    EXPECT_EQ(outcome(with(R"("various":"true",)", "")).first, 0);
    EXPECT_EQ(outcome(with("2.wav", "1.wav")).first, 0); // two songs may share a file
}

TEST(Metadata, TellsWhichRequiredPropertiesAreMissing) {
    const struct {
        std::string text;
        std::string name;
    } cases[] = {
        {with(R"("title":"Night",)", ""), "'title'"},
        {with(R"({"name":"Lamps"})", "{}"), "'main_artists[0].name'"},
        {with(R"("primary_genre":"Pop",)", ""), "'primary_genre'"},
        {with(R"("name":"L",)", ""), "'songs[0].artists[0].name'"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(outcome(c.text),
                  std::make_pair(422, "Release metadata did not contain a required property: " + c.name));
    }
}

TEST(Metadata, RefusesAnotherShape) {
    const std::string cases[] = {
        "",
        "[]",
        "{",
        "\xff",
        std::string(100000, '['),
        with(R"("external_release_id":"",)", ""),
        with(R"("external_release_id":"")", R"("external_release_id":"7")"),
        with(R"("client_id":"c")", R"("client_id":"d")"),
        with(R"("title":"Night")", R"("title":"")"),
        with(R"("title":"Night")", R"("title":7)"),
        with(R"("title":"Night")", R"("title":"Night","title":"Day")"),                     // twice
        with(R"("title":"Night")", R"("titel":"Night")"),                                   // unknown key
        with(R"("title":"Night","various":"true")", R"("various":"true","title":"Night")"), // order
        with(R"("various":"true")", R"("various":true)"),
        with(R"([{"name":"Lamps"}])", "[]"),
        with(R"([{"name":"Lamps"}])", R"([{"name":"Lamps"},{"name":"L"}])"),
        with(R"({"name":"Lamps"})", R"({"name":"Lamps","roles":["Main Artist"]})"),
        with(R"("title":"One",)", ""),
        with("1.wav", "../1.wav"),
        with("1.wav", ".."),
        with("1.wav", ""),
        with("1.wav", "a\\\\b.wav"),
        with(R"(["Main Artist"])", R"(["Main Artist","Remixer"])"),
        with(R"(["Main Artist"])", R"("Main Artist")"),
        with("-3", "1.5"),
        with("-3", "\"1\""),
        kGood.substr(0, kGood.find("\"songs\"")) + R"("songs":[]})",
    };
    for (const auto& text : cases) {
        EXPECT_EQ(outcome(text).first, 400) << text.substr(0, 300);
    }
}

} // namespace
