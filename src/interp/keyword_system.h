#pragma once
// The lessons of the keyword system: what the lists and buttons show, and in which files.

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "chart/chart_point.h"

namespace tolvanis {

inline constexpr std::array<std::string_view, 12> kHouseNames = {"1st", "2nd", "3rd", "4th",  "5th",  "6th",
                                                                 "7th", "8th", "9th", "10th", "11th", "12th"};

// Sun to Pluto in grid order.
inline constexpr int kLessonPlanets = 10;

// The files of the lessons on a sign, 1 to 12, a house, 1 to 12, and a planet, 1 to 10 in grid order.
std::string SignLessonFile(int sign);
std::string HouseLessonFile(int house);
std::string PlanetLessonFile(int planet);

// The lists to choose from.
struct LessonChoice {
    const char *control, *caption;
    std::span<const std::string_view> items;
    std::string (*fileOf)(int item);  // counted from 1
};
inline constexpr std::array<LessonChoice, 3> kLessonChoices = {{
    {"Combo1", "S&igns", kSignNames, SignLessonFile},
    {"Combo2", "&Houses", kHouseNames, HouseLessonFile},
    {"Combo3", "&Planets", std::span(kGridNames).first<kLessonPlanets>(), PlanetLessonFile},
}};

struct LessonButton {
    const char *control, *caption, *file;
};
inline constexpr std::array<LessonButton, 7> kLessonButtons = {{
    {"OKIntro1", "Intro", "INTRO1.TXT"},
    {"OKIntro2", "Steps", "INTRO2.TXT"},
    {"OKKey1", "Key", "KEY.TXT"},
    {"OKGeneral1", "General", "GENERAL.TXT"},
    {"OKExample1", "Example", "EXAMPLE1.TXT"},
    {"OKExample2", "Summary", "EXAMPLE2.TXT"},
    {"OKAspects", "Aspects", "ASPECTS.TXT"},
}};

}  // namespace tolvanis
