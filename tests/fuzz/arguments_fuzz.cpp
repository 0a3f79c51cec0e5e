// Any command line, one argument a line, and what a birth on it gives.

#include "app/desktop_arguments.h"
#include "app/wheel_command.h"
#include "astro/natal_chart.h"
#include "cli/command_line.h"
#include "fuzz_support.h"

namespace tolvanis {
namespace {

// Takes every entry and refuses none.
class Receiver : public BirthReceiver {
  public:
    void Take(const NamedBirth& birth) override {
        static_cast<void>(MakeChart(birth.entry, Method{}, 1, Options{}));
    }
    void Refuse(const std::string&, const std::string& fault) override {
        Require(!fault.empty(), "a refusal has a reason");
    }
    bool WantsMore() const override { return true; }
};

}  // namespace

void Fuzz(std::string_view input) {
    std::vector<std::string_view> arguments;
    while (!input.empty()) {
        const std::size_t end = input.find('\n');
        arguments.push_back(input.substr(0, end));
        input.remove_prefix(end == std::string_view::npos ? input.size() : end + 1);
    }
    const Result<DesktopArguments> desktop = ParseDesktopArguments(arguments);
    if (desktop && desktop->wheel) static_cast<void>(ParseWheelArguments(arguments));
    const Result<ChartRequest> request = ParseCommandLine(arguments);
    Require(request || !request.message().empty(), "wrong usage is explained");
    if (!request || request->namesFile || request->place || request->at)
        return;  // no file of this machine is read
    Receiver receiver;
    ReadBirths(*request, CommandData{{}, {}, {HostClock, {}}, {}}, receiver);
}

}  // namespace tolvanis
