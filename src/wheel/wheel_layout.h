#pragma once
// Where the lines, signs, titles and aspect glyphs of the wheel stand, in wheel units, and what its labels
// share.

#include <span>
#include <string>
#include <vector>

#include "chart/options.h"
#include "platform/drawing_surface.h"
#include "wheel/wheel_form.h"
#include "wheel/wheel_placement.h"

namespace tolvanis {

inline constexpr double kOuterRadius = 217.0;
inline constexpr double kInnerRadius = 120.0;
inline constexpr double kSignRadius = 236.0;

// What a wheel is laid out from.
struct WheelPlan {
    const WheelSnapshot& chart;
    const WheelData& data;
    const Options& options;
    const WheelForm& form;
    ChartType type = ChartType::American;
    Extent surface;         // what the whole surface shows
    bool halfPage = false;  // the window's image will be printed: white background, black sextiles and trines

    int Background() const {
        return halfPage || form.onPaper ? kWhite : ColourOf(options, kBackgroundOption);
    }
};

struct WheelText {
    Point corner;  // upper left, as DrawingSurface::Text takes it
    std::string text;
    TextFont font;
    int colour = kBlack;
};

// The rectangle that a text's ink fills.
Extent InkOf(const WheelText& text, const TextMeasure& measure);
bool Overlap(const Extent& a, const Extent& b, double gap = 0.0);

// A text whose cell is centred on the point from side to side, the middle of its capitals up and down.
WheelText CentredText(const TextMeasure& measure, Point centre, std::string text, TextFont font, int colour);

// The point at a wheel angle and radius.
Point OnWheel(double angle, double radius);

// The wheel angles of the house lines, first house first.
std::array<double, 12> HouseLineAngles(const HouseCusps& cusps, ChartType type);

struct LineSpan {
    Point from;
    Point to;
};
// The line of a house between the circles; its ends lie on ellipses 0.9675 times as high as wide.
LineSpan HouseLine(double angle);
// What the line lacks to the outer circle.
LineSpan HouseLineEnd(const LineSpan& line);

struct SignMark {
    int sign = 1;
    double angle = 0.0;  // wheel degrees, 0 <= a < 360
};
// Each of the twelve signs once. European: at the middle of the sign. American: in the sector of the first
// house that begins in the sign or, for a sign that holds no cusp, of the house that contains it; signs that
// share a sector stand side by side about its middle.
std::vector<SignMark> SignRing(const HouseCusps& cusps, ChartType type);
// European: short lines outwards where one sign ends and the next begins.
std::vector<LineSpan> SignTicks(const HouseCusps& cusps, ChartType type);
std::vector<WheelText> SignRingTexts(const WheelPlan& plan, const TextMeasure& measure);

// The seven title lines, one below the other from the surface's upper left corner.
std::vector<WheelText> TitleTexts(const WheelPlan& plan, const TextMeasure& measure, double indent,
                                  double top);

struct AspectLine {
    int first = kSun;
    int second = kSun;
    int code = kNoAspect;
    LineSpan line;
};
// The aspects between Sun and Moon to Pluto that are drawn as lines, under the orbs of the options.
std::vector<AspectLine> AspectLines(const WheelPlan& plan, std::span<const PlacedGlyph> glyphs);
// The glyphs of the lines, at their middles; where glyphs would meet, the later one slides along its line.
std::vector<WheelText> AspectGlyphs(const WheelPlan& plan, const TextMeasure& measure,
                                    std::span<const AspectLine> lines);
int AspectColour(const WheelPlan& plan, int code);

}  // namespace tolvanis
