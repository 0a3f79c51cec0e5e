#pragma once
// The Sun's geocentric longitude.

namespace tolvanis {

// Newcomb's theory of the Sun (Tables of the Motion of the Earth on its Axis and around the Sun, 1895), all
// terms of 0.1" and more, epoch 1900 January 0.5. Given: Julian centuries of 36525 days from that epoch.
// Returned: the apparent longitude in degrees, 0 <= x < 360, for the true equinox of date, aberration
// included. Good to 4" from 1900 to 2050.
double SunLongitude(double centuries);

}  // namespace tolvanis
