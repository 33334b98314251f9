#include "framework/support/objects/message.h"
#include "tests/host/gui/testlist.h"
#include "tests/host/gui/testskin.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeView>
#include <gtest/gtest.h>

namespace xbr::host::tests {
namespace {

using Kind = ParameterKind;

/// A controller that tells when it has gone.
class Mortal final : public TestController {
public:
    Mortal(std::string_view name, bool& isGone) : TestController(name), m_isGone(&isGone) {}
    ~Mortal() override { *m_isGone = true; }

private:
    bool* m_isGone;
};

/// An observer that takes a form away.
class Remover final : public Object<IObserver> {
public:
    explicit Remover(std::unique_ptr<QWidget>& form) : m_form(&form) {}
    void notify(ISubject*, IMessage*) noexcept override { m_form->reset(); }

private:
    std::unique_ptr<QWidget>* m_form;
};

/// A panel with a form that binds everything there is; whoever dies first, nobody is hurt.
class Lifetime : public testing::Test {
protected:
    Lifetime() {
        controller = make<Mortal>("Root", isGone);
        child = make<TestController>("Child");
        controller->addChild(child);
        list = std::make_unique<TestList>();
        list->add({"a", "b"});
        child->addObject("rows", query<IObject>(&list->model()));
        child->addParameter(Kind::kCommand, 1, "command");
        child->addParameter(Kind::kText, 2, "text").set(textValue("one"));
        child->addParameter(Kind::kList, 3, "choice").setChoices({"x", "y"});
        child->change("state", 1);
        skin.addForm("F", widgetXml("QWidget", "scope", "xbrScope=Child",
                                    widgetXml("QPushButton", "command", "xbrParameter=command") +
                                        widgetXml("QLineEdit", "text", "xbrParameter=text") +
                                        widgetXml("QComboBox", "choice", "xbrParameter=choice") +
                                        widgetXml("QLabel", "state", "xbrText=state;xbrVisibleIf=state") +
                                        widgetXml("QTreeView", "rows", "xbrListModel=rows")));
        form = skin.widget("F", *controller);
    }

    void dropControllers() {
        child.reset();
        controller.reset();
    }

    bool isGone = false;
    TestSkin skin;
    Ref<Mortal> controller;
    Ref<TestController> child;
    std::unique_ptr<TestList> list;
    std::unique_ptr<QWidget> form;
};

TEST_F(Lifetime, theViewGoesFirst) {
    form.reset();
    EXPECT_EQ(controller->view(), nullptr);
    child->named("text").set(textValue("two"));
    child->change("state", 0);
    list->add({"c"});
    settle();
    dropControllers();
    EXPECT_TRUE(isGone);
}

TEST_F(Lifetime, theViewKeepsItsControllerAndNothingElseDoes) {
    dropControllers();
    EXPECT_FALSE(isGone);
    QTest::keyClicks(&tests::child<QLineEdit>(*form, "text"), "!");
    form.reset();
    EXPECT_TRUE(isGone);
}

TEST_F(Lifetime, theListsOwnerGoesFirst) {
    auto& rows = tests::child<QTreeView>(*form, "rows");
    rows.selectAll();
    list.reset();
    rows.grab();
    settle();
    EXPECT_EQ(rows.model()->rowCount(), 0);
    rows.grab();
}

TEST_F(Lifetime, theViewGoesWithinASignal) {
    // The first observer of the parameter is the form; the second takes the form away, or the other way
    // round.
    const auto remover = make<Remover>(form);
    const auto parameter = query<ISubject>(&child->named("text"));
    XBRGetSignalHandler()->addObserver(parameter.get(), remover.get());
    child->named("text").set(textValue("two"));
    EXPECT_FALSE(form);
    form = skin.widget("F", *controller); // observes behind the remover now
    child->named("text").set(textValue("three"));
    EXPECT_FALSE(form);
    XBRGetSignalHandler()->forgetObserver(remover.get());
}

TEST_F(Lifetime, theViewGoesWhileItsCommandRuns) {
    child->onChange = [this](Parameter&) {
        form.reset(); // as when the window is closed while a modal run turns the event loop
        dropControllers();
    };
    QTest::mouseClick(&tests::child<QPushButton>(*form, "command"), Qt::LeftButton);
    EXPECT_FALSE(form);
    EXPECT_TRUE(isGone);
}

TEST_F(Lifetime, theControllerGoesWithinItsOwnSignal) {
    // The form is the last to hold the panel, and an observer before it lets the form go.
    form.reset();
    const auto remover = make<Remover>(form);
    TestController* const borrowed = child.get();
    XBRGetSignalHandler()->addObserver(query<ISubject>(borrowed).get(), remover.get());
    form = skin.widget("F", *controller);
    dropControllers();
    borrowed->change("state", 0);
    EXPECT_FALSE(form);
    EXPECT_TRUE(isGone);
    XBRGetSignalHandler()->forgetObserver(remover.get());
}

} // namespace
} // namespace xbr::host::tests
