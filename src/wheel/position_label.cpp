#include "wheel/position_label.h"

#include "output/zodiac_text.h"
#include "text/numbers.h"
#include "wheel/symbols.h"

namespace tolvanis {

std::array<LabelPart, 3> PositionLabel(const WheelPlan& plan, const LabelLook& look, double longitude) {
    const ZodiacPlace place = SplitZodiac(longitude);
    const auto font = [&](int option, bool bold) { return TextFont{SizeOf(plan.options, option), bold}; };
    return {{{TwoDigits(place.degrees), font(look.degreesSize, true), plan.TextColour(look.degreesColour)},
             {SignGlyph(place.sign), font(look.signSize, false), plan.TextColour(look.signColour)},
             {TwoDigits(place.minutes), font(look.minutesSize, false), plan.TextColour(look.minutesColour)}}};
}

}  // namespace tolvanis
