# Writes a source that holds the bytes of a ZIP archive: cmake -DARCHIVE=... -DSOURCE=... -P embed.cmake
#
# They are the same each time: who built it, and when its files were read and changed last, is taken out.
file(READ ${ARCHIVE} bytes HEX)
set(time 80436d38) # 2000-01-01, as the archive was told
string(REGEX REPLACE "(55540d0007)${time}................" "\\1${time}${time}${time}" bytes "${bytes}")
string(REGEX REPLACE "75780b000104........04........" "75780b000104000000000400000000" bytes "${bytes}")
string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
string(REGEX REPLACE "(................................................................................)" "\\1\n" bytes "${bytes}")
file(WRITE ${SOURCE} "#include \"module/resources.h\"

namespace brindlex {

namespace {

constexpr unsigned char kArchive[] = {
${bytes}};

} // namespace

std::span<const unsigned char> resourceArchive() {
    return kArchive;
}

} // namespace brindlex
")
