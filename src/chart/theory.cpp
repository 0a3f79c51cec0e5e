#include "chart/theory.h"

#include "text/columns.h"

namespace tolvanis {
namespace {

constexpr std::string_view kClassicCode = "classic";
constexpr std::string_view kModernCode = "modern";

}  // namespace

std::string_view TheoryCode(Theory theory) {
    return theory == Theory::Modern ? kModernCode : kClassicCode;
}

std::optional<Theory> TheoryOfCode(std::string_view code) {
    if (EqualIgnoringCase(code, kClassicCode)) return Theory::Classic;
    if (EqualIgnoringCase(code, kModernCode)) return Theory::Modern;
    return std::nullopt;
}

Theory TheoryOfOption(float option) {
    return option == 1.0F ? Theory::Modern : Theory::Classic;
}

}  // namespace tolvanis
