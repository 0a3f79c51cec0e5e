#pragma once
// Texts made comparable for a search: what a user types finds a name however it is spelled.

#include <string>
#include <string_view>

namespace tolvanis {

// The text in upper case, Latin letters without their accents (AE, OE, SS and TH for the letters that stand
// for two), apostrophes and full stops dropped, and any other run of punctuation and blanks as one blank,
// none at either end: "Saint-Étienne" and "saint etienne" both give "SAINT ETIENNE".
std::string SearchKey(std::string_view text);

}  // namespace tolvanis
