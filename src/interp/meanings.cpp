#include "interp/meanings.h"

#include "chart/chart_point.h"
#include "interp/section_file.h"
#include "output/text_files.h"

namespace tolvanis {
namespace {

// Planets as they are counted here.
enum Planet : int { kSunChoice, kMoonChoice, kMercuryChoice, kVenusChoice, kUranusChoice = 7 };

std::string_view PlanetName(int planet) {
    return kGridNames[static_cast<std::size_t>(planet)];
}

// Aspects that two planets near the Sun can never form.
struct ImpossibleAspect {
    int first, second;
    int fromPhrase;  // this phrase and the ones behind it
    const char* text;
};
constexpr ImpossibleAspect kImpossibleAspects[] = {
    {kSunChoice, kMercuryChoice, kHarmonizing,
     "Mercury can never by far enough away from the Sun to have this kind of aspect."},
    {kSunChoice, kVenusChoice, kDiscordant,
     "Venus can never by far enough away from the Sun to have this kind of aspect."},
    {kMercuryChoice, kVenusChoice, kDiscordant,
     "Venus can never by far enough away from Mercury to have this kind of aspect."},
};

bool IsSameDirectory(const Path& a, const Path& b) {
    std::error_code error;
    return std::filesystem::equivalent(a, b, error);
}

}  // namespace

Result<MeaningPlace> PlanetInSign(const MeaningChoice& choice) {
    if (choice.planet >= kUranusChoice) {
        return Fault{"Uranus - Pluto sign positions are not delineated."};
    }
    return MeaningPlace{SignFile(SignName(choice.sign + 1).substr(0, 3)),
                        PlacementKey(PlanetName(choice.planet))};
}

MeaningPlace PlanetInHouse(const MeaningChoice& choice) {
    return {HouseFile(choice.house + 1), PlacementKey(PlanetName(choice.planet))};
}

MeaningPlace RisingSign(const MeaningChoice& choice) {
    return {std::string(kRisingFile), RisingKey(SignName(choice.sign + 1))};
}

Result<MeaningPlace> AspectOfPlanets(const MeaningChoice& choice) {
    const int left = choice.planet, right = choice.secondPlanet;
    if (left > right) return Fault{"Please select a higher planet on the left than on the right."};
    if (left == right) return Fault{"A planet cannot aspect itself. Select a different planet."};
    for (const ImpossibleAspect& aspect : kImpossibleAspects) {
        if (left == aspect.first && right == aspect.second && choice.aspect >= aspect.fromPhrase) {
            return Fault{aspect.text};
        }
    }
    return MeaningPlace{
        AspectFile(PlanetName(left)),
        AspectKey(PlanetName(left), static_cast<AspectPhrase>(choice.aspect), PlanetName(right))};
}

Path MeaningFile(const DataFiles& files, const std::string& interpsDir, std::string_view name) {
    const Path directory = FindPath(PathFromText(interpsDir));
    return IsSameDirectory(directory, files.directory()) ? files.FindText(name) : FindFile(directory, name);
}

Result<void> ListMeaning(DataBuffer& buffer, const Path& file, std::string_view key) {
    buffer.StartListing();
    buffer.AppendBlankLine();
    LineReader reader(file);
    TakeSection(reader, key, SearchEnd::FileEnd,
                [&](std::string_view line) { buffer.AppendLine(std::string(kListingIndent).append(line)); });
    if (reader.HasFault()) return Fault{UnreadTextMessage(file, CannotRead(file, reader.fault()))};
    return {};
}

}  // namespace tolvanis
