#pragma once

#include "sandbox/http/exchange.h"

#include <functional>
#include <string>
#include <vector>

namespace sandbox {

// The news feed (Atom) with the pages and pictures that it links to.
//
// The entries cover what a reader has to cope with: pictures in one or two resolutions and in either order,
// an odd pixel size, an entry without picture, one with sound only, one without dates.
class News {
public:
    struct Document {
        std::string path;
        std::string contentType;
        std::string tag; // changes when the contents do
        std::function<std::string()> make;
    };

    News();

    const std::vector<Document>& documents() const { return m_documents; }
    // The document, or 304 when the reader's copy is still good.
    static Reply serve(const Document& document, const RequestHead& head);

private:
    void addPicture(const std::string& name, int width, int height, int variant);

    std::vector<Document> m_documents;
};

} // namespace sandbox
