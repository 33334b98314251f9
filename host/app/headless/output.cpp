#include "host/app/headless/output.h"

#include "host/base/textscan.h"

#include <iostream>
#include <langinfo.h>
#include <string_view>
#include <utility>

namespace xbr::host {

namespace {

/// Typographic quotes become plain ones where the terminal may not know them.
std::string forTerminal(std::string text) {
    // NOLINTNEXTLINE(concurrency-mt-unsafe): nobody sets the locale any more
    if (std::string_view(nl_langinfo(CODESET)) == "UTF-8") {
        return text;
    }
    for (const std::string_view quote : {"“", "”"}) {
        for (auto at = text.find(quote); at != std::string::npos; at = text.find(quote)) {
            text.replace(at, quote.size(), "\"");
        }
    }
    return text;
}

} // namespace

void printError(std::string_view text) {
    std::cerr << "xbrhost: " << forTerminal(plainText(text)) << std::endl;
}

void printVerdict(const Verdict& verdict) {
    if (!verdict.isGood()) {
        printError(verdict.next.empty() ? verdict.sentence : verdict.sentence + " " + verdict.next);
    }
    for (const std::string& warning : verdict.warnings) {
        printError(warning);
    }
    bool isTold = false; // the verdict tells of the first
    for (const SongVerdict& song : verdict.songs) {
        if (song.cause != Cause::kPublished && std::exchange(isTold, true) && !song.sentence.empty()) {
            printError(song.sentence);
        }
    }
}

} // namespace xbr::host
