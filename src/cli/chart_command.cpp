#include "cli/chart_command.h"

#include "app/command_data.h"
#include "cli/chart_output.h"
#include "cli/entry_writer.h"
#include "cli/zone_check.h"
#include "platform/clock.h"
#include "platform/file_replacing.h"
#include "platform/terminal.h"

namespace tolvanis {
namespace {

// Computes and prints single charts.
class ChartPrinter : public EntryWriter {
  public:
    ChartPrinter(const ChartRequest& request, const CommandData& data, const Sink& output,
                 std::ostream& errors)
        : EntryWriter(output, errors),
          options_(data.options),
          files_(data.files),
          method_(MethodOf(request, data.options)),
          format_(request.format),
          order_(HostDateTimeOrder()) {}

    void Take(const NatalEntry& entry, const std::string& source) override { Print(entry, source, nullptr); }

    void TakePlaced(const NatalEntry& entry, const std::string& source, const PlacedBirth& placed) override {
        if (!placed.note.empty()) Tell(source + ": " + placed.note);
        Print(entry, source, &placed);
    }

  private:
    void WriteReport(const CurrentChart& chart, const std::string& source) {
        const Result<std::string> report = ChartAsReport(chart, options_, files_);
        report ? Write(*report) : Refuse(source, report.message());
    }

    void Print(const NatalEntry& entry, const std::string& source, const PlacedBirth* placed) {
        const auto made = MakeChart(entry, method_, order_.iDate, options_);
        if (!made) {
            for (const std::string& detail : made.fault().Details()) Refuse(source, detail);
            return;
        }
        const CurrentChart& chart = *made;
        switch (format_) {
            case OutputFormat::Text:
                return Write(ChartAsText(chart, options_));
            case OutputFormat::Json:
                return Write(ChartAsJson(chart, placed));
            case OutputFormat::Ascii:
                return Write(ChartAsAscii(chart));
            case OutputFormat::Report:
                return WriteReport(chart, source);
        }
    }

    const Options& options_;
    const DataFiles& files_;
    Method method_;
    OutputFormat format_;
    DateTimeOrder order_;
};

}  // namespace

ExitStatus RunChartCommand(const ChartRequest& request, const Sink& output, std::ostream& errors,
                           Clock clock) {
    const Result<CommandData> data = OpenCommandData(request.appDirectory);
    if (!data) {
        TellOn(errors, data.message());
        return kSomethingRefused;
    }
    if (!data->note.empty()) TellOn(errors, "tolvanis-chart: " + data->note);
    if (request.checkZones) return CheckZones(request, *data, output, errors, clock);
    ChartPrinter printer(request, *data, output, errors);
    ReadBirths(request, data->options, data->files, clock, printer);
    return printer.status();
}

ExitStatus RunChartCommandIntoFile(const ChartRequest& request, const Path& file, std::ostream& errors) {
    std::error_code error;
    const Path names = FindPath(PathFromText(request.namesFile.value_or(std::string())));
    if (request.namesFile && std::filesystem::is_regular_file(names, error) &&
        std::filesystem::equivalent(names, file, error)) {
        TellOn(errors, "tolvanis-chart: --output would replace the names file " + names.string());
        return kSomethingRefused;
    }
    ExitStatus status = kAllComputed;
    bool any = false;
    const Result<void> written = ReplaceFile(file, [&](const Sink& sink) {
        bool whole = true;
        const Sink noting = [&](std::string_view text) {
            any = true;
            return whole = whole && sink(text);
        };
        status = RunChartCommand(request, noting, errors, HostClock);
        return whole && (any || status == kAllComputed);
    });
    const bool nothingToWrite = !any && status == kSomethingRefused;  // the reasons have been told
    if (written || nothingToWrite) return status;
    TellOn(errors, "tolvanis-chart: " + written.message());
    return kSomethingRefused;
}

}  // namespace tolvanis
