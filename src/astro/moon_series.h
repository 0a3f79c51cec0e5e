#pragma once
// The Moon's longitude, latitude and nodes.

namespace tolvanis {

// All in degrees; longitudes 0 <= x < 360.
struct MoonPosition {
    double longitude = 0.0;  // true equinox of date: nutation is included
    double latitude = 0.0;
    double meanNode = 0.0;  // mean ascending node, mean equinox of date
    double trueNode = 0.0;  // osculating node by its five largest terms
};

// Brown's lunar theory, truncated near half an arc second, epoch 1900 January 0.5.
// Given: Julian centuries of 36525 days from that epoch. The longitude is good to 40" from 1900 to 2050 (the
// list leaves out two larger terms), the true node to 0.3 degree, 0.08 in the root mean square.
MoonPosition ComputeMoon(double centuries);

}  // namespace tolvanis
