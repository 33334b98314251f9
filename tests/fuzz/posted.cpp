#include "sandbox/http/form.h"
#include "sandbox/upload/metadata.h"
#include "sandbox/upload/multipart.h"
#include "sandbox/upload/refusal.h"
#include "tests/fuzz/fuzz.h"

namespace {

void readForm(std::string_view input) {
    const auto form = sandbox::Form::parse(input);
    for (const auto& [name, value] : form ? form->fields() : std::vector<sandbox::Form::Field>()) {
        fuzz::expect(form->value(name) == value);
    }
}

/// A first line with the type, which names the boundary; then the body.
void readMultipart(std::string_view input) {
    const auto boundary = sandbox::boundaryOf(fuzz::takeLine(input));
    const auto part = sandbox::parseSinglePart(boundary, input);
    fuzz::expect(part.offset <= input.size() && part.length <= input.size() - part.offset);
}

} // namespace

/// What clients post to the stand-in of the service: read, or refused with a reason.
void fuzz::read(std::string_view input) {
    try {
        switch (takeChoice(input) % 3) {
        case 0:
            readForm(input);
            break;
        case 1:
            readMultipart(input);
            break;
        default:
            expect(!sandbox::checkMetadata(input, "client").audioFiles.empty());
        }
    } catch (const sandbox::Refusal& refusal) {
        expect(*refusal.what() != '\0');
    }
}
