#pragma once
// The wheel in words, for those who do not see it.

#include "wheel/wheel_drawing.h"

namespace tolvanis {

// "Mercury 29 Virgo 12, house 11, retrograde. Square Moon, Trine Mars." with the aspects that the picture
// shows.
std::string PointInWords(const WheelRequest& request, int point);

// The same in lines, with declination and the distance of each aspect from exactness.
std::string PointTip(const WheelRequest& request, int point);

// House by house: its cusp, and its points in words.
std::string WheelInWords(const WheelRequest& request);

}  // namespace tolvanis
