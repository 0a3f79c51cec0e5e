#pragma once
// The one drawing of the wheel, for every surface.

#include <cstdint>

#include "wheel/cusp_labels.h"
#include "wheel/planet_labels.h"

namespace tolvanis {

// Horizontal half-extent, in wheel units, of a wheel area: a wide one shows 225 units up and down, a tall one
// 244 to either side.
std::int16_t StartScale(double width, double height);

// What a window or picture of this shape shows. The wheel area is the middle 86 hundredths of its width and
// height; the border around it takes the signs and the labels of the cusps.
Extent WindowExtent(double width, double height);

// A wheel on a window or in a picture: background, houses and circles, cusp labels, signs, planets, aspects,
// title. `width` and `height` give the surface's shape, in any unit.
struct WheelRequest {
    const WheelSnapshot& chart;
    const WheelData& data;
    const Options& options;
    ChartType type = ChartType::American;
    double width = 1.0;
    double height = 1.0;
    WheelUse use = WheelUse::Window;
    OrbTable orbs{};                     // of the zodiac ring's aspects
    std::optional<int> desktopGround{};  // the desktop's background, for option 104
};

// How such a wheel is laid out.
WheelPlan PlanFor(const WheelRequest& request);

// Where a point's glyph was drawn.
struct DrawnPoint {
    int point = kSun;
    Box ink;
};
// The points that were drawn, from the Ascendant around the wheel.
std::vector<DrawnPoint> DrawWheel(DrawingSurface& surface, const WheelRequest& request);

// A wheel and its title, laid out: nothing touches.
struct WheelParts {
    std::vector<WheelText> title;
    std::vector<WheelText> signs;
    std::vector<WheelText> tableLabels;
    CuspLabelRows cuspLabels;
    std::vector<PlacedGlyph> glyphs;
    std::vector<PlanetLabel> planets;
};
struct TitlePlace {
    double indent, top;
};
// `taken` is where other things will stand.
WheelParts LayOutWheel(const WheelPlan& plan, const TextMeasure& measure, TitlePlace title,
                       std::span<const Box> taken);
void DrawParts(DrawingSurface& surface, const WheelPlan& plan, const WheelParts& parts);

}  // namespace tolvanis
