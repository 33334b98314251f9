#include "module/classtable.h"
#include "tests/module/modulefixture.h"

namespace brindlex {

namespace {

using fakehost::host;

class SupportServiceTest : public ModuleFixture {};

TEST_F(SupportServiceTest, DescribesThePanelBeforeItIsOpened) {
    xbr::Ref<xbr::IClassFactory> classes;
    EXPECT_EQ(service->getClasses(classes.out()), xbr::kFalse) << "before initialise";
    ASSERT_EQ(service->initialise(context.get()), xbr::kOk);
    ASSERT_EQ(service->getClasses(classes.out()), xbr::kOk);
    EXPECT_FALSE(classes->classAt(-1) || classes->classAt(1'000'000));
    xbr::Value metaClassId{};
    ASSERT_EQ(classes->attributesAt(1)->get(xbr::toText("Class:MetaClassID"), &metaClassId), xbr::kOk);
    EXPECT_EQ(xbr::textOf(metaClassId), xbr::toString(classes->classAt(2)->uid));
    host().files.files["resource://brindlex/gadget.xml"] =
        R"(<Gadgets><Gadget themeName="brindlex" formName="BrindlexManager" menuPriority="1"/>)"
        R"(<Gadget iconName="another"/></Gadgets>)";
    const auto gadget = create<xbr::IGadgetDescription>(*classes, classes->classAt(2)->uid);
    std::string attributes;
    for (const char* name : {"themeName", "formName", "menuPriority", "iconName"}) {
        attributes += xbr::toString(gadget->attribute(xbr::toText(name))) + ",";
    }
    EXPECT_EQ(attributes, "brindlex,BrindlexManager,1,,");
    EXPECT_FALSE(create<xbr::IPublisher>(*classes, classes->classAt(1)->uid)) << "a gadget is no publisher";
    XBRModuleMain(this, 2);
    EXPECT_FALSE(create<xbr::IController>(*classes, gadgetClass().uid)) << "unloaded";
}

TEST_F(SupportServiceTest, TakesCallbackUrlsWhileItRuns) {
    service->initialise(context.get());
    EXPECT_TRUE(host().fileTypes.openUrl(xbr::toText("brindlex://authorize?code=c")))
        << "nobody waits for it";
    EXPECT_FALSE(host().fileTypes.openUrl(xbr::toText("file:///a.wav")));
    EXPECT_FALSE(host().fileTypes.openUrl(xbr::toText("brindlexx://authorize")));
    {
        const auto manager = xbr::make<Manager>();
        manager->client().getAuthorizationCode();
        EXPECT_TRUE(host().fileTypes.openUrl(xbr::toText("BRINDLEX://authorize?code=c")));
        EXPECT_EQ(manager->client().state(), ClientState::kRequestingToken);
    }
    EXPECT_EQ(service->terminate(), xbr::kOk);
    EXPECT_TRUE(host().fileTypes.handlers.empty());
    EXPECT_EQ(service->terminate(), xbr::kOk) << "twice is harmless";
    xbr::Ref<xbr::IClassFactory> classes;
    EXPECT_EQ(service->getClasses(classes.out()), xbr::kFalse);
}

TEST_F(SupportServiceTest, RefusesAHostOfAnotherBorder) {
    context->version = xbr::kBorderVersion + 0x10000;
    EXPECT_EQ(service->initialise(context.get()), xbr::kUnexpected);
    EXPECT_EQ(host().system.warnings, "SupportService: the host's border does not fit\n");
    EXPECT_TRUE(host().fileTypes.handlers.empty());
    context->version = xbr::kBorderVersion + 1;
    EXPECT_EQ(service->initialise(context.get()), xbr::kOk) << "a higher minor only adds";
}

} // namespace

} // namespace brindlex
