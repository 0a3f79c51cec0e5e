#include "cli/chart_command.h"

#include "app/command_data.h"
#include "cli/chart_output.h"
#include "cli/entry_writer.h"
#include "cli/zone_check.h"
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
          data_(data),
          method_(MethodOf(request, data.options)),
          format_(request.format.value_or(OutputFormat::Text)) {}

    void Take(const NamedBirth& birth) override {
        if (birth.placed && !birth.placed->note.empty()) Tell(birth.source + ": " + birth.placed->note);
        const auto chart = MakeChart(birth.entry, method_, data_.time.order.iDate, data_.options);
        if (chart) return Print(*chart, birth);
        for (const std::string& detail : chart.fault().Details()) Refuse(birth.source, detail);
    }

  private:
    void Print(const NatalChart& chart, const NamedBirth& birth) {
        switch (format_) {
            case OutputFormat::Text:
                return Write(ChartAsText(chart, data_.options));
            case OutputFormat::Json:
                return Write(ChartAsJson(chart, birth.placed ? &*birth.placed : nullptr));
            case OutputFormat::Ascii:
                return Write(ChartAsAscii(chart));
            case OutputFormat::Report:
                return PrintReport(chart, birth);
        }
    }

    void PrintReport(const NatalChart& chart, const NamedBirth& birth) {
        const Result<std::string> report = ChartAsReport(chart, data_.options, data_.files);
        if (report) return Write(*report);
        Refuse(birth.source, report.message());
    }

    const CommandData& data_;
    Method method_;
    OutputFormat format_;
};

// The directory and options of the request; a fault is told.
std::optional<CommandData> Open(const ChartRequest& request, const HostTime& time, std::ostream& errors) {
    const Result<CommandData> data = OpenCommandData(request.appDirectory, time);
    if (!data) {
        TellOn(errors, "tolvanis-chart: " + data.message());
        return std::nullopt;
    }
    if (!data->note.empty()) TellOn(errors, "tolvanis-chart: " + data->note);
    return *data;
}

ExitStatus Run(const ChartRequest& request, const CommandData& data, const Sink& output,
               std::ostream& errors) {
    if (request.checkZones) return CheckZones(request, data, output, errors);
    ChartPrinter printer(request, data, output, errors);
    ReadBirths(request, data, printer);
    return printer.status();
}

}  // namespace

ExitStatus RunChartCommand(const ChartRequest& request, const Sink& output, std::ostream& errors,
                           const HostTime& time) {
    const std::optional<CommandData> data = Open(request, time, errors);
    return data ? Run(request, *data, output, errors) : kSomethingRefused;
}

ExitStatus RunChartCommandIntoFile(const ChartRequest& request, const Path& file, std::ostream& errors,
                                   const HostTime& time) {
    const std::optional<CommandData> data = Open(request, time, errors);
    if (!data) return kSomethingRefused;
    const auto fail = [&](const std::string& fault) {
        TellOn(errors, "tolvanis-chart: " + fault);
        return kSomethingRefused;
    };
    if (const Result<void> other = CheckOutput(request, data->files, file); !other)
        return fail(other.message());
    ExitStatus status = kAllComputed;
    bool any = false;
    const Result<void> written = ReplaceFile(file, [&](const Sink& sink) {
        bool whole = true;
        const Sink noting = [&](std::string_view text) {
            any = true;
            return whole = whole && sink(text);
        };
        status = Run(request, *data, noting, errors);
        return whole && (any || status == kAllComputed);
    });
    const bool nothingToWrite = !any && status == kSomethingRefused;  // the reasons have been told
    return written || nothingToWrite ? status : fail(written.message());
}

}  // namespace tolvanis
