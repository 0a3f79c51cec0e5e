#pragma once
// The study texts of the Philosophy menu.

#include <array>
#include <string_view>

namespace tolvanis {

struct StudyText {
    std::string_view title;  // with "&" in front of the access key
    std::string_view fileName;
};

// In the order of the menu.
inline constexpr std::array<StudyText, 20> kStudyTexts = {{
    {"&What Is Astrology?", "WHAT_AST.TXT"},
    {"A Short &History", "HISTORY.TXT"},
    {"&The Zodiacs", "ZODIACS.TXT"},
    {"The &Natal Chart", "NATCHART.TXT"},
    {"The &Elements", "ELEMENTS.TXT"},
    {"The &Qualities", "QUALITY.TXT"},
    {"&Polarity", "POLARITY.TXT"},
    {"Planets and &Rulership", "RULERS.TXT"},
    {"The H&ouses and Their Systems", "HOUSESYS.TXT"},
    {"The &Angles of the Chart", "ANGLES.TXT"},
    {"The Aspects and Their Or&bs", "ORBS.TXT"},
    {"Retro&grade Motion", "RETROGRD.TXT"},
    {"The &Lunar Nodes", "NODES.TXT"},
    {"The Part of &Fortune", "FORTUNE.TXT"},
    {"Aspect Patterns and Chart Shapes", "PATTERNS.TXT"},
    {"&Synthesis: Reading a Chart", "SYNTHES.TXT"},
    {"&Intuition", "INTUIT.TXT"},
    {"Fate an&d Free Will", "FREEWILL.TXT"},
    {"Astrology and S&cience", "SCIENCE.TXT"},
    {"The Ethics of Co&unselling", "ETHICS.TXT"},
}};

}  // namespace tolvanis
