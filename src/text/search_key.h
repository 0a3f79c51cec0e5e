#pragma once
// Texts made comparable for a search: what a user types finds a name however it is spelled.

#include <string>
#include <string_view>
#include <vector>

namespace tolvanis {

// The text in upper case, Latin letters without their accents (AE, OE, SS and TH for the letters that stand
// for two), apostrophes and full stops dropped, and any other run of punctuation and blanks as one blank,
// none at either end: "Saint-Étienne" and "saint etienne" both give "SAINT ETIENNE". A full stop behind two
// or more letters ends a word: "St.Gallen" gives "ST GALLEN", "U.S.A." gives "USA".
std::string SearchKey(std::string_view text);

// The key and the other spellings under which the same place may be listed: ST for SAINT and the reverse, the
// same with STE and SAINTE, MT and MOUNT, FT and FORT, and A, O and U for AE, OE and UE.
std::vector<std::string> KeySpellings(const std::string& key);

}  // namespace tolvanis
