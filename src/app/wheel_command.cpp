#include "app/wheel_command.h"

#include <algorithm>

#include "app/app_directory.h"
#include "app/options_file.h"
#include "astro/chart_driver.h"
#include "platform/clock.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

constexpr std::string_view kWheelArgument = "--wheel";

Result<void> SetType(WheelArguments& wheel, const std::string& type) {
    if (type != "american" && type != "european") {
        return Fault{"unknown chart type \"" + type + "\" (american or european)"};
    }
    wheel.type = type == "european" ? ChartType::European : ChartType::American;
    return {};
}

Result<void> SetSize(WheelArguments& wheel, const std::string& size) {
    const std::optional<double> number = WholeNumber(size);
    if (!number || *number < 100.0 || *number > 10000.0) {
        return Fault{"--size needs a number of pixels from 100 to 10000, not \"" + size + "\""};
    }
    wheel.size = static_cast<int>(*number);
    return {};
}

Result<void> SetFile(WheelArguments& wheel, const std::string& file) {
    wheel.file = file;
    return {};
}

struct WheelArgument {
    std::string_view name;
    Result<void> (*set)(WheelArguments&, const std::string&);
};
constexpr std::array kWheelArguments = {WheelArgument{kWheelArgument, SetFile},
                                        WheelArgument{"--type", SetType}, WheelArgument{"--size", SetSize}};

Result<void> TakeWheelArgument(ArgumentReader& reader, WheelArguments& wheel) {
    const Result<bool> taken = TakeBirthArgument(reader, wheel);
    if (!taken) return Fault{taken.message()};
    if (*taken) return {};
    const auto argument = std::ranges::find(kWheelArguments, reader.name(), &WheelArgument::name);
    if (argument == kWheelArguments.end()) return reader.Unknown();
    const Result<std::string> value = reader.Value();
    return value ? argument->set(wheel, *value) : Result<void>(Fault{value.message()});
}

// Keeps the snapshot of the one birth, or what is wrong with it.
class SnapshotTaker : public EntryReceiver {
  public:
    explicit SnapshotTaker(HouseSystem houses) : houses_(houses) {}

    void Take(const NatalEntry& entry, const std::string& source) override {
        const std::vector<InputFault> faults = CheckEntry(entry, houses_);
        for (const InputFault& fault : faults) Refuse(source, fault.detail);
        if (!faults.empty()) return;
        const NatalData natal = ParseNatalData(entry, houses_, HostDateTimeOrder().iDate);
        const Result<ChartPositions> positions = ComputePositions(natal);
        if (!positions) return Refuse(source, positions.message());
        chart_ = MakeWheelSnapshot(natal, *positions);
    }
    void Refuse(const std::string& source, const std::string& fault) override {
        if (!faults_.empty()) faults_ += "\n";
        faults_ += source + ": " + fault;
    }
    bool WantsMore() const override { return !chart_ && faults_.empty(); }

    Result<WheelSnapshot> Taken() const {
        return chart_ ? Result<WheelSnapshot>(*chart_) : Result<WheelSnapshot>(Fault{faults_});
    }

  private:
    HouseSystem houses_;
    std::optional<WheelSnapshot> chart_;
    std::string faults_;
};

}  // namespace

bool IsWheelCommand(std::span<const std::string_view> arguments) {
    return std::ranges::any_of(arguments, [](std::string_view argument) {
        return argument == kWheelArgument || argument.starts_with("--wheel=");
    });
}

Result<WheelArguments> ParseWheelArguments(std::span<const std::string_view> arguments) {
    WheelArguments wheel;
    for (ArgumentReader reader(arguments); reader.Next();) {
        if (const Result<void> taken = TakeWheelArgument(reader, wheel); !taken)
            return Fault{taken.message()};
    }
    if (const Result<void> together = CheckBirthArguments(wheel); !together) return Fault{together.message()};
    if (wheel.namesFile && !wheel.name) return Fault{"--names needs --name, since a wheel shows one birth"};
    return wheel;
}

Result<WheelPicture> PrepareWheel(const WheelArguments& arguments) {
    const Result<Path> directory =
        ApplicationDirectory(HintsOfProcess(arguments.appDirectory), FirstStart::LeaveAsIs);
    if (!directory) return Fault{directory.message()};
    WheelPicture picture{*directory, {}, {}, {}};
    const auto options = ReadOptions(*directory, picture.options);
    if (!options) return Fault{options.message()};
    const Result<WheelData> data = ReadWheelData(*directory);
    if (!data) return Fault{data.message()};
    picture.data = *data;
    SnapshotTaker taker(arguments.houses.value_or(HouseSystemOfOption(picture.options[27])));
    ReadBirths(arguments, picture.options, *directory, taker);
    const Result<WheelSnapshot> chart = taker.Taken();
    if (!chart) return Fault{chart.message()};
    picture.chart = *chart;
    return picture;
}

}  // namespace tolvanis
