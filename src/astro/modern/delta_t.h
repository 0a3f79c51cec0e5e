#pragma once
// The difference between terrestrial and universal time.

namespace tolvanis::modern {

// TT - UT in seconds at a Julian day of Universal Time: from -720 to 2019 the splines of Morrison,
// Stephenson, Hohenkerk and Zawilski, Addendum 2020 to "Measurement of the Earth's rotation: 720 BC to AD
// 2015" (Proceedings of the Royal Society A 477, 2021), Table S15; before and after, their mean change of the
// length of the day, joined to the ends of the table.
double DeltaT(double ut);

}  // namespace tolvanis::modern
