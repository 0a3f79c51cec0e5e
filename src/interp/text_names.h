#pragma once
// The interpretation texts by name: which file holds what, and under which key.

#include <array>
#include <string>
#include <string_view>

namespace tolvanis {

// The planets that have interpretations, Sun to Neptune; they open the grid order.
inline constexpr int kInterpretedPlanets = 9;

// How an aspect's key joins its two planets.
inline constexpr std::array<std::string_view, 3> kAspectPhrases = {"blending with", "harmonizing with",
                                                                   "discordant to"};
enum AspectPhrase : int { kBlending, kHarmonizing, kDiscordant };

inline constexpr std::string_view kRisingFile = "RISING.TXT";
inline constexpr std::string_view kTextEnding = ".TXT";

// The file of the planets in a sign, which is named by its three first letters, and in a house, 1 to 12.
std::string SignFile(std::string_view threeLetters);
std::string HouseFile(int house);

// The file of the aspects whose first planet this is.
std::string AspectFile(std::string_view planet);

std::string PlacementKey(std::string_view planet);
std::string RisingKey(std::string_view sign);
std::string AspectKey(std::string_view first, AspectPhrase phrase, std::string_view second);

}  // namespace tolvanis
