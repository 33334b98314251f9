#pragma once

#include "framework/abi/controller.h"
#include "framework/abi/filetype.h"
#include "framework/abi/locale.h"

namespace xbr {

/// One showing of a form, bound to a controller. The host's own; modules hand it on.
struct IView : IObject {
    static constexpr Uid kUid = uid("77b852ae-eca2-487f-8223-f724f35b27c1");

    virtual Text formName() const noexcept = 0;

    /// The controller that the form is bound to; kept by the view.
    virtual IController* controller() noexcept = 0;
};

/// A view that can be brought to the user's sight; asked of the view that a controller was attached to.
struct IShow : IObject {
    static constexpr Uid kUid = uid("01b881bf-08c8-42bd-8271-13d2a72dd9cc");

    virtual Result show() noexcept = 0;
};

/// Forms, style sheet and images of a module's skin; created by class UID.
struct ITheme : IObject {
    static constexpr Uid kUid = uid("54b79d18-33b5-448f-9356-6695401b758b");
    static constexpr Uid kClassUid = uid("a45f91ff-4468-4db1-9f0d-9d8c25102166");

    /// Reads the skin below a folder URL ("resource://brindlex/skin"). kFalse: no skin there;
    /// kInvalidArgument: a form or the style sheet cannot be read. Nothing of it is kept then.
    virtual Result load(Text folder) noexcept = 0;

    virtual bool hasForm(Text name) const noexcept = 0;

    /// A view of a form, bound to `controller` (kept), handed over; kFalse and null when there is no such
    /// form.
    virtual Result createView(Text form, IController* controller, IView** out) noexcept = 0;
};

/// A modal dialog; created by class UID.
struct IDialog : IObject {
    static constexpr Uid kUid = uid("e6af0827-3848-4bff-87b7-0138a3fe0237");
    static constexpr Uid kClassUid = uid("03cf325b-6cd2-482c-b182-52889d529eec");

    /// Style flags of `runModal`.
    static constexpr std::int32_t kModal = 2;        ///< blocks input to the rest of the host
    static constexpr std::int32_t kCloseButton = 64; ///< may be closed from its frame

    virtual Result setTheme(ITheme* theme) noexcept = 0;                       ///< kept
    virtual Result setTranslationTable(ITranslationTable* table) noexcept = 0; ///< kept

    /// Shows the view and runs the event loop until the dialog is closed by the user or by `close`. Anything
    /// can happen in there. kUnexpected: the dialog runs already.
    virtual Result runModal(IView* view, std::int32_t styleFlags) noexcept = 0;

    /// Ends the modal run, which returns afterwards. kFalse when it does not run.
    virtual Result close() noexcept = 0;
};

/// Lets the user choose files; created by class UID.
struct IFileSelector : IObject {
    static constexpr Uid kUid = uid("d70f4205-b571-4062-ad38-1cab029ad8fd");
    static constexpr Uid kClassUid = uid("67a5d21a-9395-4ea7-a94f-8f5cba53e68d");

    enum class Mode : std::int32_t { kOpenFile = 0, kOpenFiles = 1, kSaveFile = 2 };

    virtual Result addFilter(IFileType* type) noexcept = 0;

    /// Runs the dialog; an empty title is the host's own. kOk when the user confirmed, kFalse when not.
    virtual Result run(Mode mode, Text title) noexcept = 0;

    virtual std::int32_t countUrls() const noexcept = 0;
    virtual Text urlAt(std::int32_t index) const noexcept = 0;
};

} // namespace xbr
