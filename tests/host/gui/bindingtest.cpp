#include "host/base/listener.h"
#include "tests/host/gui/formtest.h"
#include "ui/tracks/tracklistcomponent.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTreeView>

namespace xbr::host::tests {
namespace {

const char* const kCheckable = "<property name='checkable'><bool>true</bool></property>";
const char* const kEditable = "<property name='editable'><bool>true</bool></property>";

/// One form with a control of each kind, on one controller.
class Binding : public FormTest {
protected:
    Binding() {
        root->addParameter(Kind::kCommand, 1, "command");
        root->addParameter(Kind::kToggle, 2, "toggle");
        root->addParameter(Kind::kText, 3, "text");
        root->addParameter(Kind::kInteger, 4, "number", 1, 10000);
        root->addParameter(Kind::kList, 5, "choice").setChoices({" ", "Rock", "Acoustic Rock", "Jazz"});
        show(widgetXml("QPushButton", "command", "xbrParameter=command") +
             widgetXml("QPushButton", "on", "xbrParameter=toggle", kCheckable) +
             widgetXml("QPushButton", "off", "xbrParameter=toggle;xbrInverted=true", kCheckable) +
             widgetXml("QLineEdit", "text", "xbrParameter=text") +
             widgetXml("QSpinBox", "number", "xbrParameter=number") +
             widgetXml("QComboBox", "choice", "xbrParameter=choice") +
             widgetXml("QComboBox", "found", "xbrParameter=choice", kEditable));
    }

