#include "release/genrecatalogue.h"

#include "framework/support/parts/component.h"
#include "tests/fakehost/fakehost.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace {

constexpr const char* kResource = "resource://brindlex/brindlex_genres.csv";

// The catalogue is filled once per process, so what fills it another way runs in a process of its own.
#define IN_ITS_OWN_PROCESS(check)                   \
    GTEST_FLAG_SET(death_test_style, "threadsafe"); \
    EXPECT_EXIT((check, std::exit(HasFailure() ? 1 : 0)), testing::ExitedWithCode(0), "")

class GenreCatalogueTest : public testing::Test, public xbr::IParameterOwner {
protected:
    GenreCatalogueTest() { fakehost::resetHost(); }

    void load(std::string text) {
        fakehost::host().files.files[kResource] = std::move(text);
        brindlex::loadGenres();
        parameter->setChoices(brindlex::genreNames());
    }

    void trimsLinesAndSkipsBlankOnes() {
        load("  Rock \t\r\n\n   \nJazz");
        EXPECT_EQ(brindlex::genreNames(), (std::vector<std::string>{"", "Rock", "Jazz"}));
        EXPECT_EQ(brindlex::genreTitle(0), "(not set)");
        EXPECT_EQ(brindlex::genreTitle(2), "Jazz");
    }

    void triesOnce() {
        EXPECT_EQ(brindlex::getGenreText(*parameter), "");
        brindlex::loadGenres(); // there is no resource yet
        EXPECT_EQ(brindlex::genreNames(), std::vector<std::string>{""});
        load("Rock");
        EXPECT_EQ(brindlex::genreNames().size(), 1U);
    }

    std::int64_t indexOf(const char* text) {
        parameter->set(xbr::integerValue(0));
        brindlex::getGenreIndex(*parameter, text);
        return parameter->integer();
    }

    void parameterChanged(xbr::Parameter&) override {}

    xbr::Ref<xbr::Parameter> parameter = xbr::make<xbr::Parameter>(static_cast<xbr::IParameterOwner&>(*this),
                                                                   xbr::ParameterKind::kList, 102, "genre");
};

TEST_F(GenreCatalogueTest, ShippedListHasItsNamesInOrder) {
    std::ifstream file(BRINDLEX_GENRES_FILE);
    load({std::istreambuf_iterator<char>(file), {}});
    const auto& names = brindlex::genreNames();
    ASSERT_EQ(names.size(), 135U);
    EXPECT_EQ(names[0], "");
    EXPECT_EQ(names[1], "140 / Deep Dubstep / Grime");
    EXPECT_EQ(names[14], "Ax\xC3\xA9");
    EXPECT_EQ(names[134], "World");
    for (const auto& [text, name] :
         fakehost::Rows<const char*, const char*>{{"rock", "Rock"},
                                                  {"AX\xC3\x89", "Ax\xC3\xA9"},
                                                  {"dubstep", "Dubstep"},
                                                  {"Deep Dub", "140 / Deep Dubstep / Grime"},
                                                  {"Polka", ""},
                                                  {"", ""}}) {
        EXPECT_EQ(names[static_cast<std::size_t>(indexOf(text))], name) << text;
        EXPECT_EQ(brindlex::getGenreText(*parameter), name) << text;
    }
}

TEST_F(GenreCatalogueTest, TrimsLinesAndSkipsBlankOnes) {
    IN_ITS_OWN_PROCESS(trimsLinesAndSkipsBlankOnes());
}

TEST_F(GenreCatalogueTest, WithoutTheResourceThereIsNoGenreAndNoSecondTry) {
    IN_ITS_OWN_PROCESS(triesOnce());
}

} // namespace
