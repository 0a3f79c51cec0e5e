#include <cstdio>
#include <iostream>
#include <vector>

#include "cli/chart_command.h"

using namespace tolvanis;

namespace {

bool WriteToStandardOutput(std::string_view text) {
    return std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
}

ExitStatus RunToStandardOutput(const ChartRequest& request) {
    ExitStatus status = RunChartCommand(request, WriteToStandardOutput, std::cerr);
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        std::cerr << "tolvanis-chart: cannot write to standard output\n";
        status = kSomethingRefused;
    }
    return status;
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    const Result<ChartRequest> request = ParseCommandLine(arguments);
    if (!request) {
        std::cerr << "tolvanis-chart: " << request.message() << "\n\n" << kUsage;
        return kWrongUsage;
    }
    if (request->help) {
        std::cout << kUsage;
        return kAllComputed;
    }
    if (request->version) {
        std::cout << "tolvanis-chart " << TOLVANIS_VERSION << "\n";
        return kAllComputed;
    }
    if (!request->output) return RunToStandardOutput(*request);
    return RunChartCommandIntoFile(*request, PathFromText(*request->output), std::cerr);
}
