#pragma once
// Longitude, latitude and time zone of a place from a separate atlas program that the user owns.

#include <functional>
#include <optional>
#include <string>

#include "birthdata/place.h"
#include "platform/external_program.h"
#include "platform/files.h"
#include "platform/messages.h"

namespace tolvanis {

struct AtlasProgram {
    Path file;
    bool isOwn = false;  // the delivered one
};

// Starts a program and waits until it has ended, with the user interface alive.
using RunProgram = std::function<ProgramRun(const AtlasProgram& program)>;

// What the atlas has left of one place.
struct AtlasResult {
    std::string longitude;  // degrees, the letter W or E, minutes: 122W20
    std::string latitude;   // degrees, the letter N or S, minutes: 47N36
    float timeZone = 0.0F;  // hours, west positive
};

// The place of a result. A coordinate that does not hold exactly one of its two letters is not known.
Place PlaceOfAtlas(const AtlasResult& result);

class AtlasLookup {
  public:
    // In `ownDirectory`, that of the delivered atlas, a missing result means that its user has cancelled, and
    // nothing is said of it.
    AtlasLookup(RunProgram run, Messages& messages, std::string ownDirectory = {})
        : run_(std::move(run)), messages_(messages), ownDirectory_(std::move(ownDirectory)) {}

    // Runs ATLAS.EXE of the atlas directory, asks for the directory when that cannot be started (`atlasDir`
    // then takes the answer, with a separator at its end), waits, reads what the atlas has left and shows it
    // to the user. The place when the user accepts it; lines that are no latitude, longitude and zone are
    // told and refused. While one lookup runs, a second one does nothing.
    std::optional<Place> LookUp(std::string& atlasDir);

  private:
    bool IsOwn(const std::string& atlasDir) const;
    bool RunAtlas(std::string& atlasDir);
    std::optional<AtlasResult> ReadResult(const std::string& atlasDir);
    bool IsAccepted(const AtlasResult& result);

    RunProgram run_;
    Messages& messages_;
    std::string ownDirectory_;
    bool running_ = false;
};

}  // namespace tolvanis
