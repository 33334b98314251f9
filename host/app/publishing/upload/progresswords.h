#pragma once

#include "host/app/publishing/upload/progress.h"

#include <string>

namespace xbr::host {

/// An upload in words. Parts that are not known yet are empty.
struct ProgressWords {
    std::string headline; ///< "Sending “Night Drive”, 2 of 12"
    std::string bytes;    ///< "38.6 of 94.1 MB"
    std::string speed;    ///< "4.7 MB/s"
    std::string left;     ///< "12 s left"
    std::string all;      ///< "All: 133 of 1,060 MB · 3 min left"
};

ProgressWords wordsOf(const UploadProgress& progress);
std::string wordsOf(const PreparationProgress& progress);

} // namespace xbr::host
