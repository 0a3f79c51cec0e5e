#include "wheel/position_label.h"

#include "output/zodiac_text.h"
#include "text/numbers.h"
#include "wheel/symbols.h"
#include "wheel/wheel_form.h"

namespace tolvanis {

std::array<LabelPart, 5> PositionLabel(const Options& options, const LabelLook& look, double longitude) {
    const ZodiacPlace place = SplitZodiac(longitude);
    const std::string degrees = TwoDigits(place.degrees);
    const std::string minutes = TwoDigits(place.minutes);
    const TextFont degreesFont{SizeOf(options, look.degreesSize), true};
    const TextFont minutesFont{SizeOf(options, look.minutesSize)};
    const int degreesColour = ColourOf(options, look.degreesColour);
    const int minutesColour = ColourOf(options, look.minutesColour);
    return {{{degrees.substr(0, 1), degreesFont, degreesColour},
             {degrees.substr(1), degreesFont, degreesColour},
             {SignGlyph(place.sign), {SizeOf(options, look.signSize)}, ColourOf(options, look.signColour)},
             {minutes.substr(0, 1), minutesFont, minutesColour},
             {minutes.substr(1), minutesFont, minutesColour}}};
}

}  // namespace tolvanis
