#include "platform/colours.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tolvanis {
namespace {

constexpr std::array kPalette = {0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080,
                                 0x808000, 0xC0C0C0, 0x808080, 0x0000FF, 0x00FF00, 0x00FFFF,
                                 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};
constexpr int kBlackRgb = Rgb(0x000000);
constexpr int kWhiteRgb = Rgb(0xFFFFFF);

// Red, green and blue, 0 to 255.
std::array<int, 3> Channels(int colour) {
    const int rgb = RgbOf(colour);
    return {rgb >> 16 & 255, rgb >> 8 & 255, rgb & 255};
}

int FromChannels(const std::array<int, 3>& channels) {
    return Rgb(channels[0] << 16 | channels[1] << 8 | channels[2]);
}

// How light a colour is, 0 to 1 (the guidelines' "relative luminance").
double Luminance(int colour) {
    constexpr std::array kWeights = {0.2126, 0.7152, 0.0722};
    double luminance = 0.0;
    for (std::size_t i = 0; i < 3; ++i) {
        const double value = Channels(colour)[i] / 255.0;
        luminance +=
            kWeights[i] * (value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4));
    }
    return luminance;
}

// The same hue with its lightness turned round: black for white, dark red for light red. What was chosen for
// a white ground fits a black one.
int LightnessTurned(int colour) {
    std::array<int, 3> channels = Channels(colour);
    const auto [least, most] = std::ranges::minmax(channels);
    for (int& channel : channels) channel += 255 - least - most;
    return FromChannels(channels);
}

}  // namespace

int RgbOf(int colour) {
    return (colour & kRgbColour) != 0 ? colour & 0xFFFFFF : kPalette[static_cast<std::size_t>(colour & 15)];
}

double Contrast(int a, int b) {
    const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

int Mixed(int a, int b, double share) {
    std::array<int, 3> mixed{};
    for (std::size_t i = 0; i < 3; ++i) {
        mixed[i] = static_cast<int>(std::lround(share * Channels(a)[i] + (1.0 - share) * Channels(b)[i]));
    }
    return FromChannels(mixed);
}

int Legible(int colour, int ground, double contrast) {
    constexpr int kSteps = 50;
    const int end = Contrast(kBlackRgb, ground) >= Contrast(kWhiteRgb, ground) ? kBlackRgb : kWhiteRgb;
    for (int step = 0; step < kSteps; ++step) {
        const int tried = step == 0 ? colour : Mixed(end, colour, step * 1.0 / kSteps);
        if (Contrast(tried, ground) >= contrast) return tried;
    }
    return end;
}

int ForGround(int colour, int ground, double contrast) {
    constexpr double kMiddleLuminance = 0.18;  // as far from black as from white, in contrast
    const bool isDark = Luminance(ground) < kMiddleLuminance;
    return Legible(isDark ? LightnessTurned(colour) : colour, ground, contrast);
}

}  // namespace tolvanis
