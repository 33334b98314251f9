#include "host/app/headless/consoleclasses.h"

#include "framework/abi/pluginmanager.h"
#include "framework/support/objects/text.h"
#include "host/app/headless/consoledialog.h"
#include "host/app/headless/consoleprogress.h"

namespace xbr::host {

namespace {

const ClassDescription kDialog{0, IDialog::kClassUid, toText("Host"), toText("Dialog"), {}, {}};
const ClassDescription kProgress{
    0, IProgressIndicator::kClassUid, toText("Host"), toText("Progress Indicator"), {}, {}};

template <class T>
ClassFactory::Creator creatorFor(ConsoleContext& context) {
    return [&context] {
        const auto instance = make<T>(context);
        return query<IObject>(instance.get());
    };
}

} // namespace

ConsoleClasses::ConsoleClasses(ConsoleContext& context, Dialogs dialogs) : m_classes(make<ClassFactory>()) {
    m_classes->add(kProgress, creatorFor<ConsoleProgress>(context));
    if (dialogs == Dialogs::kOffered) {
        m_classes->add(kDialog, creatorFor<ConsoleDialog>(context));
    }
    XBRGetPlugInManager()->addFactory(m_classes.get());
}

ConsoleClasses::~ConsoleClasses() {
    XBRGetPlugInManager()->removeFactory(m_classes.get());
}

} // namespace xbr::host
