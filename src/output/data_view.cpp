#include "output/data_view.h"

#include <algorithm>

namespace tolvanis {

bool CanIncreaseFont(const DataViewSettings& view) {
    return view.FontSize < 12.0;
}

bool CanDecreaseFont(const DataViewSettings& view) {
    return view.FontSize > 8.0;
}

void IncreaseFont(DataViewSettings& view, double fontStep) {
    view.FontSize += fontStep / 2.0;
}

void DecreaseFont(DataViewSettings& view, double fontStep) {
    view.FontSize = std::min(view.FontSize, kLargestFontSize) - fontStep / 2.0;
}

double FontFlag(bool ticked) {
    return ticked ? -1.0 : 0.0;
}

}  // namespace tolvanis
