#include "host/app/session/coreclasses.h"

#include "framework/abi/pluginmanager.h"
#include "framework/support/objects/text.h"
#include "host/app/audio/mediatags.h"
#include "host/app/settings/configurationstore.h"

namespace xbr::host {

namespace {

const ClassDescription kConfigurationStore{
    0, IConfigurationStore::kClassUid, toText("Host"), toText("Configuration Store"), {}, {}};
const ClassDescription kMediaFileInfo{
    0, IMediaFileInfo::kClassUid, toText("Host"), toText("Media File Info"), {}, {}};

} // namespace

CoreClasses::CoreClasses(const std::shared_ptr<ConfigurationReport>& report)
    : m_classes(make<ClassFactory>()) {
    m_classes->add(kConfigurationStore, [report] {
        const auto store = make<ConfigurationStore>(report);
        return query<IObject>(store.get());
    });
    m_classes->add(kMediaFileInfo, creatorOf<MediaFileInfo>());
    XBRGetPlugInManager()->addFactory(m_classes.get());
    setComponentSettings(&configuredProperties);
}

CoreClasses::~CoreClasses() {
    setComponentSettings({});
    XBRGetPlugInManager()->removeFactory(m_classes.get());
}

} // namespace xbr::host
