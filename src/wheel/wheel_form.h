#pragma once
// The two forms of the wheel, screen and printer, as tables of the options that they read.

#include "aspects/aspect_definitions.h"
#include "chart/options.h"
#include "platform/colours.h"

namespace tolvanis {

// Numbers of options. Sizes are wheel units: one point on a window whose wheel area is 700 pixels high, and,
// within two hundredths, one point on a page of A4. A colour option of 0 stands for black.
struct WheelForm {
    bool onPaper;
    int glyphWidthAdd, digitWidthAdd, glyphHeightAdd, digitHeightAdd;  // to the steps of a planet's label
    double heightRatio;                                                // text heights are divided by it
    int largeMinutes, heightCut;  // minutes of at least this size take that off the digit's height
    int titleSize, cuspDegreesSize, cuspSignSize, cuspMinutesSize, signRingSize;
    int planetSize, degreesSize, signSize, minutesSize, retrogradeSize, aspectSize;
    int titleColour, planetColour, degreesColour, signColour, minutesColour, retrogradeColour;
    int softColour, hardColour, quincunxColour;  // sextile and trine, square and opposition
};

inline constexpr WheelForm kScreenForm = {
    .onPaper = false,
    .glyphWidthAdd = 60,
    .digitWidthAdd = 61,
    .glyphHeightAdd = 62,
    .digitHeightAdd = 63,
    .heightRatio = 640.0 / 480.0,
    .largeMinutes = 193,
    .heightCut = 194,
    .titleSize = 68,
    .cuspDegreesSize = 69,
    .cuspSignSize = 70,
    .cuspMinutesSize = 71,
    .signRingSize = 69,
    .planetSize = 72,
    .degreesSize = 73,
    .signSize = 74,
    .minutesSize = 75,
    .retrogradeSize = 76,
    .aspectSize = 77,
    .titleColour = 88,
    .planetColour = 92,
    .degreesColour = 93,
    .signColour = 94,
    .minutesColour = 95,
    .retrogradeColour = 96,
    .softColour = 97,
    .hardColour = 98,
    .quincunxColour = 99,
};

inline constexpr WheelForm kPrinterForm = {
    .onPaper = true,
    .glyphWidthAdd = 64,
    .digitWidthAdd = 65,
    .glyphHeightAdd = 66,
    .digitHeightAdd = 67,
    .heightRatio = 600.0 / 480.0,
    .largeMinutes = 195,
    .heightCut = 196,
    .titleSize = 103,
    .cuspDegreesSize = 79,
    .cuspSignSize = 79,
    .cuspMinutesSize = 79,
    .signRingSize = 79,
    .planetSize = 82,
    .degreesSize = 83,
    .signSize = 84,
    .minutesSize = 85,
    .retrogradeSize = 86,
    .aspectSize = 87,
    .titleColour = 0,
    .planetColour = 107,
    .degreesColour = 108,
    .signColour = 109,
    .minutesColour = 110,
    .retrogradeColour = 111,
    .softColour = 112,
    .hardColour = 113,
    .quincunxColour = 114,
};

// Colours that both forms share, and switches.
enum WheelOption : int {
    kLeftLabelsOption = 28,
    kAspectLinesOption = 47,
    kCuspDegreesColourOption = 89,
    kCuspSignColourOption = 90,
    kCuspMinutesColourOption = 91,
    kBackgroundOption = 100,
    kCircleColourOption = 101,
    kHouseLineColourOption = 102,
    kFollowDesktopOption = 104,
};

// The colour that an option names; numbers beyond the palette fold into it, so that a mistyped option still
// draws.
inline int ColourOf(const Options& options, int option) {
    return option == 0 ? kBlack : static_cast<int>(options[option]) & 15;
}

// The size that an option names, kept drawable.
inline double SizeOf(const Options& options, int option) {
    const double size = double{options[option]};
    return size > 0.5 ? (size < 200.0 ? size : 200.0) : 0.5;
}

// The aspects drawn as lines, in the order of their tests; conjunctions show by themselves.
inline constexpr std::array kLineSearch = {kSextile, kSquare, kTrine, kOpposition, kQuincunx};

}  // namespace tolvanis
