#pragma once

#include "framework/abi/publisher.h"
#include "framework/support/parts/classfactory.h"
#include "framework/support/parts/component.h"
#include "framework/support/parts/listviewmodel.h"
#include "host/app/publishing/upload/tracks.h"
#include "host/app/session/activity.h"

#include <functional>
#include <memory>
#include <vector>

namespace xbr::host {

/// How the fake module behaves in one test.
struct FakeScript {
    bool signsIn = true;
    int accountQuery = 50;            ///< milliseconds that the client is busy after a sign-in
    std::vector<TrackState> answers;  ///< of the service, one per track; then kDone
    std::vector<std::string> missing; ///< parameters of the track editor that are empty
    bool isUploadEnabled = true;
    bool preparesNothing = false;            ///< "upload" comes to nothing
    std::function<void()> duringConnect;     ///< as in the dialog
    std::function<void()> duringUpload;      ///< when "upload" is performed
    std::function<void()> duringPreparation; ///< as under the progress indicator
    Activity* activity = nullptr;
    std::vector<std::string> genres;    ///< of the editor's menu; none: it has no such menu
    std::vector<std::string> published; ///< what was handed over: file name, title, artist, genre
    int uploads = 0;                    ///< requests that were sent
    std::int64_t albumUpload = -1;      ///< as it was set last
    bool isBusy = false;
    bool isAuthorized = false;
};

/// A panel with the names of a module's panel, and the habits that make following it hard: it posts messages
/// to itself between two uploads, asks for the account after a sign-in, and drops an upload while it is busy.
class FakeModule {
public:
    explicit FakeModule(FakeScript& script);
    FakeModule(const FakeModule&) = delete;
    FakeModule& operator=(const FakeModule&) = delete;
    ~FakeModule();

private:
    Ref<ClassFactory> m_classes;
};

} // namespace xbr::host
