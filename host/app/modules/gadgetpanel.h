#pragma once

#include "framework/abi/controller.h"
#include "framework/abi/listmodel.h"
#include "framework/abi/publisher.h"
#include "framework/abi/uid.h"
#include "framework/support/objects/object.h"
#include "host/base/problem.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace xbr::host {

/// A panel that a module offers, as its description tells before the panel is opened. What the description
/// leaves out is empty.
struct GadgetClass {
    Uid uid{};        ///< creates the panel's controller
    std::string name; ///< for people
    std::string themeName;
    std::string formName;
    std::string iconName;
    std::string menuIconName;
    std::int64_t menuPriority = 0; ///< lower ones come first
};

/// The panels of all modules that are loaded, in the order in which a menu lists them.
std::vector<GadgetClass> findGadgets();

/// Where a panel's client stands (its property "clientState").
enum class ClientState : std::uint8_t { kIdle, kAwaitingBrowser, kRequestingToken, kConnected, kFailed };

/// The panel of a module: the controller of its gadget, with the view that stands for it in this host.
///
/// The names below are those that the panel's forms bind to: the child "Client" with its properties, the list
/// model "TrackList/tracks", and parameters by path.
class GadgetPanel {
public:
    /// Makes the panel of a gadget. `show` is called when a module wants the panel to be seen.
    static Outcome<std::unique_ptr<GadgetPanel>> open(const GadgetClass& gadget, std::function<void()> show);

    GadgetPanel(const GadgetPanel&) = delete;
    GadgetPanel& operator=(const GadgetPanel&) = delete;
    ~GadgetPanel();

    const std::string& name() const { return m_name; }
    IController& controller() const { return *m_controller; }

    /// The list of tracks; empty when the panel has none.
    Ref<IListViewModel> tracks() const;

    /// A true or false property of the child "Client"; false when it is missing.
    bool isClient(std::string_view property) const;

    ClientState clientState() const;

    /// The text of a parameter; empty when it is missing.
    std::string text(std::string_view path) const;

    /// True when the songs of the list go to the service as one album.
    bool isAlbum() const;

    /// The toggle that says so.
    static constexpr std::string_view kAlbumMode = "TrackList/albumUpload";

    /// Sets a parameter as a user does: performs a command with 1, switches a toggle. False when there is no
    /// such parameter, or it is disabled. Returns when the panel has dealt with it, which may run the event
    /// loop.
    bool set(std::string_view path, std::int64_t value);

    /// True when a user could perform the command.
    bool isEnabled(std::string_view path) const;

private:
    class View;
    std::int64_t numberOfClient(std::string_view property) const;
    GadgetPanel(std::string name, Ref<IController> controller, Ref<View> view);

    std::string m_name; ///< for people
    Ref<IController> m_controller;
    Ref<View> m_view;
};

} // namespace xbr::host
