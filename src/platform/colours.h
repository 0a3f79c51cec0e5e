#pragma once
// Colours of a drawing: the 16 of the palette, and others given by their red, green and blue.

namespace tolvanis {

// A colour is a number: 0 to 15 of the palette (black, blue, green, cyan, red, magenta, brown, light grey,
// dark grey, the light six, yellow, white), or what Rgb makes of 0xRRGGBB.
inline constexpr int kRgbColour = 0x1000000;
constexpr int Rgb(int rgb) {
    return kRgbColour | rgb;
}

// Colours of the palette.
inline constexpr int kBlack = 0;
inline constexpr int kMagenta = 5;
inline constexpr int kDarkGrey = 8;
inline constexpr int kLightRed = 12;
inline constexpr int kWhite = 15;

// 0xRRGGBB of a colour; a number beyond the palette that Rgb did not make folds into the palette.
int RgbOf(int colour);

// Contrast of two colours, 1 to 21 (Web Content Accessibility Guidelines 2.1, "contrast ratio").
double Contrast(int a, int b);

// Text and lines can be told from their ground from these contrasts on (the same guidelines, 1.4.3
// and 1.4.11).
inline constexpr double kTextContrast = 4.5;
inline constexpr double kLineContrast = 3.0;

// `share` of `a`, the rest of `b`.
int Mixed(int a, int b, double share);

// The colour itself, or as little darker or lighter as gives it that contrast to the ground.
int Legible(int colour, int ground, double contrast);

// A colour chosen for white paper as it is drawn on another ground: turned on a dark one, and legible.
int ForGround(int colour, int ground, double contrast);

}  // namespace tolvanis
