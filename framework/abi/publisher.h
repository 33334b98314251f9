#pragma once

#include "framework/abi/attributes.h"
#include "framework/abi/filetype.h"
#include "framework/abi/listmodel.h"

namespace xbr {

/// What the host knows about a published song.
struct IMediaAttributes : IObject {
    static constexpr Uid kUid = uid("675af635-ff70-4e59-bbe5-7eb606bc96e9");

    /// Fills `out` as IMediaFileInfo::getAttributes does.
    virtual Result getMediaAttributes(IAttributes* out) noexcept = 0;
};

/// An entry of the host's publish menu (class category "Publisher").
struct IPublisher : IObject {
    static constexpr Uid kUid = uid("2698c091-1309-4266-a05f-26eb4c73ce28");

    /// Asks for the type of file to render. kOk: the offered *type will do. kInvalidArgument: it will not,
    /// and *type was released and replaced by one that will, owned by the caller.
    virtual Result acceptFileType(IFileType** type) noexcept = 0;

    /// Takes rendered songs: objects with IUrlSource and IMediaAttributes. kUnexpected: the publisher's panel
    /// does not exist.
    virtual Result publish(IObjectIterator* items) noexcept = 0;
};

/// Describes a panel before it is opened (class category "MetaClass").
struct IGadgetDescription : IObject {
    static constexpr Uid kUid = uid("673319c2-80f9-48a3-88e4-5a47e69139eb");

    /// An attribute of the description: "themeName", "formName", "iconName", "menuIconName", "menuPriority".
    /// Empty when it is missing.
    virtual Text attribute(Text name) const noexcept = 0;
};

/// Attribute of a "Gadget" class: the UID of its "MetaClass" class, as text.
constexpr char kMetaClassAttribute[] = "Class:MetaClassID";

} // namespace xbr
