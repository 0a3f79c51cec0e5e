#include "interp/text_names.h"

namespace tolvanis {
namespace {

std::string Joined(std::initializer_list<std::string_view> parts) {
    std::string text;
    for (const std::string_view part : parts) text += part;
    return text;
}

}  // namespace

std::string SignFile(std::string_view threeLetters) {
    return Joined({"SIGN_", threeLetters, kTextEnding});
}

std::string HouseFile(int house) {
    return Joined({"HOUSE_", std::to_string(house), kTextEnding});
}

std::string AspectFile(std::string_view planet) {
    return Joined({planet, kTextEnding});
}

std::string PlacementKey(std::string_view planet) {
    return Joined({planet, " in"});
}

std::string RisingKey(std::string_view sign) {
    return Joined({sign, " rising"});
}

std::string AspectKey(std::string_view first, AspectPhrase phrase, std::string_view second) {
    return Joined({first, " ", kAspectPhrases[static_cast<std::size_t>(phrase)], " ", second});
}

}  // namespace tolvanis
