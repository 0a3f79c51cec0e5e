#pragma once
// How the Data window looks: its font and its place on the screen, kept in the settings from run to run.

#include <cstdint>

namespace tolvanis {

struct DataViewSettings {
    double FontSize = 8.5;    // points
    double FontBold = 0.0;    // not 0 means bold
    double FontItalic = 0.0;  // not 0 means italic
    // Placement in twips.
    std::int16_t DataTop = 945;
    std::int16_t DataLeft = 900;
    std::int16_t DataHeight = 8250;
    std::int16_t DataWidth = 9600;

    friend bool operator==(const DataViewSettings&, const DataViewSettings&) = default;
};

// The largest size, in points, in which the listing is shown; the settings may name any.
inline constexpr double kLargestFontSize = 72.0;

// The font can grow below 12 points and shrink above 8; a step is half the screen's font step.
bool CanIncreaseFont(const DataViewSettings& view);
bool CanDecreaseFont(const DataViewSettings& view);
void IncreaseFont(DataViewSettings& view, double fontStep);
void DecreaseFont(DataViewSettings& view, double fontStep);

// The value that FontBold and FontItalic take for a ticked item.
double FontFlag(bool ticked);

}  // namespace tolvanis
