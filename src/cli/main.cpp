#include <iostream>
#include <span>
#include <vector>

#include "cli/chart_command.h"
#include "platform/terminal.h"

using namespace tolvanis;

namespace {

constexpr std::string_view kProgram = "tolvanis-chart";

ExitStatus Run(std::span<const std::string_view> arguments) {
    const Result<ChartRequest> request = ParseCommandLine(arguments);
    if (!request) {
        TellOn(std::cerr, "tolvanis-chart: " + request.message() + "\n\n" + std::string(kUsage));
        return kWrongUsage;
    }
    if (request->help) return PrintAbout(kProgram, kUsage);
    if (request->version) return PrintAbout(kProgram, "tolvanis-chart " TOLVANIS_VERSION "\n");
    const HostTime time = {HostClock, HostDateTimeOrder()};
    if (request->output) return RunChartCommandIntoFile(*request, *request->output, std::cerr, time);
    return WithOutputWritten(RunChartCommand(*request, WriteToStandardOutput, std::cerr, time), kProgram);
}

}  // namespace

int main(int argc, char** argv) {
    OccupyStandardStreams();
    OutliveFileSizeLimits();
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    return WithinMemory(kProgram, [&] { return Run(arguments); });
}
