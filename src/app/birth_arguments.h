#pragma once
// The arguments that name a birth, as both programs take them, and the entries that they stand for.

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "app/command_data.h"
#include "app/placed_birth.h"
#include "astro/natal_chart.h"
#include "platform/result.h"

namespace tolvanis {

// A place of a cities file.
struct PlaceRequest {
    std::string file;
    std::string city;  // or "city,region"
};

// With neither birth nor names file, the present moment.
struct BirthArguments {
    bool now = false;
    std::optional<std::string> birth;  // one record in the names-file form
    std::optional<std::string> namesFile;
    std::optional<std::string> name;  // of one record of the names file
    std::optional<PlaceRequest> place;
    std::optional<std::string> at;      // a place of the atlas, with its zone in force
    std::optional<double> zone;         // settles the zone of `at`
    std::optional<HouseSystem> houses;  // else those that the options name
    std::optional<Theory> theory;
    std::optional<std::string> appDirectory;
};

// Whether one of the arguments is this one, wherever it stands.
bool Contains(std::span<const std::string_view> arguments, std::string_view wanted);

// Walks through arguments of the forms "--name value" and "--name=value".
class ArgumentReader {
  public:
    explicit ArgumentReader(std::span<const std::string_view> arguments) : rest_(arguments) {}

    bool Next();
    // A fault when the present argument has been there before.
    Result<void> CheckOnce();
    std::string_view name() const { return name_; }
    // The value of the present argument; a fault when there is none.
    Result<std::string> Value();
    // Whether the present argument is this one, which takes no value ("--now=3" is not it).
    bool Is(std::string_view name) const { return argument_ == name; }
    Fault Unknown() const { return {"unknown argument \"" + std::string(argument_) + "\""}; }

  private:
    std::span<const std::string_view> rest_;
    std::string_view argument_;
    std::string_view name_;
    std::vector<std::string_view> seen_;
};

// Takes the reader's present argument when it is one of these. Returns whether it was; a fault says what is
// wrong with its value.
Result<bool> TakeBirthArgument(ArgumentReader& reader, BirthArguments& births);

// How the charts are computed: by the arguments, else by the options.
Method MethodOf(const BirthArguments& births, const Options& options);

// A fault when the arguments do not go together.
Result<void> CheckBirthArguments(const BirthArguments& births);

// A fault when `output` is a file that the command reads: the names file, the cities file or the options.
Result<void> CheckOutput(const BirthArguments& births, const DataFiles& files, const Path& output);

// A birth that the arguments name.
struct NamedBirth {
    NatalEntry entry;
    std::string source;                 // where it comes from, for messages
    std::optional<PlacedBirth> placed;  // what the atlas and the zone history know of it, with --at
};

class BirthReceiver {
  public:
    virtual ~BirthReceiver() = default;
    virtual void Take(const NamedBirth& birth) = 0;
    virtual void Refuse(const std::string& source, const std::string& fault) = 0;
    virtual bool WantsMore() const = 0;
};

// Reads the births that the arguments name, holding one at a time. A record of a names file that cannot be
// read is refused, and the next one follows.
void ReadBirths(const BirthArguments& births, const CommandData& data, BirthReceiver& receiver);

}  // namespace tolvanis
