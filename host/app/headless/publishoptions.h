#pragma once

#include "host/app/publishing/release.h"

#include <string>

namespace xbr::host {

/// What `xbrhost publish` was asked for.
struct PublishOptions {
    ReleaseWish wish;
    std::string releaseFile; ///< instead of the wish; empty for none
    bool isDryRun = false;
};

/// True for the options of `publish` that take a value: --album-title, --album-artist, --genre and --release,
/// and --title, --artist and --track-number, which belong to the file before them.
bool isPublishValue(const std::string& option);

/// Takes such an option. False, with the reason in `error`, when it makes no sense here.
bool takePublishValue(const std::string& option, const std::string& value, PublishOptions& options,
                      std::string& error);

/// Looks at all options together; the reason when they make no sense, otherwise empty.
std::string checkPublishOptions(const PublishOptions& options);

} // namespace xbr::host
