#include "framework/abi/filesystem.h"
#include "framework/abi/locale.h"
#include "framework/abi/package.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/objects/text.h"
#include "host/base/fileurl.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <vector>

namespace xbr::host::tests {
namespace {

namespace fs = std::filesystem;

/// A module's resources with these files in its translation folder: language code to .qm file.
std::string resourcesWith(const std::vector<std::pair<std::string, fs::path>>& files) {
    const QTemporaryDir folder;
    const fs::path base = folder.path().toStdString();
    const fs::path translations = base / "contents/skin/translations";
    fs::create_directories(translations);
    for (const auto& [language, file] : files) {
        fs::copy_file(file, translations / (language + ".qm"));
    }
    const std::string archive = fileUrl((base / "archive").string());
    Ref<IPackage> package;
    XBRGetPackageHandler()->createPackage(kZipPackage, toText(archive), package.out());
    package->create();
    package->addFolder(toText(fileUrl((base / "contents").string())), kRecursiveRelative, nullptr);
    EXPECT_EQ(package->flush(nullptr), kOk);
    Ref<IStream> stream;
    EXPECT_EQ(XBRGetFileSystem()->openForReading(toText(archive), stream.out()), kOk);
    return readAll(*stream);
}

class LocaleManagerTest : public testing::Test {
protected:
    ~LocaleManagerTest() override {
        XBRGetFileSystem()->unregisterResources(toText("brindlex"));
        setLanguages("");
    }

    static void setLanguages(const std::string& languages) {
        setVariables("C.UTF-8", languages.empty() ? "C" : "nl_NL.UTF-8", languages);
    }
    static void setVariables(const std::string& lang, const std::string& all, const std::string& languages) {
        // NOLINTBEGIN(concurrency-mt-unsafe): one thread
        setenv("LANG", lang.c_str(), 1);
        setenv("LC_ALL", all.c_str(), 1);
        unsetenv("LC_MESSAGES");
        setenv("LANGUAGE", languages.c_str(), 1);
        // NOLINTEND(concurrency-mt-unsafe)
    }
    void add(const std::vector<std::pair<std::string, fs::path>>& files) {
        resources = resourcesWith(files);
        ASSERT_EQ(
            XBRGetFileSystem()->registerResources(toText("brindlex"), resources.data(), resources.size()),
            kOk);
    }
    static std::string translate(std::string_view source, std::string_view module = "brindlex") {
        Ref<ITranslationTable> table;
        Ref<IString> text;
        EXPECT_EQ(XBRGetLocaleManager()->getTable(toText(module), table.out()), kOk);
        EXPECT_EQ(table->translate(toText(source), text.out()), kOk);
        return take(text);
    }

    const fs::path compiled = TRANSLATIONS;
    std::string resources;
};

TEST_F(LocaleManagerTest, PicksTheFirstLanguageThatIsThere) {
    add({{"de", compiled / "de.qm"}, {"pt", compiled / "pt.qm"}, {"pt_BR", compiled / "pt_BR.qm"}});
    const std::vector<std::pair<const char*, const char*>> table = {
        {"de", "Lied"},
        {"de_AT", "Lied"},
        {"pt_BR", "Faixa (BR)"},
        {"pt_PT", "Faixa (PT)"},
        {"pt", "Faixa (PT)"},
        {"ja:de", "Lied"},
        {"en:de", "Track"},
        {"en_GB:pt_BR", "Track"},
        {"ja:pt:de", "Faixa (PT)"},
        {"ja", "Track"},
        {"", "Track"},
    };
    for (const auto& [languages, track] : table) {
        setLanguages(languages);
        EXPECT_EQ(translate("Track"), track) << languages;
    }
    setVariables("pt_BR.UTF-8", "", "");
    EXPECT_EQ(translate("Track"), "Faixa (BR)");
    setVariables("pt_BR.UTF-8", "de_DE@euro", "");
    EXPECT_EQ(translate("Track"), "Lied");
    setVariables("pt_BR.UTF-8", "C", "de"); // the plain locale switches translations off
    EXPECT_EQ(translate("Track"), "Track");
}

TEST_F(LocaleManagerTest, AnswersTheSourceTextWhereThereIsNoTranslation) {
    add({{"de", compiled / "de.qm"}, {"pt", fs::path(__FILE__)}});
    setLanguages("de");
    for (const auto* source : {"Upload & close", "Album", "", "nöt there"}) {
        EXPECT_EQ(translate(source), source);
    }
    EXPECT_EQ(translate("Track", "missing"), "Track");
    setLanguages("pt"); // its file is no translation
    EXPECT_EQ(translate("Track"), "Track");
}

TEST_F(LocaleManagerTest, ATableOutlivesTheResources) {
    add({{"de", compiled / "de.qm"}});
    setLanguages("de");
    Ref<ITranslationTable> table;
    XBRGetLocaleManager()->getTable(toText("brindlex"), table.out());
    XBRGetFileSystem()->unregisterResources(toText("brindlex"));
    resources = std::string();
    Ref<IString> text;
    table->translate(toText("Track"), text.out());
    EXPECT_EQ(take(text), "Lied");
}

} // namespace
} // namespace xbr::host::tests
