#include "cli/chart_command.h"

#include <ostream>

#include "app/app_directory.h"
#include "app/options_file.h"
#include "birthdata/cities_file.h"
#include "birthdata/name_record.h"
#include "cli/chart_output.h"
#include "platform/clock.h"
#include "text/columns.h"
#include "text/fields.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

// Computes and prints single charts, and remembers whether one was refused.
class ChartPrinter {
  public:
    ChartPrinter(const ChartRequest& request, const Options& options, const Sink& output,
                 std::ostream& errors)
        : options_(options),
          houses_(request.houses.value_or(HouseSystemOfOption(options[27]))),
          format_(request.format),
          output_(output),
          errors_(errors),
          order_(HostDateTimeOrder()) {}

    // `source` is where the entry comes from, for messages.
    void Print(const NatalEntry& entry, const std::string& source) {
        const std::vector<InputFault> faults = CheckEntry(entry, houses_);
        for (const InputFault& fault : faults) Refuse(source, fault.detail);
        if (!faults.empty()) return;
        const NatalData natal = ParseNatalData(entry, houses_, order_.iDate);
        const Result<ChartPositions> positions = ComputePositions(natal);
        if (!positions) return Refuse(source, positions.message());
        const CurrentChart chart{natal, *positions, FindAspects(*positions, options_), true};
        Write(format_ == OutputFormat::Json ? ChartAsJson(chart) : ChartAsText(chart, options_));
    }

    void Print(const NameRecord& record, const std::string& source) {
        const Result<NatalEntry> entry = EntryFromRecord(record);
        if (!entry) return Refuse(source, entry.message());
        Print(*entry, source);
    }

    void Refuse(const std::string& source, const std::string& fault) {
        errors_ << source << ": " << fault << "\n";
        status_ = kSomethingRefused;
    }

    bool CanWrite() const { return canWrite_; }
    ExitStatus status() const { return status_; }

  private:
    void Write(const std::string& text) {
        if (canWrite_ && !output_(text)) {
            canWrite_ = false;
            status_ = kSomethingRefused;
        }
    }

    const Options& options_;
    HouseSystem houses_;
    OutputFormat format_;
    const Sink& output_;
    std::ostream& errors_;
    DateTimeOrder order_;
    bool canWrite_ = true;
    ExitStatus status_ = kAllComputed;
};

void PrintNamesFile(const ChartRequest& request, ChartPrinter& printer) {
    const std::string& file = *request.namesFile;
    LineReader reader{PathFromText(file)};
    bool found = false;
    for (std::string line; printer.CanWrite() && !found && reader.Next(line);) {
        const std::string source = file + ":" + std::to_string(reader.LineNumber());
        const Result<NameRecord> record = ParseNameRecord(line);
        if (record && record->name.empty()) break;  // ends the list
        if (request.name && (!record || record->name != *request.name)) continue;
        if (record) {
            printer.Print(*record, source);
        } else {
            printer.Refuse(source, record.message());
        }
        found = request.name.has_value();
    }
    if (!reader.IsOpen()) {
        printer.Refuse(file, "cannot be read: " + reader.Problem());
    } else if (request.name && !found) {
        printer.Refuse(file, "there is no record with the name \"" + *request.name + "\"");
    }
}

// The place that was asked for; the file is looked up as given, then in the application directory.
Result<std::optional<Place>> RequestedPlace(const ChartRequest& request, const Path& appDirectory) {
    if (!request.place) return std::optional<Place>();
    const Path asGiven = PathFromText(request.place->file);
    const Path file = IsReadableFile(asGiven) ? asGiven : FindFile(appDirectory, request.place->file);
    const Result<CityRecord> city = FindCity(file, ToUtf8(request.place->city));
    if (!city) return Fault{request.place->file + ": " + city.message()};
    return std::optional<Place>(PlaceOfCity(*city));
}

// The entry of a birth given as a record. With a place the record's own one is not read and may be missing.
Result<NatalEntry> EntryOfBirth(const std::string& birth, const std::optional<Place>& place) {
    constexpr std::size_t kFieldsBeforePlace = 4;
    std::string line = ToUtf8(birth);
    if (place && SplitFields(line).size() == kFieldsBeforePlace) line += ",,,";
    Result<NameRecord> record = ParseNameRecord(line);
    if (!record) return Fault{record.message()};
    if (record->name.empty()) return Fault{"the name is empty"};
    if (place) record->timeZone = record->longitude = record->latitude = "0";
    Result<NatalEntry> entry = EntryFromRecord(*record);
    if (entry && place) FillPlace(*entry, *place);
    return entry;
}

void PrintBirth(const std::string& birth, const std::optional<Place>& place, ChartPrinter& printer) {
    const std::string source = "--birth";
    const Result<NatalEntry> entry = EntryOfBirth(birth, place);
    if (!entry) return printer.Refuse(source, entry.message());
    printer.Print(*entry, source);
}

void PrintNow(const Options& options, const std::optional<Place>& place, ChartPrinter& printer) {
    const LocalTime now = place ? PresentMomentInZone(LeadingNumber(place->timeZone)) : PresentMoment();
    NatalEntry entry = FillNow(now, options);
    if (place) FillPlace(entry, *place);
    printer.Print(entry, "--now");
}

}  // namespace

ExitStatus RunChartCommand(const ChartRequest& request, const Sink& output, std::ostream& errors) {
    const Result<Path> directory =
        ApplicationDirectory(HintsOfProcess(request.appDirectory), FirstStart::LeaveAsIs);
    Options options;
    if (!directory) {
        errors << directory.message() << "\n";
        return kSomethingRefused;
    }
    if (const Result<int> read = ReadOptions(*directory, options); !read) {
        errors << read.message() << "\n";
        return kSomethingRefused;
    }
    const Result<std::optional<Place>> place = RequestedPlace(request, *directory);
    if (!place) {
        errors << "--place: " << place.message() << "\n";
        return kSomethingRefused;
    }
    ChartPrinter printer(request, options, output, errors);
    if (request.birth) {
        PrintBirth(*request.birth, *place, printer);
    } else if (request.namesFile) {
        PrintNamesFile(request, printer);
    } else {
        PrintNow(options, *place, printer);
    }
    return printer.status();
}

}  // namespace tolvanis
