#pragma once
// Single interpretations, looked up without a chart.

#include <string>

#include "interp/text_names.h"
#include "output/data_buffer.h"
#include "platform/data_files.h"

namespace tolvanis {

// What the user has chosen, each counted from 0: signs from Aries, houses from the first, planets from the
// Sun in grid order.
struct MeaningChoice {
    int sign = 6;
    int house = 6;
    int planet = 0;
    int aspect = kDiscordant;
    int secondPlanet = 1;
};

// Where an interpretation stands.
struct MeaningPlace {
    std::string file;
    std::string key;
};

// The places of what can be asked about a choice. A fault is the text that tells why there is no such
// interpretation.
Result<MeaningPlace> PlanetInSign(const MeaningChoice& choice);
MeaningPlace PlanetInHouse(const MeaningChoice& choice);
MeaningPlace RisingSign(const MeaningChoice& choice);
Result<MeaningPlace> AspectOfPlanets(const MeaningChoice& choice);

// The file of that name among the texts that the meanings are read from: the interpretation directory of the
// settings. When that is the application directory itself, the delivered texts stand behind it.
Path MeaningFile(const DataFiles& files, const std::string& interpsDir, std::string_view name);

// Makes the interpretation, every line set in by two blanks, the buffer's new listing behind a blank line. A
// key that the file does not have adds nothing. A fault is the text for the user about a file that cannot be
// read; the lines read before it stay.
Result<void> ListMeaning(DataBuffer& buffer, const Path& file, std::string_view key);

}  // namespace tolvanis
