#pragma once

#include "framework/abi/controller.h"
#include "framework/support/objects/ref.h"
#include "framework/support/objects/text.h"

#include <string_view>

namespace xbr {

/// What a path of a form leads to, seen from a controller: the controller that holds the last name, and that
/// name. The controller is null when a step of the path leads nowhere.
struct PathTarget {
    Ref<IController> controller;
    std::string_view name; ///< a part of the path that was resolved
};

/// Resolves a path such as "../upload" or "TrackList/addTracks" (grammar: see IController).
PathTarget resolvePath(IController& from, std::string_view path);

/// The parameter that a path names; null when there is none. Borrowed from its controller.
IParameter* findParameter(IController& from, std::string_view path);

/// The child or object that a path names; empty when there is none.
template <class Interface>
Ref<Interface> findObject(IController& from, std::string_view path) {
    const PathTarget target = resolvePath(from, path);
    return target.controller ? query<Interface>(target.controller->findObject(toText(target.name))) : nullptr;
}

} // namespace xbr
