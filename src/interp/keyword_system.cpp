#include "interp/keyword_system.h"

#include "interp/text_names.h"
#include "text/columns.h"

namespace tolvanis {
namespace {

std::string LessonFile(std::string_view name) {
    return std::string(name).append(kTextEnding);
}

}  // namespace

std::string SignLessonFile(int sign) {
    return LessonFile(SignAbbreviation(sign));
}

std::string HouseLessonFile(int house) {
    return LessonFile(kHouseNames[static_cast<std::size_t>(house - 1)]);
}

std::string PlanetLessonFile(int planet) {
    if (planet == 1) return LessonFile("SUN_SUN");  // the Sun's own name is that of its aspects
    return LessonFile(UpperCase(GridName(planet).substr(0, 3)));
}

}  // namespace tolvanis
