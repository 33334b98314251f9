#pragma once

#include "framework/abi/hostclasses.h"
#include "framework/abi/listmodel.h"
#include "framework/abi/publisher.h"
#include "framework/support/parts/classfactory.h"
#include "framework/support/parts/path.h"
#include "tests/e2e/builtmodule.h"
#include "tests/e2e/fulldisk.h"
#include "tests/sandbox/runningservice.h"

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace e2e {

/// When in an upload something happens.
enum class Moment { kCopying, kPacking, kSending, kWaiting };

/// A panel of the extension, as its view and the publish menu use it.
class Panel {
public:
    enum Mode { kSingles, kAlbum };
    enum State { kNone, kDone, kFailed, kMissing };
    struct Track {
        std::string file; ///< its name
        State state;
        bool isUploading;
        double progress;
    };

    explicit Panel(xbr::Ref<xbr::IController> controller) : m_controller(std::move(controller)) {}

    bool set(const char* path, const xbr::Value& value);
    void perform(const char* path) { set(path, xbr::integerValue(1)); }
    void setMode(Mode mode);
    void switchMode();
    void clear() { perform("TrackList/removeAll"); }

    /// Drops files on the list.
    void add(const std::vector<std::filesystem::path>& files);

    /// Fills in what a release needs.
    void complete();
    void edit(std::int32_t row, const std::string& field, const std::string& text);
    void remove(std::int32_t row);

    std::vector<Track> tracks();
    bool isAuthorized() { return clientFlag("isAuthorized"); }
    bool isIdle();

private:
    xbr::Ref<xbr::IListViewModel> list();
    bool clientFlag(const char* name);

    xbr::Ref<xbr::IController> m_controller;
};

/// Two panels, signed in to a running service, and the songs that they send. Needs a keyring: a callback
/// reaches the first panel only, the second one signs in with the tokens that were stored then.
class PublishingStage {
public:
    PublishingStage();
    PublishingStage(const PublishingStage&) = delete;
    PublishingStage& operator=(const PublishingStage&) = delete;
    ~PublishingStage();

    Panel& first() { return *m_first; }
    Panel& second() { return *m_second; }
    SmallDisk& disk() { return m_disk; }
    std::filesystem::path inbox() const { return m_service.inbox(); }

    /// A song of that name, written when it is first asked for.
    std::filesystem::path song(const std::string& name);

    /// Writes to a song.
    void change(const std::string& name);

    /// True when a file of that name had these bytes at some time.
    bool wasEver(const std::string& file, const std::string& bytes) const;

    /// Fills the first panel's list with songs, the second one's with one of its own.
    void prepare(Panel::Mode mode, const std::vector<std::string>& songs);

    /// Performs "upload" in the first panel; `action` runs once, at that moment of the first release.
    void uploadAndAt(Moment moment, const std::function<void()>& action);

    void cancelPreparation();
    void reopen(Panel& panel);
    void publish(const std::vector<std::filesystem::path>& songs);

    /// The connection of the next upload breaks: before its body is in, or instead of the reply that is
    /// awaited.
    void breakConnection(Moment moment);

    /// Runs the event loop until nothing moves any more.
    void settle();
    void signInAgain();

    /// Files that are still in the temporary folder.
    static std::vector<std::string> leftFiles();

private:
    void open(std::unique_ptr<Panel>& panel);
    void signIn(Panel& panel);
    void fault(const std::string& what);

    SmallDisk m_disk;
    RunningService m_service;
    std::string m_sendingFault;
    std::string m_waitingFault;
    std::map<std::string, std::set<std::string>> m_contents; ///< by file name
    xbr::Ref<xbr::ClassFactory> m_hostClasses = xbr::make<xbr::ClassFactory>();
    Library m_library;
    xbr::Ref<Context> m_context = xbr::make<Context>();
    xbr::Ref<xbr::IProgramService> m_programService;
    xbr::Ref<xbr::IClassFactory> m_classes;
    std::unique_ptr<Panel> m_first;
    std::unique_ptr<Panel> m_second;
};

} // namespace e2e
