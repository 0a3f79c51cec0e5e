#include "app/wheel_command.h"

#include <algorithm>

#include "astro/natal_chart.h"
#include "text/numbers.h"
#include "wheel/picture_format.h"

namespace tolvanis {
namespace {

Result<void> SetType(WheelArguments& wheel, const std::string& type) {
    const auto known = std::ranges::find(kChartTypeNames, type);
    if (known == kChartTypeNames.end()) {
        return Fault{"unknown chart type \"" + type + "\" (american, european or ring)"};
    }
    wheel.type = ChartTypeOf(static_cast<int>(known - kChartTypeNames.begin()));
    return {};
}

Result<void> SetSize(WheelArguments& wheel, const std::string& size) {
    const std::optional<int> pixels = WholeNumberIn(size, 100, 10000);
    if (!pixels)
        return Fault{"--size needs a whole number of pixels from 100 to 10000, not \"" + size + "\""};
    wheel.size = *pixels;
    return {};
}

Result<void> SetFile(WheelArguments& wheel, const std::string& file) {
    if (!PictureFormatOf(file)) return Fault{NoPictureName(file)};
    wheel.file = file;
    return {};
}

struct WheelArgument {
    std::string_view name;
    Result<void> (*set)(WheelArguments&, const std::string&);
};
constexpr std::array kWheelArguments = {WheelArgument{"--wheel", SetFile}, WheelArgument{"--type", SetType},
                                        WheelArgument{"--size", SetSize}};

Result<void> TakeWheelArgument(ArgumentReader& reader, WheelArguments& wheel) {
    const Result<bool> taken = TakeBirthArgument(reader, wheel);
    if (!taken) return taken.fault();
    if (*taken) return {};
    const auto argument = std::ranges::find(kWheelArguments, reader.name(), &WheelArgument::name);
    if (argument == kWheelArguments.end()) return reader.Unknown();
    const Result<std::string> value = reader.Value();
    return value ? argument->set(wheel, *value) : value.fault();
}

// Keeps the snapshot of the one birth, or what is wrong with it.
class SnapshotTaker : public BirthReceiver {
  public:
    SnapshotTaker(const Method& method, const CommandData& data) : method_(method), data_(data) {}

    void Take(const NamedBirth& birth) override {
        if (birth.placed && !birth.placed->note.empty()) note_ = birth.source + ": " + birth.placed->note;
        const auto chart = MakeChart(birth.entry, method_, data_.time.order.iDate, data_.options);
        if (chart) {
            chart_ = MakeWheelSnapshot(chart->natal, chart->positions);
            return;
        }
        for (const std::string& detail : chart.fault().Details()) Refuse(birth.source, detail);
    }
    void Refuse(const std::string& source, const std::string& fault) override {
        if (!faults_.empty()) faults_ += "\n";
        faults_ += source + ": " + fault;
    }
    bool WantsMore() const override { return !chart_ && faults_.empty(); }

    const std::string& note() const { return note_; }
    Result<WheelSnapshot> Taken() const {
        return chart_ ? Result<WheelSnapshot>(*chart_) : Result<WheelSnapshot>(Fault{faults_});
    }

  private:
    Method method_;
    const CommandData& data_;
    std::optional<WheelSnapshot> chart_;
    std::string note_;
    std::string faults_;
};

}  // namespace

Result<WheelArguments> ParseWheelArguments(std::span<const std::string_view> arguments) {
    WheelArguments wheel;
    for (ArgumentReader reader(arguments); reader.Next();) {
        if (const Result<void> once = reader.CheckOnce(); !once) return once.fault();
        if (const Result<void> taken = TakeWheelArgument(reader, wheel); !taken) return taken.fault();
    }
    if (const Result<void> together = CheckBirthArguments(wheel); !together) return together.fault();
    if (wheel.namesFile && !wheel.name) return Fault{"--names needs --name, since a wheel shows one birth"};
    return wheel;
}

Result<WheelPicture> PrepareWheel(const WheelArguments& arguments, const HostTime& time) {
    const Result<CommandData> opened = OpenCommandData(arguments.appDirectory, time);
    if (!opened) return opened.fault();
    const Result<void> other = CheckOutput(arguments, opened->files, PathFromText(arguments.file));
    if (!other) return other.fault();
    const Result<WheelData> data = ReadWheelData(opened->files);
    if (!data) return data.fault();
    SnapshotTaker taker(MethodOf(arguments, opened->options), *opened);
    ReadBirths(arguments, *opened, taker);
    const Result<WheelSnapshot> chart = taker.Taken();
    if (!chart) return chart.fault();
    WheelPicture picture{opened->files, opened->options, *data, *chart, {}, {}};
    for (const std::string& note : {opened->note, taker.note()}) {
        if (!note.empty()) picture.notes.push_back(note);
    }
    if (arguments.type == ChartType::ZodiacRing) {
        const Result<void> read = ReadOrbsFile(opened->files.Find(kNatalOrbs), picture.orbs);
        if (!read) return read.fault();
    }
    return picture;
}

}  // namespace tolvanis
