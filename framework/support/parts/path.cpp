#include "framework/support/parts/path.h"

#include "framework/support/objects/text.h"

namespace xbr {

PathTarget resolvePath(IController& from, std::string_view path) {
    auto controller = Ref<IController>::share(&from);
    for (;;) {
        const auto slash = path.find('/');
        if (slash == std::string_view::npos) {
            return {std::move(controller), path};
        }
        const auto step = path.substr(0, slash);
        path.remove_prefix(slash + 1);
        if (step == "..") {
            controller = Ref<IController>::share(controller->parent());
        } else {
            controller = query<IController>(controller->findObject(toText(step)));
        }
        if (!controller) {
            return {};
        }
    }
}

IParameter* findParameter(IController& from, std::string_view path) {
    const PathTarget target = resolvePath(from, path);
    return target.controller ? target.controller->findParameter(toText(target.name)) : nullptr;
}

} // namespace xbr
