#include "app/birth_arguments.h"

#include <algorithm>

#include "app/options_file.h"
#include "birthdata/cities_file.h"
#include "birthdata/name_record.h"
#include "text/columns.h"
#include "text/fields.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

Result<void> SetHouses(BirthArguments& births, const std::string& code) {
    births.houses = HouseSystemOfCode(code);
    if (!births.houses) return Fault{"unknown house system \"" + code + "\" (P R K C O EA EM M I)"};
    return {};
}

Result<void> SetTheory(BirthArguments& births, const std::string& code) {
    births.theory = TheoryOfCode(code);
    if (!births.theory) return Fault{"unknown theory \"" + code + "\" (classic or modern)"};
    return {};
}

Result<void> SetPlace(BirthArguments& births, const std::string& place) {
    const std::size_t colon = place.rfind(':');
    if (colon == std::string::npos || colon == 0 || colon + 1 == place.size()) {
        return Fault{"--place needs FILE:CITY, not \"" + place + "\""};
    }
    births.place = PlaceRequest{place.substr(0, colon), place.substr(colon + 1)};
    return {};
}

Result<void> SetZone(BirthArguments& births, const std::string& hours) {
    births.zone = EntireNumber(hours);
    if (births.zone && *births.zone >= -24.0 && *births.zone <= 24.0) return {};
    return Fault{"--zone needs hours, positive west, not \"" + hours + "\""};
}

template <std::optional<std::string> BirthArguments::*member>
Result<void> Set(BirthArguments& births, const std::string& value) {
    births.*member = value;
    return {};
}

struct BirthArgument {
    std::string_view name;
    Result<void> (*set)(BirthArguments&, const std::string&);
};
constexpr std::array kBirthArguments = {
    BirthArgument{"--birth", Set<&BirthArguments::birth>},
    BirthArgument{"--names", Set<&BirthArguments::namesFile>},
    BirthArgument{"--name", Set<&BirthArguments::name>},
    BirthArgument{"--place", SetPlace},
    BirthArgument{"--at", Set<&BirthArguments::at>},
    BirthArgument{"--zone", SetZone},
    BirthArgument{"--houses", SetHouses},
    BirthArgument{"--theory", SetTheory},
    BirthArgument{"--app-dir", Set<&BirthArguments::appDirectory>},
};

// A window shows what it makes of a half day; here it would go unseen.
Result<NatalEntry> EntryOfRecord(const NameRecord& record) {
    const Result<NatalEntry> entry = EntryFromRecord(record);
    const bool known = EqualIgnoringCase(record.halfDay, "A") || EqualIgnoringCase(record.halfDay, "P");
    if (!entry || known) return entry;
    return Fault{"field 4 (half day): \"" + record.halfDay + "\" is neither A nor P"};
}

void TakeRecord(const NameRecord& record, const std::string& source, BirthReceiver& receiver) {
    const Result<NatalEntry> entry = EntryOfRecord(record);
    if (!entry) return receiver.Refuse(source, entry.message());
    receiver.Take({*entry, source, {}});
}

void ReadBirthsOfNamesFile(const BirthArguments& births, BirthReceiver& receiver) {
    const std::string& file = *births.namesFile;
    const std::string wanted = ToUtf8(births.name.value_or(std::string()));
    LineReader reader(PathFromText(file), kAnySize);
    bool found = false;
    for (std::string line; receiver.WantsMore() && !found && reader.Next(line);) {
        const std::string source = file + ":" + std::to_string(reader.LineNumber());
        if (line.find('\0') != std::string::npos)
            return receiver.Refuse(source, "the file is not a names file: it holds bytes that no text has");
        const Result<NameRecord> record = ParseNameRecord(line);
        if (record && record->name.empty()) break;  // ends the list
        if (births.name && (record ? record->name : FirstField(line)) != wanted) continue;
        if (record) {
            TakeRecord(*record, source, receiver);
        } else {
            receiver.Refuse(source, record.message());
        }
        found = births.name.has_value();
    }
    if (reader.HasFault()) {
        receiver.Refuse(file, "cannot be read: " + reader.fault());
    } else if (births.name && !found) {
        receiver.Refuse(file, "there is no record with the name \"" + *births.name + "\"");
    }
}

// The file of a place; one given by its mere name is looked up in the application directory too.
Path CitiesFile(const PlaceRequest& place, const DataFiles& files) {
    const Path asGiven = PathFromText(place.file);
    const bool isGiven = asGiven.has_parent_path() || IsNameTaken(FindPath(asGiven));
    return isGiven ? asGiven : files.Own(place.file);
}

Result<std::optional<Place>> RequestedPlace(const BirthArguments& births, const DataFiles& files) {
    if (!births.place) return std::optional<Place>();
    const Result<CityRecord> city = FindCity(CitiesFile(*births.place, files), ToUtf8(births.place->city));
    if (!city) return Fault{births.place->file + ": " + city.message()};
    if (const std::string fault = CityRecordFault(*city); !fault.empty())
        return Fault{births.place->file + ": " + city->ListText() + ": " + fault};
    return std::optional<Place>(PlaceOfCity(*city));
}

enum class RecordsPlace { Read, LeaveOut };

// The entry of a birth given as a record. Where its own place is left out it may be missing.
Result<NatalEntry> EntryOfBirth(const std::string& birth, RecordsPlace place) {
    constexpr std::size_t kFieldsBeforePlace = 4;
    const bool leaveOut = place == RecordsPlace::LeaveOut;
    std::string line = ToUtf8(birth);
    if (leaveOut && SplitFields(line).size() == kFieldsBeforePlace) line += ",,,";
    Result<NameRecord> record = ParseNameRecord(line);
    if (!record) return record.fault();
    if (record->name.empty()) return Fault{"the name is empty"};
    if (leaveOut) record->timeZone = record->longitude = record->latitude = "0";
    return EntryOfRecord(*record);
}

