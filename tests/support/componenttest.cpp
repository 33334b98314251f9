#include "framework/support/parts/component.h"

#include "framework/support/objects/text.h"
#include "framework/support/parts/path.h"
#include "tests/fakehost/fakehost.h"

#include <gtest/gtest.h>

namespace {

using fakehost::host;
using Kind = xbr::ParameterKind;

/// Remembers the tags that were changed, and their values then.
class Recorder : public xbr::Component {
public:
    using Component::addChild;
    using Component::addParameter;
    using Component::Component;

    std::vector<std::int32_t> changed;
    std::vector<std::int64_t> values;

protected:
    void parameterChanged(xbr::Parameter& parameter) override {
        changed.push_back(parameter.tag());
        values.push_back(parameter.integer());
    }
};

class ComponentTest : public testing::Test {
protected:
    ComponentTest() {
        fakehost::resetHost();
        component = xbr::make<Recorder>("Root");
    }

    xbr::Ref<Recorder> component;
};

TEST_F(ComponentTest, ActsOnlyOnRealChangesByTheUser) {
    auto& text = component->addParameter(Kind::kText, 1, "text");
    auto& number = component->addParameter(Kind::kInteger, 2, "number", 1, 10);
    auto& command = component->addParameter(Kind::kCommand, 3, "command");
    auto& toggle = component->addParameter(Kind::kToggle, 4, "toggle");

    EXPECT_EQ(text.setValue(xbr::textValue("")), xbr::kFalse) << "no change, no echo";
    EXPECT_EQ(text.setValue(xbr::integerValue(1)), xbr::kInvalidArgument);
    EXPECT_EQ(text.setValue(xbr::textValue("a")), xbr::kOk);
    text.set(xbr::textValue("b"));
    EXPECT_EQ(number.setValue(xbr::textValue("7")), xbr::kInvalidArgument);
    EXPECT_EQ(number.setValue(xbr::floatValue(99.9)), xbr::kOk);
    EXPECT_EQ(number.integer(), 10) << "held to the range";
    EXPECT_EQ(command.setValue(xbr::integerValue(1)), xbr::kOk);
    EXPECT_EQ(command.setValue(xbr::integerValue(1)), xbr::kOk) << "a command acts each time";
    EXPECT_EQ(command.integer(), 0);
    toggle.setEnabled(false);
    EXPECT_EQ(toggle.setValue(xbr::integerValue(1)), xbr::kFalse) << "disabled";
    EXPECT_EQ(component->changed, (std::vector<std::int32_t>{1, 2, 3, 3}));
}

TEST_F(ComponentTest, KeepsValuesTrue) {
    auto& list = component->addParameter(Kind::kList, 1, "list");
    list.setChoices({"a", "b", "c"});
    list.set(xbr::integerValue(2));
    list.setChoices({"a", "b"});
    EXPECT_EQ(list.integer(), 1) << "held to what there is";
    auto& number = component->addParameter(Kind::kInteger, 2, "number", 0, INT64_MAX);
    for (const std::int64_t value : {(INT64_C(1) << 53U), (INT64_C(1) << 53U) + 1}) {
        EXPECT_EQ(number.setValue(xbr::integerValue(value)), xbr::kOk) << "no two integers are the same";
    }
}

TEST_F(ComponentTest, ActsOnceForEachValue) {
    /// A view that sets the next value when it learns of one.
    class View final : public xbr::Object<xbr::IObserver> {
    public:
        explicit View(xbr::Parameter& parameter) : m_parameter(parameter) {}
        void notify(xbr::ISubject*, xbr::IMessage*) noexcept override {
            if (m_parameter.integer() < 3) {
                m_parameter.setValue(xbr::integerValue(m_parameter.integer() + 1));
            }
        }

    private:
        xbr::Parameter& m_parameter;
    };
    auto& number = component->addParameter(Kind::kInteger, 1, "number", 0, 9);
    const auto view = xbr::make<View>(number);
    host().signals.addObserver(&number, view.get());
    number.setValue(xbr::integerValue(1));
    EXPECT_EQ(component->values, (std::vector<std::int64_t>{1, 2, 3}));
    host().signals.forgetObserver(view.get());
}

TEST_F(ComponentTest, ResolvesPathsOfForms) {
    const auto client = xbr::make<Recorder>("Client");
    const auto list = xbr::make<Recorder>("TrackList");
    component->addChild(client);
    component->addChild(list);
    component->addParameter(Kind::kCommand, 1, "upload");
    list->addParameter(Kind::kCommand, 2, "addTracks");
    for (const auto& [path, tag] : fakehost::Rows<const char*, int>{{"../upload", 1},
                                                                    {"../TrackList/addTracks", 2},
                                                                    {"../TrackList/../upload", 1},
                                                                    {"upload", 0},
                                                                    {"../../upload", 0},
                                                                    {"../Missing/upload", 0},
                                                                    {"", 0},
                                                                    {"/", 0},
                                                                    {"..", 0}}) {
        const auto* parameter = xbr::findParameter(*client, path);
        EXPECT_EQ(parameter ? parameter->tag() : 0, tag) << path;
    }
}

TEST_F(ComponentTest, LeavesNothingBehind) {
    component->addParameter(Kind::kText, 1, "text");
    host().signals.addObserver(component.get(), component.get());
    xbr::post(*component, "later");
    xbr::postSignal(*component, "later");
    const auto kept = xbr::Ref<xbr::IParameter>::share(component->parameter(1));
    component.reset();
    EXPECT_EQ(host().signals.remaining(), 0U);
    EXPECT_EQ(kept->setValue(xbr::textValue("x")), xbr::kOk) << "a view may outlive the component";
}

} // namespace
