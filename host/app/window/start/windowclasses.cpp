#include "host/app/window/start/windowclasses.h"

#include "framework/abi/pluginmanager.h"
#include "framework/support/objects/text.h"
#include "host/app/window/dialogs/fileselector.h"
#include "host/app/window/dialogs/progressindicator.h"
#include "host/app/window/dialogs/viewdialog.h"

namespace xbr::host {

namespace {

const ClassDescription kDialog{0, IDialog::kClassUid, toText("Host"), toText("Dialog"), {}, {}};
const ClassDescription kProgress{
    0, IProgressIndicator::kClassUid, toText("Host"), toText("Progress Indicator"), {}, {}};
const ClassDescription kSelector{0, IFileSelector::kClassUid, toText("Host"), toText("File Selector"), {},
                                 {}};

template <class T>
ClassFactory::Creator creatorFor(WindowContext& context) {
    return [&context] {
        const auto instance = make<T>(context);
        return query<IObject>(instance.get());
    };
}

} // namespace

WindowClasses::WindowClasses(WindowContext& context) : m_classes(make<ClassFactory>()) {
    m_classes->add(kDialog, creatorFor<ViewDialog>(context));
    m_classes->add(kProgress, creatorFor<ProgressIndicator>(context));
    m_classes->add(kSelector, creatorFor<FileSelector>(context));
    XBRGetPlugInManager()->addFactory(m_classes.get());
}

WindowClasses::~WindowClasses() {
    XBRGetPlugInManager()->removeFactory(m_classes.get());
}

} // namespace xbr::host
