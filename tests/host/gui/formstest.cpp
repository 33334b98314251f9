// The extension's own forms: in every language and state, and as a person uses them.

#include "tests/host/gui/formtest.h"
#include "tests/host/gui/panel.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>

#include <map>

namespace xbr::host::tests {
namespace {

const char* const kNews = "http://127.0.0.1:9/feed.atom"; // nobody serves them

class Forms : public testing::Test {
protected:
    QWidget& openTracks(int count, const char* news = "") {
        QWidget& form = forms->open("BrindlexManager", news);
        forms->panel->setState(Panel::kSignedIn);
        forms->panel->addTracks(count);
        settle();
        return form;
    }
    void focus(std::int32_t row) {
        tracks().model().setSelection(&row, 1);
        tracks().model().setFocus(row);
        settle();
    }
    /// Marks what a row lacks for an upload.
    void validate(std::size_t row) {
        tracks().setCurrentUploadItem(brindlex::TrackItem::from(*tracks().model().items()[row]));
        tracks().validateForUpload(brindlex::Marks::kSet);
        settle();
    }
    brindlex::TrackListComponent& tracks() { return *forms->panel->tracks; }
    template <class Widget = QWidget>
    Widget& at(const char* name) {
        return forms->at<Widget>(name);
    }

    /// Calls `look(name)` in each state that the forms have.
    template <class Look>
    void forEachState(const Look& look) {
        forms->open("BrindlexManager", kNews);
        look("login");
        at<QAbstractButton>("showNews").click();
        EXPECT_TRUE(QTest::qWaitFor([&] { return at("failed").isVisible(); }));
        look("news");
        openTracks(0, kNews);
        look("no tracks");
        openTracks(3, kNews);
        look("no track selected");
        focus(1);
        tracks().editor().findParameter(toText("songTitle"))->setValue(textValue(""));
        validate(1);
        look("all missing");
        forms->open("BrindlexConnectDialog", kNews);
        for (int number = 0; number <= 5; ++number) {
            forms->panel->setState(number);
            settle();
            look("connect " + std::to_string(number));
        }
    }

