#include "cli/zone_check.h"

#include <cmath>

#include "astro/natal_chart.h"
#include "birthdata/zone_advice.h"
#include "chart/angles.h"
#include "cli/entry_writer.h"
#include "platform/file_replacing.h"
#include "platform/terminal.h"
#include "text/columns.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

class ZoneChecker : public EntryWriter {
  public:
    ZoneChecker(const ZoneBook& book, const Options& options, const Sink& output, std::ostream& errors)
        : EntryWriter(output, errors), book_(book), options_(options) {}

    void Take(const NamedBirth& birth) override {
        const auto& [entry, source, placed] = birth;
        const auto chart = MakeChart(entry, kAnyLatitude, 1, options_);
        if (!chart) {
            for (const std::string& detail : chart.fault().Details()) Refuse(source, detail);
            return;
        }
        const auto found = ReadingsOfEntry(book_, entry);
        if (!found) return WriteLine(source + ": " + entry.name + ": no place within 60 km is known");
        const std::string place = found->place.FullName();
        if (found->outcome() == ZoneOutcome::Unknown)
            return WriteLine(source + ": " + entry.name + ": " + WhatHappened(*found, place));
        const double zone = LeadingNumber(entry.timeZone);
        if (found->WithZone(zone) != nullptr || found->RanBeside(zone)) return;
        std::string line = source + ": " + entry.name + ": zone " + entry.timeZone;
        line += found->outcome() == ZoneOutcome::Never ? "; this time did not exist at " : "; in force at ";
        line += place;
        for (const ZoneReading& reading : found->Candidates()) {
            line += "; zone " + ZoneHoursText(found->HoursOf(reading)) + ", " + ReadingText(reading) +
                    ": Ascendant " + Difference(chart->positions.Ascendant, entry, found->HoursOf(reading)) +
                    ". " + GradeText(reading);
        }
        NoteDifference();
        WriteLine(line);
    }

  private:
    // The Ascendant does not depend on the houses.
    static constexpr Method kAnyLatitude{HouseSystem::Meridian, Theory::Classic};

    void WriteLine(const std::string& line) { Write(Printable(line) + "\n"); }

    // The way from an Ascendant to that of the entry in another zone, in degrees and minutes.
    std::string Difference(double ascendant, const NatalEntry& entry, double hours) const {
        NatalEntry other = entry;
        other.timeZone = NumberText(hours);
        const auto chart = MakeChart(other, kAnyLatitude, 1, options_);
        if (!chart) return "not computed";
        const double way = SignedArc(ascendant, chart->positions.Ascendant);
        const auto minutes = static_cast<int>(std::lround(std::abs(way) * 60.0));
        return (way < 0.0 ? "-" : "+") + std::to_string(minutes / 60) + "d " + TwoDigits(minutes % 60) + "m";
    }

    const ZoneBook& book_;
    const Options& options_;
};

}  // namespace

ExitStatus CheckZones(const ChartRequest& request, const CommandData& data, const Sink& output,
                      std::ostream& errors) {
    const Result<ZoneBook> book = ZoneBook::Open(data.files);
    if (!book) {
        TellOn(errors, "tolvanis-chart: " + book.message());
        return kSomethingRefused;
    }
    ZoneChecker checker(*book, data.options, output, errors);
    ReadBirths(request, data, checker);
    return checker.status();
}

}  // namespace tolvanis
