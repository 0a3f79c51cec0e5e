#pragma once
// Display constants that depend on the screen.

namespace tolvanis {

struct ScreenConstants {
    double twipsPerPixel = 15.0;  // 1440 to a logical inch
    int windowWidth = 14050;      // twips
    int windowHeight = 11505;
    double fontStep = 1.5;  // points
};

// The constants for a screen of the given width in pixels and logical resolution in dots per inch; a
// resolution that is not positive counts as 96.
ScreenConstants ScreenConstantsFor(int widthPixels, double dotsPerInch);

}  // namespace tolvanis
