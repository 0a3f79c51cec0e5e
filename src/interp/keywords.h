#pragma once
// The keywords of astrology: a card of topics and what is told about each.

#include <array>
#include <string>
#include <string_view>

namespace tolvanis {

inline constexpr std::size_t kKeywordRows = 12;
inline constexpr std::size_t kKeywordColumns = 4;

// The card, row by row; an empty cell is no topic.
inline constexpr std::array<std::array<std::string_view, kKeywordColumns>, kKeywordRows> kKeywordGrid = {{
    {"Sun", "Aries", "1st house", "Fire"},
    {"Moon", "Taurus", "2nd house", "Earth"},
    {"Mercury", "Gemini", "3rd house", "Air"},
    {"Venus", "Cancer", "4th house", "Water"},
    {"Mars", "Leo", "5th house", ""},
    {"Jupiter", "Virgo", "6th house", "Cardinal"},
    {"Saturn", "Libra", "7th house", "Fixed"},
    {"Uranus", "Scorpio", "8th house", "Common"},
    {"Neptune", "Sagittarius", "9th house", ""},
    {"Pluto", "Capricorn", "10th house", "General 1"},
    {"Aspects", "Aquarius", "11th house", "General 2"},
    {"Symbolism", "Pisces", "12th house", "General 3"},
}};

// What is told about a topic, its lines divided by CR LF; empty for what is no topic.
std::string KeywordText(std::string_view topic);

}  // namespace tolvanis