    std::unique_ptr<PanelForms> forms = std::make_unique<PanelForms>();
};

/// What a screen reader says of a widget.
std::string spoken(QWidget& widget, QAccessible::Text kind) {
    return QAccessible::queryAccessibleInterface(&widget)->text(kind).trimmed().toStdString();
}

/// True when all of a widget's text fits into it.
bool isWhole(const QWidget& widget) {
    const QSize needed = widget.sizeHint();
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const bool isFree = widget.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
    if ((!label && !qobject_cast<const QAbstractButton*>(&widget)) || isFree) {
        return true;
    }
    const bool isWrapped = label && label->wordWrap();
    return widget.height() >= (isWrapped ? label->heightForWidth(label->width()) : needed.height()) &&
           (isWrapped || widget.width() >= needed.width());
}

/// As a language would have it that needs twice the room.
void lengthen(QWidget& form) {
    for (QWidget* widget : form.findChildren<QWidget*>()) {
        const QString text = widget->property("text").toString();
        const bool isFixed = qobject_cast<QLabel*>(widget) || qobject_cast<QAbstractButton*>(widget);
        if (isFixed && !text.isEmpty() && text != widget->property("lengthened").toString()) {
            widget->setProperty("lengthened", text + " " + text);
            widget->setProperty("text", text + " " + text);
        }
    }
}

TEST_F(Forms, areNamedReachedAndSeenWholeInEveryLanguageAndState) {
    for (const std::string language : {"en", "de", "fr", "es", "pt", "ja", "long"}) {
        forms.reset();
        forms = std::make_unique<PanelForms>(language);
        testing::internal::CaptureStderr();
        forEachState([&](const std::string& name) {
            SCOPED_TRACE(language + ", " + name);
            std::map<QString, std::string> keys;
            if (language == "long") {
                lengthen(*forms->form);
            }
            forms->form->resize(forms->form->minimumSizeHint());
            settle();
            for (QWidget* widget : forms->form->findChildren<QWidget*>()) {
                const QString text = widget->property("text").toString();
                const QString key = QKeySequence::mnemonic(text).toString();
                const std::string what = widget->objectName().toStdString() + " " + text.toStdString();
                if (widget->isVisible()) {
                    EXPECT_TRUE(text.isEmpty() || isWhole(*widget)) << what;
                    EXPECT_TRUE(key.isEmpty() || keys.emplace(key, what).second) << what << keys[key];
                    EXPECT_TRUE(widget->focusPolicy() == Qt::NoFocus ||
                                !spoken(*widget, QAccessible::Name).empty())
                        << what << " has no name";
                }
            }
            const int limit = language == "long" ? 670 : 460; // a dock beside a workstation's tracks
            EXPECT_LE(forms->form->minimumSizeHint().width(), limit);
        });
        const std::string warnings = testing::internal::GetCapturedStderr();
        for (const char* warning : {"debug:", "Could not", "does not have a property"}) { // Qt's, the latter
            EXPECT_EQ(warnings.find(warning), std::string::npos) << warnings;
        }
    }
}

TEST_F(Forms, theTabKeyGoesThroughTheUploadPageInReadingOrder) {
    QWidget& form = openTracks(3, kNews);
    focus(1);
    forms->panel->named("upload").setEnabled(true);
    settle();
    const char* const order[] = {"user",        "disconnect",   "singles",    "tracks",      "addTracks",
                                 "removeAll",   "songTitle",    "songArtist", "trackNumber", "albumTitle",
                                 "albumArtist", "primaryGenre", "upload",     "showPublish", "user"};
    at("user").setFocus();
    for (const char* name : order) {
        EXPECT_EQ(form.focusWidget()->objectName().toStdString(), name);
        QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
    }
}

TEST_F(Forms, missingMarksAreThereInWordsAndGoWhenTheFieldIsFilled) {
    openTracks(2);
    focus(0);
    validate(0);
    tracks().setCurrentUploadItem(nullptr); // what is on its way cannot be edited
    settle();
    auto& artist = at<QLineEdit>("songArtist");
    const auto expectMark = [&](const char* style, const char* words) {
        EXPECT_EQ(artist.property("xbrStyle").toString().toStdString(), style);
        EXPECT_EQ(at("songArtistMark").isVisible(), *style != '\0');
        EXPECT_EQ(spoken(artist, QAccessible::Description), words);
        EXPECT_EQ(at("songTitle").property("xbrStyle").toString(), QString());
    };
    expectMark("missing", "Required: the song has no artist");
    QTest::keyClicks(&artist, "Ann");
    expectMark("", "");
    EXPECT_EQ(at<QLineEdit>("albumArtist").text().toStdString(), "Ann"); // singles: the two go together

    auto& genre = at<QComboBox>("primaryGenre");
    EXPECT_EQ(genre.lineEdit()->text(), QString());
    genre.setFocus();
    QTest::keyClicks(genre.lineEdit(), "jazz");
    QTest::keyClick(genre.lineEdit(), Qt::Key_Return);
    const auto& record = *brindlex::TrackItem::from(*tracks().model().items()[0])->metadata;
    EXPECT_EQ(record.primaryGenre, genre.currentText().toStdString());
    EXPECT_NE(record.primaryGenre.find("Jazz"), std::string::npos);
}

TEST_F(Forms, singlesAndAlbumAreTwoSidesOfOneSwitch) {
    openTracks(2);
    auto& singles = at<QAbstractButton>("singles");
    auto& album = at<QAbstractButton>("album");
    const auto expectAlbum = [&](bool isAlbum) {
        EXPECT_EQ(tracks().mode() == brindlex::UploadMode::kAlbum, isAlbum);
        EXPECT_EQ(album.isChecked(), isAlbum);
        EXPECT_EQ(singles.isChecked(), !isAlbum);
    };
    QTest::mouseClick(&singles, Qt::LeftButton); // is on already
    expectAlbum(false);
    QTest::mouseClick(&album, Qt::LeftButton);
    expectAlbum(true);
    QTest::keyClick(&album, Qt::Key_Left);
    expectAlbum(false);
    tracks().prepareMode(brindlex::UploadMode::kAlbum); // as a publish entry does
    forms->panel->addTracks(1);
    expectAlbum(true);
}

TEST_F(Forms, followLightAndDarkAtAnyTime) {
    QWidget& form = openTracks(1);
    const QPalette before = QApplication::palette();
    const auto lightness = [&](Appearance appearance) {
        QApplication::setPalette(hostPalette(appearance));
        settle();
        return std::pair(form.grab().toImage().pixelColor(5, form.height() - 5).lightness(),
                         at("tracks").property("errorColor").value<QColor>().lightness());
    };
    const auto [light, errorInLight] = lightness(Appearance::kLight);
    const auto [dark, errorInDark] = lightness(Appearance::kDark);
    QApplication::setPalette(before);
    EXPECT_GT(light, 200);
    EXPECT_LT(dark, 60);
    EXPECT_GT(errorInDark, errorInLight);
}

} // namespace
} // namespace xbr::host::tests
