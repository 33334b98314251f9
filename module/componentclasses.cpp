#include "module/componentclasses.h"

#include "framework/abi/pluginmanager.h"
#include "module/modulekernel.h"
#include "ui/news/feedelement.h"
#include "ui/news/feedlistcomponent.h"
#include "ui/pictures/imageelement.h"
#include "ui/pictures/persistentimagecache.h"

namespace brindlex {

namespace {

template <class T>
void add(xbr::ClassFactory& classes, const xbr::ClassDescription& description) {
    classes.add(description, xbr::creatorOf<T>());
}

xbr::Ref<xbr::ClassFactory> makeClasses() {
    static const auto kFeedElement =
        xbr::describe(xbr::uid("02eb5f3d-b585-4e16-be6d-1c7e3f2c7fec"), "Component", "FeedElement");
    static const auto kFeedListComponent =
        xbr::describe(xbr::uid("d1dd7f5a-bd71-41e1-8d79-82b9003aa462"), "Component", "FeedListComponent");
    static const auto kImageElement =
        xbr::describe(xbr::uid("ff8bd1c9-430d-4a97-a500-14fc25c55790"), "Component", "ImageElement");
    static const auto kImageElementCache =
        xbr::describe(xbr::uid("5e3e1d4e-1d70-42fb-90b5-ed1aaf90bb36"), "Component", "ImageElementCache");
    static const auto kPersistentImageCache =
        xbr::describe(xbr::uid("28215e6b-5ecf-4af6-a24b-72bea1aae77e"), "Component", "PersistentImageCache");
    auto classes = xbr::make<xbr::ClassFactory>(&isModuleLoaded);
    add<FeedElement>(*classes, kFeedElement);
    add<FeedListComponent>(*classes, kFeedListComponent);
    add<ImageElement>(*classes, kImageElement);
    add<ImageElementCache>(*classes, kImageElementCache);
    add<PersistentImageCache>(*classes, kPersistentImageCache);
    return classes;
}

} // namespace

xbr::ClassFactory& componentClasses() {
    static const auto classes = makeClasses();
    return *classes;
}

bool addComponentClasses() {
    XBRGetPlugInManager()->addFactory(&componentClasses());
    return true;
}

void removeComponentClasses() {
    XBRGetPlugInManager()->removeFactory(&componentClasses());
}

} // namespace brindlex
