#pragma once
// The fixed-pitch font of listings, editors and printed texts.

#include <QFont>

namespace tolvanis {

// "Courier New", or where it is missing a font of the same widths, or any fixed-pitch font; never a
// proportional one. The size is in points and kept between 4 and 72.
QFont ListingFont(double pointSize);

bool IsReallyFixedPitch(const QFont& font);

}  // namespace tolvanis
