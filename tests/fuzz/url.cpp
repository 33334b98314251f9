#include "framework/support/data/url.h"

#include "framework/support/data/formencoding.h"
#include "framework/support/objects/text.h"
#include "host/base/fileurl.h"
#include "tests/fuzz/fuzz.h"

namespace {

/// Whatever the text is, its parts can be asked for, and it is written as it was.
void readParts(std::string_view text) {
    const xbr::Url url(text);
    fuzz::expect(url.toString() == xbr::trim(text));
    const xbr::Url again(url.parent().join(url.fileName()).toString());
    fuzz::expect(url.extension().size() <= url.fileName().size());
    fuzz::expect(again.toString().size() >= again.path().size());
    if (const auto path = xbr::host::localPath(text)) {
        fuzz::expect(path->starts_with('/') && path->find('\0') == std::string::npos);
        fuzz::expect(xbr::host::localPath(xbr::host::fileUrl(*path)) == path);
    }
}

} // namespace

/// What is written into a URL comes out of it again.
void fuzz::read(std::string_view input) {
    readParts(input);
    xbr::Url url("https://service.example/");
    url.addQueryParameter("name", input);
    expect(xbr::Url(url.toString()).queryParameter("name") == input);
    expect(xbr::percentDecode(xbr::encodePathSegment(input)) == input);
}
