#include "framework/support/objects/text.h"
#include "tests/host/gui/testskin.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <gtest/gtest.h>

namespace xbr::host::tests {
namespace {

using Kind = ParameterKind;

const char* const kCheckable = "<property name='checkable'><bool>true</bool></property>";
const char* const kEditable = "<property name='editable'><bool>true</bool></property>";

/// One form with a control of each kind, on one controller.
class Binding : public testing::Test {
protected:
    Binding() {
        controller = make<TestController>("Root");
        controller->addParameter(Kind::kCommand, 1, "command");
        controller->addParameter(Kind::kToggle, 2, "toggle");
        controller->addParameter(Kind::kText, 3, "text");
        controller->addParameter(Kind::kInteger, 4, "number", 1, 10000);
        controller->addParameter(Kind::kList, 5, "choice").setChoices({" ", "Rock", "Acoustic Rock", "Jazz"});
        skin.addForm("F",
                     widgetXml("QPushButton", "command", "xbrParameter=command") +
                         widgetXml("QPushButton", "on", "xbrParameter=toggle", kCheckable) +
                         widgetXml("QPushButton", "off", "xbrParameter=toggle;xbrInverted=true", kCheckable) +
                         widgetXml("QLineEdit", "text", "xbrParameter=text") +
                         widgetXml("QSpinBox", "number", "xbrParameter=number") +
                         widgetXml("QComboBox", "choice", "xbrParameter=choice") +
                         widgetXml("QComboBox", "found", "xbrParameter=choice", kEditable));
        form = skin.widget("F", *controller);
    }

    template <class Widget>
    Widget& at(const char* name) {
        return child<Widget>(*form, name);
    }
    std::int64_t integer(const char* name) { return controller->named(name).integer(); }

