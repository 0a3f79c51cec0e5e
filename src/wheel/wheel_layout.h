#pragma once
// Where the lines, signs, titles and aspect glyphs of the wheel stand, in wheel units, and what its labels
// share.

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "aspects/orbs_file.h"
#include "chart/options.h"
#include "platform/drawing_surface.h"
#include "wheel/wheel_form.h"
#include "wheel/wheel_placement.h"
#include "wheel/wheel_text.h"

namespace tolvanis {

inline constexpr double kOuterRadius = 217.0;
inline constexpr double kInnerRadius = 120.0;
inline constexpr double kSignRadius = 236.0;

// Radii of the zodiac ring, from outside, within the outer circle: the band of the signs, the degrees, the
// planets, the house numbers, the aspects.
inline constexpr double kRingBandRadius = 193.0;  // inner edge of the signs' band, outer of the degrees
inline constexpr double kRingScaleRadius = 185.0;
inline constexpr double kRingGlyphRadius = 167.0;
inline constexpr double kRingInnerRadius = 110.0;
inline constexpr double kRingAspectRadius = 97.0;

// The colour of a sign's element: fire red, earth green, air brown, water blue; legible on the ground.
int ElementColour(int sign, int ground);

// Where a wheel is seen.
enum class WheelUse {
    Window,    // or in a picture
    HalfPage,  // the window's image on paper: white background, black sextiles and trines
};

// What a wheel is laid out from.
struct WheelPlan {
    const WheelSnapshot& chart;
    const WheelData& data;
    const Options& options;
    const WheelForm& form;
    ChartType type = ChartType::American;
    Extent surface;  // what the whole surface shows
    WheelUse use = WheelUse::Window;
    std::optional<int> desktopGround{};  // the desktop's background, where the wheel follows it
    double pixelsPerUnit = 0.0;          // of a window or a picture; 0 on paper
    OrbTable orbs{};                     // of the zodiac ring's aspects

    bool IsOnPaper() const { return use == WheelUse::HalfPage || form.onPaper; }
    int Background() const;
    // The colour of an option, or of the palette, for texts and for lines. Chosen for white paper, it is
    // turned and made legible where the wheel follows a desktop.
    int TextColour(int option) const { return OnGround(ColourOf(options, option), kTextContrast); }
    int LineColour(int option) const { return OnGround(ColourOf(options, option), kLineContrast); }
    int OnGround(int colour, double contrast) const;
    // Of a sign, by its element.
    int SignColour(int sign) const { return ElementColour(sign, Background()); }
    // A picture so small that minutes could not be read: labels show degrees and sign.
    bool IsReduced() const;
};

// The wheel angles of the house lines, first house first.
std::array<double, 12> HouseLineAngles(const HouseCusps& cusps, ChartType type);

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
// The glyphs of the ring; one that would meet what is taken slides along the ring.
std::vector<WheelText> SignRingTexts(const WheelPlan& plan, const TextMeasure& measure,
                                     std::span<const Box> taken);

// The seven title lines, one below the other from the surface's upper left corner; smaller where they would
// meet what is taken or leave the surface, and cut short only where that is not enough.
std::vector<WheelText> TitleTexts(const WheelPlan& plan, const TextMeasure& measure, double indent,
                                  double top, std::span<const Box> taken);

struct AspectLine {
    int first = kSun;
    int second = kSun;
    AspectCode code = kNoAspect;
    LineSpan line;
};
// The aspects between Sun and Moon to Pluto that are drawn as lines, under the orbs of the options.
std::vector<AspectLine> AspectLines(const WheelPlan& plan, std::span<const PlacedGlyph> glyphs);
// A glyph that stands on a line.
struct LineGlyph {
    LineSpan line;
    std::string text;
    TextFont font;
    int colour = kBlack;
    double gap = 0.0;  // to what is taken
};
// The glyph on the first free place of its line from the middle outwards; none where every place is taken.
std::optional<WheelText> GlyphOnLine(const LineGlyph& glyph, const TextMeasure& measure,
                                     std::span<const Box> taken);
// The glyphs of the lines, at their middles; where glyphs would meet, the later one slides along its line or
// becomes smaller.
std::vector<WheelText> AspectGlyphs(const WheelPlan& plan, const TextMeasure& measure,
                                    std::span<const AspectLine> lines);
// Of a line or, with the contrast of texts, of a glyph.
int AspectColour(const WheelPlan& plan, AspectCode code, double contrast = kLineContrast);

}  // namespace tolvanis
