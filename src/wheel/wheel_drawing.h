#pragma once
// The one drawing of the wheel, for every surface.

#include <cstdint>

#include "wheel/wheel_layout.h"

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
    bool halfPage = false;
};
void DrawWheel(DrawingSurface& surface, const WheelRequest& request);

// The wheel itself, with neither title nor background; `taken` is where other texts will stand.
void DrawWheelBody(DrawingSurface& surface, const WheelPlan& plan, std::span<const Extent> taken);

void DrawTexts(DrawingSurface& surface, std::span<const WheelText> texts);

}  // namespace tolvanis