// A birth or the present moment at a place of the atlas.
void ReadPlacedBirth(const BirthArguments& births, const CommandData& data, BirthReceiver& receiver) {
    const Result<ZoneBook> book = ZoneBook::Open(data.files);
    if (!book) return receiver.Refuse("--at", book.message());
    if (!births.birth) {
        NatalEntry now;
        const auto placed =
            PlacePresentMoment(*book, *births.at, births.zone, OnClockOfZone(data.time.clock(), 0.0), now);
        if (!placed) return receiver.Refuse("--at", placed.message());
        return receiver.Take({now, "--now", *placed});
    }
    Result<NatalEntry> entry = EntryOfBirth(*births.birth, RecordsPlace::LeaveOut);
    if (!entry) return receiver.Refuse("--birth", entry.message());
    const Result<PlacedBirth> placed = PlaceBirth(*book, *births.at, births.zone, *entry);
    if (!placed) return receiver.Refuse("--at", placed.message());
    receiver.Take({*entry, "--birth", *placed});
}

NatalEntry EntryOfNow(std::time_t moment, const Options& options, const std::optional<Place>& place) {
    const double homeZone = options[kHomeZoneOption];
    const double zone = place ? LeadingNumber(place->timeZone) : homeZone;
    NatalEntry entry = FillNow(OnClockOfZone(moment, zone), options);
    if (place) FillPlace(entry, *place);
    return entry;
}

}  // namespace

bool Contains(std::span<const std::string_view> arguments, std::string_view wanted) {
    return std::ranges::find(arguments, wanted) != arguments.end();
}

bool ArgumentReader::Next() {
    if (rest_.empty()) return false;
    argument_ = rest_.front();
    rest_ = rest_.subspan(1);
    name_ = argument_.starts_with("--") ? argument_.substr(0, argument_.find('=')) : argument_;
    return true;
}

Result<void> ArgumentReader::CheckOnce() {
    if (Contains(seen_, name_)) return Fault{std::string(name_) + " is given twice"};
    seen_.push_back(name_);
    return {};
}

Result<std::string> ArgumentReader::Value() {
    std::string_view value = argument_.substr(std::min(name_.size() + 1, argument_.size()));
    if (name_.size() == argument_.size() && !rest_.empty()) {
        value = rest_.front();
        rest_ = rest_.subspan(1);
    }
    if (value.empty()) return Fault{std::string(name_) + " needs a value"};
    return std::string(value);
}

Result<bool> TakeBirthArgument(ArgumentReader& reader, BirthArguments& births) {
    if (reader.Is("--now")) {
        births.now = true;
        return true;
    }
    for (const BirthArgument& argument : kBirthArguments) {
        if (argument.name != reader.name()) continue;
        const Result<std::string> value = reader.Value();
        if (!value) return value.fault();
        if (const Result<void> set = argument.set(births, *value); !set) return set.fault();
        return true;
    }
    return false;
}

Method MethodOf(const BirthArguments& births, const Options& options) {
    const Method usual = MethodOfOptions(options);
    return {births.houses.value_or(usual.houses), births.theory.value_or(usual.theory)};
}

Result<void> CheckBirthArguments(const BirthArguments& births) {
    const int sources = int{births.now} + int{births.birth.has_value()} + int{births.namesFile.has_value()};
    if (sources > 1) return Fault{"only one of --now, --birth and --names can be given"};
    if (births.name && !births.namesFile) return Fault{"--name needs --names"};
    if (births.place && births.namesFile) return Fault{"--place goes with --birth or --now only"};
    if (births.at && births.namesFile) return Fault{"--at goes with --birth or --now only"};
    if (births.at && births.place) return Fault{"only one of --at and --place can be given"};
    if (births.zone && !births.at) return Fault{"--zone needs --at"};
    return {};
}

Result<void> CheckOutput(const BirthArguments& births, const DataFiles& files, const Path& output) {
    std::vector<Path> inputs = {files.Own(kOptionsFileName)};
    if (births.namesFile) inputs.push_back(PathFromText(*births.namesFile));
    if (births.place) inputs.push_back(CitiesFile(*births.place, files));
    for (const Path& input : inputs) {
        std::error_code error;
        const Path found = FindPath(input);
        if (std::filesystem::is_regular_file(found, error) &&
            std::filesystem::equivalent(found, output, error))
            return Fault{"the output would replace " + found.string() + ", which is read"};
    }
    return {};
}

void ReadBirths(const BirthArguments& births, const CommandData& data, BirthReceiver& receiver) {
    if (births.namesFile) return ReadBirthsOfNamesFile(births, receiver);
    if (births.at) return ReadPlacedBirth(births, data, receiver);
    const Result<std::optional<Place>> place = RequestedPlace(births, data.files);
    if (!place) return receiver.Refuse("--place", place.message());
    if (!births.birth)
        return receiver.Take({EntryOfNow(data.time.clock(), data.options, *place), "--now", {}});
    Result<NatalEntry> entry =
        EntryOfBirth(*births.birth, *place ? RecordsPlace::LeaveOut : RecordsPlace::Read);
    if (!entry) return receiver.Refuse("--birth", entry.message());
    if (*place) FillPlace(*entry, **place);
    receiver.Take({*entry, "--birth", {}});
}

}  // namespace tolvanis
