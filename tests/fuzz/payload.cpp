#include "sandbox/http/text.h"
#include "sandbox/upload/archive.h"
#include "sandbox/upload/refusal.h"
#include "tests/fuzz/fuzz.h"

#include <filesystem>

/// An upload's archive, somewhere in the file of its request: unpacked as it says, or refused with a reason.
void fuzz::read(std::string_view input) {
    const std::size_t offset = takeChoice(input) % 8;
    const std::string file = fileOf("body", std::string(offset, 'x').append(input));
    try {
        sandbox::Archive archive(file, offset, input.size());
        archive.readMetadata();
        for (const auto& [name, size] : archive.assets()) {
            expect(sandbox::isPlainFileName(name));
            archive.extractAsset(name, "asset");
            expect(std::filesystem::file_size("asset") == size);
        }
    } catch (const sandbox::Refusal& refusal) {
        expect(*refusal.what() != '\0');
    }
}
