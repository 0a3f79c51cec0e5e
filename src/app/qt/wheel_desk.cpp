#include "app/qt/wheel_desk.h"

#include "aspects/orbs_file.h"
#include "output/text_files.h"
#include "platform/qt/placement.h"
#include "platform/qt/symbol_font.h"
#include "wheel/ascii_chart.h"

namespace tolvanis {
namespace {
constexpr const char* kWheelHelpFile = "WHEELS.HLP";
}  // namespace

void WheelDesk::Open() {
    if (!state_.chartComputed) return;
    if (!data_) {
        const Result<WheelData> read = ReadWheelData(state_.files);
        if (!read) return printing_.messages.Tell("Error!", read.message(), MessageIcon::Stop);
        data_ = *read;
    }
    Close();
    LoadSymbolFont(state_.files);  // the window tells when there is none
    const WheelContext context{*data_, state_.options, state_.files.Find(kNatalOrbs),
                               state_.files.Own(kPersonalBlockName), printing_};
    wheels_ = new Wheels(MakeWheelSnapshot(state_.chart.natal, state_.chart.positions), context,
                         state_.settings.TypeChart);
    Connect();
    Place();
    BringForward(*wheels_);
}

void WheelDesk::Connect() {
    connect(wheels_, &Wheels::typeChartChanged, this,
            [this](int type) { state_.settings.TypeChart = static_cast<std::int16_t>(type); });
    connect(wheels_, &Wheels::startScaleChanged, this,
            [this](int scale) { state_.settings.StartScale = static_cast<std::int16_t>(scale); });
    connect(wheels_, &Wheels::asciiChartRequested, this, &WheelDesk::WriteAscii);
    connect(wheels_, &Wheels::orbsEditRequested, this, [this](const QString& file) {
        Q_EMIT editorRequested(EditorUse::OrbsEdit, PathFromText(file.toStdString()));
    });
    connect(wheels_, &Wheels::helpRequested, this, [this] { Q_EMIT textFileRequested(kWheelHelpFile); });
    connect(wheels_, &Wheels::aspectsOpened, this, &WheelDesk::PlaceAspects);
    connect(wheels_, &Wheels::mainWindowRequested, this, &WheelDesk::mainWindowRequested);
}

void WheelDesk::Close() {
    if (wheels_ != nullptr) wheels_->hide();
    delete wheels_;
}

// The display constants give the size, until the user has given one.
void WheelDesk::Place() {
    const TwipsPlacement wanted{0.0, 0.0, static_cast<double>(state_.screen.windowHeight),
                                static_cast<double>(state_.screen.windowWidth)};
    place_.Apply(*wheels_, ToPixels(wanted, state_.screen.twipsPerPixel));
}

void WheelDesk::PlaceAspects() {
    CWAspect& aspects = *wheels_->aspectWindow();
    aspectsPlace_.Apply(aspects, QRect(wheels_->frameGeometry().topRight(), aspects.sizeHint()));
}

void WheelDesk::WriteAscii() {
    state_.buffer.StartListing();
    state_.buffer.AppendBlankLine();
    WriteAsciiChart(state_.buffer, wheels_->chart());
    Q_EMIT dataBufferRequested();
}

}  // namespace tolvanis
