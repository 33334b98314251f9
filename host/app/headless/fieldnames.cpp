#include "host/app/headless/fieldnames.h"

#include <string_view>

namespace xbr::host {

namespace {

struct FieldName {
    std::string_view field;
    const char* name;
};

constexpr FieldName kFieldNames[] = {{"albumTitle", "album title"},
                                     {"albumArtist", "album artist"},
                                     {"primaryGenre", "genre"},
                                     {"songTitle", "song title"},
                                     {"songArtist", "song artist"}};

std::string nameOf(const std::string& field) {
    for (const FieldName& known : kFieldNames) {
        if (known.field == field) {
            return known.name;
        }
    }
    return field;
}

} // namespace

std::string describeFields(const std::vector<std::string>& fields) {
    std::string text;
    for (const std::string& field : fields) {
        text += (text.empty() ? "" : ", ") + nameOf(field);
    }
    return text;
}

} // namespace xbr::host