    std::int64_t integer(const char* name) { return root->named(name).integer(); }
    std::string shownChoice() { return at<QComboBox>("found").currentText().trimmed().toStdString(); }
};

TEST_F(Binding, showsWhatTheParameterHasWithoutSettingIt) {
    root->named("toggle").set(integerValue(1));
    root->named("text").set(textValue("Nébula & <b>"));
    root->named("number").set(integerValue(42));
    root->named("choice").set(integerValue(3));
    EXPECT_TRUE(at<QPushButton>("on").isChecked());
    EXPECT_FALSE(at<QPushButton>("off").isChecked());
    EXPECT_EQ(at<QLineEdit>("text").text().toStdString(), "Nébula & <b>");
    EXPECT_EQ(at<QSpinBox>("number").value(), 42);
    EXPECT_EQ(at<QSpinBox>("number").maximum(), 10000);
    EXPECT_EQ(at<QComboBox>("choice").currentText().toStdString(), "Jazz");
    for (const char* name : {"command", "text", "number", "choice"}) {
        root->named(name).setEnabled(false);
        EXPECT_FALSE(at(name).isEnabled()) << name;
    }
    EXPECT_EQ(root->changes, Texts());
}

TEST_F(Binding, setsWhatThePersonWantsOnce) {
    at("text").setFocus();
    for (const char* name : {"number", "choice"}) { // the wheel changes only what has the focus
        QWheelEvent wheel(QPointF(2, 2), at(name).mapToGlobal(QPointF(2, 2)), {}, QPoint(0, -120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&at(name), &wheel);
    }
    QTest::mouseClick(&at("command"), Qt::LeftButton);
    QTest::mouseClick(&at("on"), Qt::LeftButton);
    QTest::mouseClick(&at("off"), Qt::LeftButton); // switches it off again
    QTest::keyClicks(&at("text"), "ab");
    QTest::keyClick(&at("number"), Qt::Key_Up);
    QTest::keyClick(&at("choice"), Qt::Key_Down);
    EXPECT_EQ(root->changes, (Texts{"command", "toggle", "toggle", "text", "text", "number", "choice"}));
    EXPECT_EQ(integer("toggle"), 0);
    EXPECT_EQ(root->named("text").string(), "ab");
    EXPECT_EQ(integer("number"), 2);
    EXPECT_EQ(integer("choice"), 1);
}

TEST_F(Binding, showsWhatTheModuleMadeOfItAndKeepsTheCursor) {
    root->onChange = [](Parameter& parameter) {
        const QString upper = QString::fromStdString(parameter.string()).toUpper();
        parameter.set(parameter.kind() == Kind::kText ? textValue(upper.toStdString()) : integerValue(1));
    };
    auto& edit = at<QLineEdit>("text");
    edit.setFocus();
    QTest::keyClicks(&edit, "song");
    QTest::keyClick(&edit, Qt::Key_Home);
    QTest::keyClicks(&edit, "my ");
    EXPECT_EQ(edit.text().toStdString(), "MY SONG");
    EXPECT_EQ(edit.cursorPosition(), 3);
    QTest::keyClicks(&at("number"), "7");
    EXPECT_EQ(at<QSpinBox>("number").value(), 1);
    QTest::keyClick(&at("choice"), Qt::Key_End);
    EXPECT_EQ(at<QComboBox>("choice").currentIndex(), 1);
}

TEST_F(Binding, findsAnEntryByWhatIsTyped) {
    const struct {
        const char* typed;
        bool isConfirmed; ///< with the Return key; else by leaving the field
        int chosen;
    } table[] = {
        {"rock", true, 1}, // itself before one that holds it
        {"jazz", true, 3},  {"rOck", false, 1},  {"acou", true, 2},
        {"ro", true, 1},    {"azz", false, 3},   {"ro", false, 3}, // two entries hold it: left as it was
        {"polka", true, 3}, {"polka", false, 3}, {"", false, 0},   // no text is the blank entry
    };
    auto& box = at<QComboBox>("found");
    for (const auto& [typed, isConfirmed, chosen] : table) {
        box.setFocus();
        box.lineEdit()->selectAll();
        QTest::keyClick(box.lineEdit(), Qt::Key_Delete);
        QTest::keyClicks(box.lineEdit(), typed);
        if (isConfirmed) {
            QTest::keyClick(box.lineEdit(), Qt::Key_Return);
        }
        box.completer()->popup()->hide();
        QApplication::setActiveWindow(form.get()); // a window system would do that
        at("text").setFocus();
        EXPECT_EQ(integer("choice"), chosen) << typed;
        EXPECT_EQ(shownChoice(), chosen == 0 ? "" : toString(root->named("choice").choiceAt(chosen)))
            << typed;
    }
}

TEST_F(Binding, aSignalDoesNotDisturbWhoIsTypingInAChoice) {
    auto& box = at<QComboBox>("found");
    box.setFocus();
    QTest::keyClicks(box.lineEdit(), "Ja");
    root->named("text").set(textValue("elsewhere"));
    root->change("any", 1);
    EXPECT_EQ(shownChoice(), "Ja");
    root->named("choice").set(integerValue(1)); // another track was chosen meanwhile
    EXPECT_EQ(shownChoice(), "Rock");
}

/// A panel with a form that binds everything there is; whoever dies first, nobody is hurt.
class Lifetime : public FormTest {
protected:
    Lifetime() {
        root->addChild(inner);
        addRow();
        inner->addObject("rows", query<IObject>(&list->model()));
        inner->addParameter(Kind::kCommand, 1, "command");
        inner->addParameter(Kind::kText, 2, "text").set(textValue("one"));
        inner->addParameter(Kind::kList, 3, "choice").setChoices({"x", "y"});
        inner->change("state", 1);
        show(widgetXml("QWidget", "scope", "xbrScope=Child",
                       widgetXml("QPushButton", "command", "xbrParameter=command") +
                           widgetXml("QLineEdit", "text", "xbrParameter=text") +
                           widgetXml("QComboBox", "choice", "xbrParameter=choice") +
                           widgetXml("QLabel", "state", "xbrText=state;xbrVisibleIf=state") +
                           widgetXml("QTreeView", "rows", "xbrListModel=rows")));
    }

    void addRow() const {
        const auto item = make<brindlex::TrackItem>("a", Url(), make<brindlex::TrackMetadata>());
        list->model().append(query<IObject>(item.get()));
        list->signalTracksChanged();
    }
    void dropControllers() {
        inner.reset();
        root.reset();
    }

    Ref<TestController> inner = make<TestController>("Child");
    std::weak_ptr<void> life = root->life;
    Ref<brindlex::TrackListComponent> list = make<brindlex::TrackListComponent>();
};

TEST_F(Lifetime, theViewGoesFirst) {
    form.reset();
    EXPECT_EQ(root->view(), nullptr);
    inner->named("text").set(textValue("two"));
    inner->change("state", 0);
    addRow();
    settle();
    dropControllers();
    EXPECT_TRUE(life.expired());
}

TEST_F(Lifetime, theOwnersOfTheListAndOfTheControllersGoFirst) {
    auto& rows = at<QTreeView>("rows");
    rows.selectAll();
    list.reset();
    rows.grab();
    settle();
    EXPECT_EQ(rows.model()->rowCount(), 0);
    rows.grab();
    dropControllers();
    QTest::keyClicks(&at("text"), "!");
    form.reset();
    EXPECT_TRUE(life.expired());
}

TEST_F(Lifetime, theViewGoesWithinASignal) {
    // The form observes the parameter before the one that takes it away, and then behind it.
    Listener remover([this](ISubject*, const IMessage&) { form.reset(); });
    remover.listen(query<ISubject>(&inner->named("text")));
    for (int i = 0; i < 2; ++i) {
        inner->named("text").set(textValue("two" + std::to_string(i)));
        EXPECT_FALSE(form);
        show();
    }
}

TEST_F(Lifetime, theViewGoesWhileItsCommandRuns) {
    inner->onChange = [this](Parameter&) {
        form.reset(); // as when the window is closed while a modal run turns the event loop
        dropControllers();
    };
    QTest::mouseClick(&at("command"), Qt::LeftButton);
    EXPECT_FALSE(form);
    EXPECT_TRUE(life.expired());
}

TEST_F(Lifetime, theControllerGoesWithinItsOwnSignal) {
    // The form is the last to hold the panel, and an observer before it lets the form go.
    form.reset();
    TestController* const borrowed = inner.get();
    Listener remover([this](ISubject*, const IMessage&) { form.reset(); });
    XBRGetSignalHandler()->addObserver(query<ISubject>(borrowed).get(), remover.observer());
    show();
    dropControllers();
    borrowed->change("state", 0);
    EXPECT_FALSE(form);
    EXPECT_TRUE(life.expired());
    XBRGetSignalHandler()->forgetObserver(remover.observer());
}

} // namespace
} // namespace xbr::host::tests