    TestSkin skin;
    Ref<TestController> controller;
    std::unique_ptr<QWidget> form;
};

TEST_F(Binding, showsWhatTheParameterHasWithoutSettingIt) {
    controller->named("toggle").set(integerValue(1));
    controller->named("text").set(textValue("Nébula & <b>"));
    controller->named("number").set(integerValue(42));
    controller->named("choice").set(integerValue(3));
    EXPECT_TRUE(at<QPushButton>("on").isChecked());
    EXPECT_FALSE(at<QPushButton>("off").isChecked());
    EXPECT_EQ(at<QLineEdit>("text").text().toStdString(), "Nébula & <b>");
    EXPECT_EQ(at<QSpinBox>("number").value(), 42);
    EXPECT_EQ(at<QSpinBox>("number").maximum(), 10000);
    EXPECT_EQ(at<QComboBox>("choice").currentText().toStdString(), "Jazz");
    EXPECT_EQ(at<QComboBox>("found").currentText().toStdString(), "Jazz");
    for (const char* name : {"command", "toggle", "text", "number", "choice"}) {
        controller->named(name).setEnabled(false);
    }
    for (const char* name : {"command", "on", "off", "text", "number", "choice", "found"}) {
        EXPECT_FALSE(at<QWidget>(name).isEnabled()) << name;
    }
    EXPECT_EQ(controller->changes, std::vector<std::string>());
}

TEST_F(Binding, setsWhatThePersonWantsOnce) {
    QTest::mouseClick(&at<QPushButton>("command"), Qt::LeftButton);
    QTest::mouseClick(&at<QPushButton>("on"), Qt::LeftButton);
    QTest::mouseClick(&at<QPushButton>("off"), Qt::LeftButton); // switches it off again
    QTest::keyClicks(&at<QLineEdit>("text"), "ab");
    QTest::keyClick(&at<QSpinBox>("number"), Qt::Key_Up);
    QTest::keyClick(&at<QComboBox>("choice"), Qt::Key_Down);
    EXPECT_EQ(controller->changes,
              (std::vector<std::string>{"command", "toggle", "toggle", "text", "text", "number", "choice"}));
    EXPECT_EQ(integer("toggle"), 0);
    EXPECT_EQ(controller->named("text").string(), "ab");
    EXPECT_EQ(integer("number"), 2);
    EXPECT_EQ(integer("choice"), 1);
}

TEST_F(Binding, keepsTheCursorWhileTheModuleCorrectsWhatIsTyped) {
    controller->onChange = [](Parameter& parameter) {
        parameter.set(textValue(QString::fromStdString(parameter.string()).toUpper().toStdString()));
    };
    QLineEdit& edit = at<QLineEdit>("text");
    edit.setFocus();
    QTest::keyClicks(&edit, "song");
    QTest::keyClick(&edit, Qt::Key_Home);
    QTest::keyClicks(&edit, "my ");
    EXPECT_EQ(edit.text().toStdString(), "MY SONG");
    EXPECT_EQ(edit.cursorPosition(), 3);
}

TEST_F(Binding, showsWhatTheModuleMadeOfIt) {
    controller->onChange = [](Parameter& parameter) { parameter.set(integerValue(1)); };
    QTest::keyClicks(&at<QSpinBox>("number"), "7");
    EXPECT_EQ(at<QSpinBox>("number").value(), 1);
    QTest::keyClick(&at<QComboBox>("choice"), Qt::Key_End);
    EXPECT_EQ(at<QComboBox>("choice").currentIndex(), 1);
}

TEST_F(Binding, findsAnEntryByWhatIsTyped) {
    struct Row {
        const char* typed;
        bool isConfirmed; ///< with the Return key; else by leaving the field
        int chosen;
    };
    const std::vector<Row> table = {
        {"rock", true, 1}, // itself before one that holds it
        {"jazz", true, 3},  {"rOck", false, 1},  {"acou", true, 2},
        {"ro", true, 1},    {"azz", false, 3},   {"ro", false, 3}, // two entries hold it: left as it was
        {"polka", true, 3}, {"polka", false, 3}, {"", false, 0},   // no text is the blank entry
    };
    QComboBox& box = at<QComboBox>("found");
    for (const auto& [typed, isConfirmed, chosen] : table) {
        box.setFocus();
        box.lineEdit()->selectAll();
        QTest::keyClick(box.lineEdit(), Qt::Key_Delete);
        QTest::keyClicks(box.lineEdit(), typed);
        if (isConfirmed) {
            QTest::keyClick(box.lineEdit(), Qt::Key_Return);
        }
        if (typed == std::string_view("rOck")) {
            EXPECT_EQ(integer("choice"), chosen) << "without leaving the field";
            EXPECT_EQ(box.currentText().toStdString(), typed);
        }
        box.completer()->popup()->hide();
        QApplication::setActiveWindow(form.get()); // a window system would do that
        at<QLineEdit>("text").setFocus();
        EXPECT_EQ(integer("choice"), chosen) << typed;
        EXPECT_EQ(box.currentText().trimmed().toStdString(),
                  chosen == 0 ? "" : toString(controller->named("choice").choiceAt(chosen)))
            << typed;
    }
}

TEST_F(Binding, aSignalDoesNotDisturbWhoIsTypingInAChoice) {
    QComboBox& box = at<QComboBox>("found");
    box.setFocus();
    QTest::keyClicks(box.lineEdit(), "Ja");
    controller->named("text").set(textValue("elsewhere"));
    controller->change("any", 1);
    EXPECT_EQ(box.currentText().toStdString(), "Ja");
    controller->named("choice").set(integerValue(1)); // another track was chosen meanwhile
    EXPECT_EQ(box.currentText().toStdString(), "Rock");
}

TEST_F(Binding, theWheelChangesOnlyWhatHasTheFocus) {
    at<QLineEdit>("text").setFocus();
    for (const char* name : {"number", "choice"}) {
        QWidget& widget = at<QWidget>(name);
        QWheelEvent wheel(QPointF(2, 2), widget.mapToGlobal(QPointF(2, 2)), {}, QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget, &wheel);
    }
    EXPECT_EQ(controller->changes, std::vector<std::string>());
}

} // namespace
} // namespace xbr::host::tests
