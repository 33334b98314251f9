#include "module/supportservice.h"

#include "client/manager.h"
#include "framework/abi/filetype.h"
#include "framework/abi/publisher.h"
#include "framework/abi/system.h"
#include "framework/support/objects/text.h"
#include "module/callbackhandler.h"
#include "module/classtable.h"
#include "module/gadgetdescription.h"
#include "module/modulekernel.h"
#include "module/uploadpublisher.h"

namespace brindlex {

namespace {

xbr::Ref<xbr::ClassFactory> makeClassList() {
    auto gadgetAttributes = xbr::make<xbr::Attributes>();
    gadgetAttributes->set(xbr::kMetaClassAttribute, xbr::toString(metaClass().uid));
    auto classes = xbr::make<xbr::ClassFactory>(&isModuleLoaded);
    classes->add(publisherClass(), xbr::creatorOf<UploadPublisher>());
    classes->add(gadgetClass(), xbr::creatorOf<Manager>(), std::move(gadgetAttributes));
    classes->add(metaClass(), xbr::creatorOf<GadgetDescription>());
    return classes;
}

} // namespace

SupportService::~SupportService() {
    terminate();
}

xbr::Result SupportService::initialise(xbr::IHostContext* context) noexcept {
    if (xbr::borderMajor(context->borderVersion()) != xbr::borderMajor(xbr::kBorderVersion)) {
        XBRGetSystem()->writeDebugWarning(xbr::toText("SupportService: the host's border does not fit\n"));
        return xbr::kUnexpected;
    }
    m_context = xbr::Ref<xbr::IHostContext>::share(context);
    if (!m_classes) {
        m_classes = makeClassList();
    }
    XBRGetFileTypeRegistry()->addHandler(&CallbackHandler::instance());
    return xbr::kOk;
}

xbr::Result SupportService::getClasses(xbr::IClassFactory** out) noexcept {
    *out = xbr::Ref<xbr::ClassFactory>(m_classes).detach();
    return *out ? xbr::kOk : xbr::kFalse;
}

xbr::Result SupportService::terminate() noexcept {
    if (m_context) {
        XBRGetFileTypeRegistry()->removeHandler(&CallbackHandler::instance());
    }
    m_classes.reset();
    m_context.reset();
    return xbr::kOk;
}

} // namespace brindlex
