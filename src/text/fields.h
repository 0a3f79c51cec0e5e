#pragma once
// Comma-separated records.

#include <string>
#include <string_view>
#include <vector>

namespace tolvanis {

// The fields of one record. Blanks around a field are dropped. A field may stand in double quotes, which are
// dropped and protect commas and blanks; two quotes inside them stand for one. A field that begins with a
// quote but has more text after the closing one, or no closing one, is taken as it stands, up to the next
// comma, so that a nickname in quotes inside a name survives. An empty line is one empty field.
std::vector<std::string> SplitFields(std::string_view line);

// The first of them.
std::string FirstField(std::string_view line);

// The parts of a text between separators, empty ones included.
std::vector<std::string> SplitAt(std::string_view text, char separator);

// The field, put in quotes when it would not read back as it stands.
std::string QuotedWhereNeeded(const std::string& field);

}  // namespace tolvanis
