#include <iostream>
#include <new>
#include <span>
#include <vector>

#include "cli/chart_command.h"
#include "platform/terminal.h"

using namespace tolvanis;

namespace {

// The status, or that of a failure when standard output has not taken everything.
ExitStatus WithOutputWritten(ExitStatus status) {
    if (FlushStandardOutput()) return status;
    TellOn(std::cerr, "tolvanis-chart: cannot write to standard output");
    return kSomethingRefused;
}

ExitStatus Print(std::string_view text) {
    WriteToStandardOutput(text);
    return WithOutputWritten(kAllComputed);
}

ExitStatus Run(std::span<const std::string_view> arguments) {
    const Result<ChartRequest> request = ParseCommandLine(arguments);
    if (!request) {
        TellOn(std::cerr, "tolvanis-chart: " + request.message() + "\n\n" + std::string(kUsage));
        return kWrongUsage;
    }
    if (request->help) return Print(kUsage);
    if (request->version) return Print("tolvanis-chart " TOLVANIS_VERSION "\n");
    if (request->output) return RunChartCommandIntoFile(*request, *request->output, std::cerr);
    return WithOutputWritten(RunChartCommand(*request, WriteToStandardOutput, std::cerr));
}

}  // namespace

int main(int argc, char** argv) {
    OccupyStandardStreams();
    OutliveFileSizeLimits();
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    try {
        return Run(arguments);
    } catch (const std::bad_alloc&) {
        TellOn(std::cerr, "tolvanis-chart: there is not enough memory");
        return kSomethingRefused;
    }
}
