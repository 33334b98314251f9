#include "host/app/session/hostclasses.h"

#include "framework/abi/pluginmanager.h"
#include "framework/abi/progress.h"
#include "framework/abi/view.h"
#include "framework/support/objects/text.h"
#include "host/app/audio/mediatags.h"
#include "host/app/session/frontend.h"

namespace xbr::host {

namespace {

ClassDescription describe(const Uid& uid, std::string_view name) {
    return {0, uid, toText("Host"), toText(name), {}, {}};
}

const ClassDescription kConfigurationStore = describe(IConfigurationStore::kClassUid, "Configuration Store");
const ClassDescription kMediaFileInfo = describe(IMediaFileInfo::kClassUid, "Media File Info");
const ClassDescription kDialog = describe(IDialog::kClassUid, "Dialog");
const ClassDescription kProgress = describe(IProgressIndicator::kClassUid, "Progress Indicator");
const ClassDescription kSelector = describe(IFileSelector::kClassUid, "File Selector");

} // namespace

HostClasses::HostClasses(FrontEnd& front, HostSession& session, Activity& activity,
                         const std::shared_ptr<ConfigurationReport>& report)
    : m_classes(make<ClassFactory>()) {
    m_classes->add(kConfigurationStore, [report] {
        const auto store = make<ConfigurationStore>(report);
        return query<IObject>(store.get());
    });
    m_classes->add(kMediaFileInfo, creatorOf<MediaFileInfo>());
    m_classes->add(kDialog,
                   [&] { return activity.areDialogsAllowed() ? front.makeDialog(session) : Ref<IObject>(); });
    m_classes->add(kProgress, [&] { return front.makeProgress(session); });
    m_classes->add(kSelector, [&] { return front.makeFileSelector(session); });
    XBRGetPlugInManager()->addFactory(m_classes.get());
    setComponentSettings(&configuredProperties);
}

HostClasses::~HostClasses() {
    setComponentSettings({});
    XBRGetPlugInManager()->removeFactory(m_classes.get());
}

} // namespace xbr::host
