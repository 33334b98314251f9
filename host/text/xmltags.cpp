#include "host/text/xmltags.h"

#include <algorithm>

namespace xbr::host {

namespace {

struct Section {
    QStringView start;
    QStringView end;
};

/// What starts like a tag and is none.
constexpr Section kSections[] = {{u"<!--", u"-->"}, {u"<![CDATA[", u"]]>"}, {u"<?", u"?>"}};

/// The position behind the next `what`, or the end.
qsizetype behind(QStringView document, QStringView what, qsizetype from) {
    const auto found = document.indexOf(what, from);
    return found < 0 ? document.size() : found + what.size();
}

/// Moves `position` behind the tag there and answers how many quoted values it has.
int attributesOfTag(QStringView document, qsizetype& position) {
    int count = 0;
    while (position < document.size() && document[position] != u'>') {
        const QChar c = document[position++];
        if (c == u'"' || c == u'\'') {
            position = behind(document, QStringView(&c, 1), position);
            ++count;
        }
    }
    return count;
}

} // namespace

int mostAttributes(QStringView document) {
    int most = 0;
    for (auto position = document.indexOf(u'<'); position >= 0; position = document.indexOf(u'<', position)) {
        const auto rest = document.sliced(position);
        const auto* section = std::find_if(std::begin(kSections), std::end(kSections),
                                           [&](const Section& one) { return rest.startsWith(one.start); });
        if (section != std::end(kSections)) {
            position = behind(document, section->end, position + section->start.size());
        } else {
            most = std::max(most, attributesOfTag(document, position));
        }
    }
    return most;
}

} // namespace xbr::host
