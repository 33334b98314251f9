#include "host/app/publishing/genres.h"

#include "framework/abi/textformats.h"
#include "framework/support/objects/text.h"
#include "tests/fuzz/fuzz.h"
#include "tests/fuzz/streams.h"

#include <algorithm>

namespace {

std::vector<std::string> linesOf(std::string_view bytes) {
    std::vector<std::string> lines;
    xbr::Ref<xbr::ITextStreamer> streamer;
    xbr::Ref<xbr::IString> line;
    XBRCreateTextStreamer(fuzz::streamOf(bytes).get(), streamer.out());
    while (streamer->readLine(line.out()) == xbr::kOk) {
        lines.emplace_back(xbr::trim(xbr::view(line->text())));
        fuzz::expect(lines.back().find('\n') == std::string::npos);
    }
    return lines;
}

} // namespace

/// A first line that was typed, and the list of genres in which it is looked up.
void fuzz::read(std::string_view input) {
    const std::string typed(takeLine(input));
    const auto names = linesOf(input);
    const xbr::host::Genres genres(names);
    for (const std::string& near : genres.near(typed)) {
        expect(std::find(names.begin(), names.end(), near) != names.end());
    }
    for (const std::string& name : names) {
        expect(name.empty() || genres.match(name).has_value());
    }
}
