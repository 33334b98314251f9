#pragma once

#include "framework/abi/hostclasses.h"
#include "framework/abi/pluginmanager.h"
#include "framework/abi/progress.h"
#include "framework/abi/view.h"
#include "framework/support/objects/object.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace fakehost {

/// Creates the host's objects by class UID: fakes that tests steer through these members.
class FakePlugInManager final : public xbr::Object<xbr::IPlugInManager> {
public:
    xbr::Result createInstance(const xbr::Uid& classUid, const xbr::Uid& interfaceUid,
                               void** out) noexcept override;
    xbr::Result addFactory(xbr::IClassFactory* factory) noexcept override {
        factories.push_back(factory);
        return xbr::kOk;
    }
    xbr::Result removeFactory(xbr::IClassFactory* factory) noexcept override {
        return std::erase(factories, factory) > 0 ? xbr::kOk : xbr::kFalse;
    }
    std::int32_t countClasses(xbr::Text) const noexcept override { return 0; }
    const xbr::ClassDescription* classAt(xbr::Text, std::int32_t,
                                         const xbr::IAttributes**) const noexcept override {
        return nullptr;
    }

    std::vector<xbr::IClassFactory*> factories; ///< those that were added

    std::optional<bool> joinTokenAllowed; ///< none: the host knows nothing of it
    std::map<std::string, std::string> configuration;
    std::map<std::string, std::map<std::string, std::string>> tags; ///< by file URL

    std::vector<std::string> chosenFiles;   ///< what the file dialog answers; none: the user cancels
    std::function<void()> onModalRun;       ///< what happens while the connect dialog is open
    std::function<void()> onProgressUpdate; ///< what happens while the progress indicator runs the event loop
    bool cancelled = false;                 ///< the user cancelled the progress indicator
    std::vector<std::string> log;           ///< what dialogs and indicators were told
};

} // namespace fakehost
