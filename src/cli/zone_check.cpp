#include "cli/zone_check.h"

#include <cmath>

#include "app/chart_driver.h"
#include "birthdata/zone_advice.h"
#include "chart/angles.h"
#include "platform/terminal.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

class ZoneChecker : public EntryReceiver {
  public:
    ZoneChecker(const ZoneBook& book, const Options& options, const Sink& output, std::ostream& errors)
        : book_(book), options_(options), output_(output), errors_(errors) {}

    void Take(const NatalEntry& entry, const std::string& source) override {
        const auto found = ReadingsOfEntry(book_, entry);
        if (!found) return Write(source + ": " + entry.name + ": no place within 60 km is known\n", false);
        const double typed = LeadingNumber(entry.timeZone);
        if (found->WithZone(typed) != nullptr) return;
        std::string line = source + ": " + entry.name + ": zone " + entry.timeZone;
        const bool exists = !found->answer.readings.empty();
        line += exists ? "; in force at " : "; this time did not exist at ";
        line += found->place.FullName();
        for (const ZoneReading& reading : exists ? found->answer.readings : found->answer.around) {
            line += "; zone " +
                    ZoneHoursText(static_cast<int>(std::lround(-found->HoursOf(reading) * 3600.0))) + ", " +
                    ReadingText(reading) + ": Ascendant " + Difference(entry, found->HoursOf(reading)) +
                    ". " + GradeText(reading);
        }
        Write(line + "\n", true);
    }

    void Refuse(const std::string& source, const std::string& fault) override {
        TellOn(errors_, source + ": " + fault);
        status_ = kSomethingRefused;
    }

    bool WantsMore() const override { return canWrite_; }
    ExitStatus status() const { return status_; }

  private:
    // The way of the Ascendant from the entry's zone to another, in degrees and minutes.
    std::string Difference(const NatalEntry& entry, double hours) const {
        NatalEntry other = entry;
        other.timeZone = NumberText(hours);
        // Meridian houses are computed at every latitude; the Ascendant does not depend on them.
        const auto before = MakeChart(entry, {HouseSystem::Meridian, Theory::Classic}, 1, options_);
        const auto after = MakeChart(other, {HouseSystem::Meridian, Theory::Classic}, 1, options_);
        if (!before || !after) return "not computed";
        double way = Norm360(after->positions.Ascendant - before->positions.Ascendant);
        if (way > 180.0) way -= 360.0;
        const auto minutes = static_cast<int>(std::lround(std::abs(way) * 60.0));
        return (way < 0.0 ? "-" : "+") + std::to_string(minutes / 60) + "d " + TwoDigits(minutes % 60) + "m";
    }

    void Write(const std::string& line, bool differs) {
        if (differs) status_ = kSomethingRefused;
        canWrite_ = canWrite_ && output_(line);
        if (!canWrite_) status_ = kSomethingRefused;
    }

    const ZoneBook& book_;
    const Options& options_;
    const Sink& output_;
    std::ostream& errors_;
    bool canWrite_ = true;
    ExitStatus status_ = kAllComputed;
};

}  // namespace

ExitStatus CheckZones(const ChartRequest& request, const CommandData& data, const Sink& output,
                      std::ostream& errors, Clock clock) {
    const Result<ZoneBook> book = ZoneBook::Open(data.files);
    if (!book) {
        TellOn(errors, book.message());
        return kSomethingRefused;
    }
    ZoneChecker checker(*book, data.options, output, errors);
    ReadBirths(request, data.options, data.files, clock, checker);
    return checker.status();
}

}  // namespace tolvanis
