#pragma once

#include "framework/support/data/url.h"

#include <array>
#include <string_view>

namespace brindlex {

/// Extensions of the formats that the service takes, in the order in which file dialogs list them.
constexpr std::array<std::string_view, 3> kAudioExtensions{"wav", "flac", "mp3"};

/// True when the extension, in any case, is one of them.
bool isSupportedExtension(std::string_view extension);

/// True for the location of a local file (not a folder) of a supported type. The audio itself is not looked
/// at.
bool isSupportedAudioFile(const xbr::Url& location);

} // namespace brindlex
