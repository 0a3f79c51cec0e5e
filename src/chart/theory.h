#pragma once
// The two theories of positions.

#include <optional>
#include <string_view>

namespace tolvanis {

enum class Theory { Classic, Modern };

// "classic", "modern"; letter case does not matter.
std::string_view TheoryCode(Theory theory);
std::optional<Theory> TheoryOfCode(std::string_view code);

// The theory that option 26 names: 1 Modern, Classic for any other number.
inline constexpr int kTheoryOption = 26;
Theory TheoryOfOption(float option);

}  // namespace tolvanis
