#include "sandbox/pages/picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <stdexcept>
#include <zlib.h>

namespace sandbox {
namespace {

struct Colour {
    double red = 0;
    double green = 0;
    double blue = 0;
};

struct Disc {
    double x = 0; // all in fractions of the picture's height
    double y = 0;
    double radius = 0;
};

struct Scene {
    Colour from;
    Colour to;
    std::array<Disc, 3> discs;
};

constexpr std::array<Scene, 4> kScenes = {{
    {{58, 28, 113}, {215, 109, 119}, {{{0.40, 0.45, 0.30}, {1.10, 0.30, 0.22}, {1.45, 0.70, 0.38}}}},
    {{15, 76, 117}, {50, 170, 150}, {{{0.30, 0.70, 0.35}, {0.90, 0.50, 0.18}, {1.50, 0.35, 0.28}}}},
    {{120, 40, 20}, {244, 162, 97}, {{{0.50, 0.35, 0.20}, {0.95, 0.60, 0.32}, {1.55, 0.45, 0.24}}}},
    {{20, 30, 48}, {90, 110, 190}, {{{0.25, 0.40, 0.24}, {0.80, 0.40, 0.24}, {1.35, 0.40, 0.24}}}},
}};

constexpr double kDiscStrength = 0.28;
constexpr double kBarStrength = 0.45;
constexpr double kBarWidth = 0.06; // of the picture's height

Colour mix(const Colour& a, const Colour& b, double share) {
    return {a.red + (b.red - a.red) * share, a.green + (b.green - a.green) * share,
            a.blue + (b.blue - a.blue) * share};
}

// Equalizer bars along the lower edge.
bool isOnBar(double x, double y, int variant) {
    const double index = std::floor(x / kBarWidth);
    const bool isGap = x - index * kBarWidth > kBarWidth * 0.7;
    const double height = 0.12 + 0.16 * std::fabs(std::sin(index * 0.9 + variant));
    return !isGap && 1 - y < height;
}

Colour colourAt(const Scene& scene, double x, double y, double aspect, int variant) {
    constexpr Colour kWhite{255, 255, 255};
    auto colour = mix(scene.from, scene.to, (x / aspect + y) / 2);
    for (const auto& disc : scene.discs) {
        if (std::hypot(x - disc.x, y - disc.y) < disc.radius) {
            colour = mix(colour, kWhite, kDiscStrength);
        }
    }
    return isOnBar(x, y, variant) ? mix(colour, kWhite, kBarStrength) : colour;
}

// Rows of RGB, each behind a byte that says "not filtered", as PNG packs them.
std::string drawRows(int width, int height, int variant) {
    const auto& scene = kScenes[static_cast<std::size_t>(variant) % kScenes.size()];
    std::string rows;
    rows.reserve(static_cast<std::size_t>(height) * (static_cast<std::size_t>(width) * 3 + 1));
    for (int row = 0; row < height; ++row) {
        rows += '\0';
        for (int column = 0; column < width; ++column) {
            const auto colour = colourAt(scene, double(column) / height, double(row) / height,
                                         double(width) / height, variant);
            for (const double part : {colour.red, colour.green, colour.blue}) {
                rows += static_cast<char>(static_cast<unsigned char>(part));
            }
        }
    }
    return rows;
}

std::string bigEndian(std::uint32_t value) {
    return {static_cast<char>(value >> 24U), static_cast<char>(value >> 16U), static_cast<char>(value >> 8U),
            static_cast<char>(value)};
}

std::string chunk(const std::string& type, const std::string& data) {
    const auto content = type + data;
    const auto sum =
        crc32(0, reinterpret_cast<const Bytef*>(content.data()), static_cast<uInt>(content.size()));
    return bigEndian(static_cast<std::uint32_t>(data.size())) + content +
           bigEndian(static_cast<std::uint32_t>(sum));
}

std::string deflated(const std::string& data) {
    auto size = compressBound(data.size());
    std::string out(size, '\0');
    if (compress(reinterpret_cast<Bytef*>(out.data()), &size, reinterpret_cast<const Bytef*>(data.data()),
                 data.size()) != Z_OK) {
        throw std::runtime_error("a picture cannot be packed");
    }
    out.resize(size);
    return out;
}

} // namespace

std::string drawPicture(int width, int height, int variant) {
    const std::string kTrueColour8("\x08\x02\x00\x00\x00", 5);
    return "\x89PNG\r\n\x1a\n" +
           chunk("IHDR", bigEndian(static_cast<std::uint32_t>(width)) +
                             bigEndian(static_cast<std::uint32_t>(height)) + kTrueColour8) +
           chunk("IDAT", deflated(drawRows(width, height, variant))) + chunk("IEND", "");
}

} // namespace sandbox
