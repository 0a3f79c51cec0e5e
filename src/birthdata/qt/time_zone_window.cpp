#include "birthdata/qt/time_zone_window.h"

#include <QVBoxLayout>

#include "birthdata/qt/record_list_window.h"
#include "platform/qt/listing_font.h"
#include "platform/qt/push_button.h"
#include "platform/qt/text.h"

namespace tolvanis {

TimeZone::TimeZone(Path file, Messages& messages, QWidget* parent)
    : QWidget(parent, Qt::Window),
      file_(std::move(file)),
      messages_(messages),
      lstTimeZones_(new RecordListView(this)) {
    setObjectName(QStringLiteral("TimeZone"));
    setWindowTitle(QStringLiteral("Time Zones"));
    constexpr double kPoints = 10.0;
    lstTimeZones_->setObjectName(QStringLiteral("lstTimeZones"));
    lstTimeZones_->setAccessibleName(QStringLiteral("List of time zones"));
    lstTimeZones_->setFont(ListingFont(kPoints));
    connect(lstTimeZones_, &RecordListView::rowPicked, this, &TimeZone::lstTimeZones_Click);
    connect(lstTimeZones_, &RecordListView::rowOpened, this, &TimeZone::lstTimeZones_Click);

    QPushButton* Command1 = MakePushButton("Command1", QStringLiteral("&Quit"));
    connect(Command1, &QPushButton::clicked, this, &QWidget::close);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(Command1);
    auto* column = new QVBoxLayout(this);
    column->addWidget(lstTimeZones_, 1);
    column->addLayout(buttons);
    setFocusProxy(lstTimeZones_);
}

void TimeZone::Load() {
    zones_ = ReadTimeZones(file_);
    lstTimeZones_->SetRecords(zones_.size(), [this](std::size_t row) { return TimeZoneLineAt(zones_, row); });
    lstTimeZones_->KeepWidthOfTexts();
    if (zones_.fault()) TellTimeZoneFault(*zones_.fault(), messages_);
}

void TimeZone::lstTimeZones_Click(int row) {
    if (const auto choice = ChooseTimeZone(zones_, lstTimeZones_->records().Text(row))) {
        Q_EMIT zonePicked(choice->timeZone, choice->east);
    } else {
        TellTimeZonesCorrupt(messages_);
    }
}

}  // namespace tolvanis
