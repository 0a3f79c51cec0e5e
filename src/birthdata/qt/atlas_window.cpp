#include "birthdata/qt/atlas_window.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>

#include "platform/file_replacing.h"
#include "platform/qt/entry_box.h"
#include "platform/qt/even_rows.h"
#include "platform/qt/placement.h"
#include "platform/qt/push_button.h"
#include "platform/qt/text.h"

namespace tolvanis {
namespace {

constexpr std::size_t kMostShown = 200;
constexpr const char* kDigits = "0123456789";

QString CoordinatesText(const AtlasPlace& place) {
    return ToQt(CoordinateText(place.Longitude(), kLongitudeForm) + " " +
                CoordinateText(place.Latitude(), kLatitudeForm));
}

QLabel* MakeLabel(const char* name, const char* accessibleName, int lines) {
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setAccessibleName(QLatin1String(accessibleName));
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setMinimumHeight(lines * label->fontMetrics().lineSpacing());
    return label;
}

QHBoxLayout& RowOf(QWidget& parent) {
    auto* layout = new QHBoxLayout(&parent);
    layout->setContentsMargins(0, 0, 0, 0);
    return *layout;
}

EntryBox* AddNumberBox(QHBoxLayout& layout, const char* name, const char* label, int width) {
    auto* box = new EntryBox(QLatin1String(kDigits), width);
    box->setObjectName(QLatin1String(name));
    box->setAccessibleName(QLatin1String(label));
    auto* shown = new QLabel(QLatin1String(label));
    shown->setBuddy(box);
    layout.addWidget(shown);
    layout.addWidget(box);
    return box;
}

}  // namespace

AtlasWindow::AtlasWindow(const ZoneBook& book, const NatalEntry& birth, Path exchangeFile, Messages& messages)
    : book_(book), exchangeFile_(std::move(exchangeFile)), messages_(messages) {
    setObjectName(QStringLiteral("Atlas"));
    setWindowTitle(QStringLiteral("Atlas"));
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(MakeSearchRow());
    layout->addWidget(MakePlaceList(), 1);
    layout->addWidget(MakeBirthRow());
    layout->addWidget(MakeReadings());
    layout->addLayout(MakeButtonRow());
    ResizeToFit(*this, {96 * fontMetrics().averageCharWidth(), 34 * fontMetrics().lineSpacing()});
    SetBirth(birth);
    ConnectControls();
    ShowReadings();
    txtSearch_->setFocus();
}

QLayout* AtlasWindow::MakeSearchRow() {
    txtSearch_ = new EntryBox;
    txtSearch_->setObjectName(QStringLiteral("txtSearch"));
    txtSearch_->setAccessibleName(QStringLiteral("Place"));
    txtSearch_->setPlaceholderText(QStringLiteral("City, or city, region, country"));
    auto* caption = new QLabel(QStringLiteral("&Place"));
    caption->setBuddy(txtSearch_);
    auto* row = new QHBoxLayout;
    row->addWidget(caption);
    row->addWidget(txtSearch_, 1);
    return row;
}

QWidget* AtlasWindow::MakePlaceList() {
    lstPlaces_ = new QTreeWidget;
    lstPlaces_->setObjectName(QStringLiteral("lstPlaces"));
    lstPlaces_->setAccessibleName(QStringLiteral("Places found"));
    lstPlaces_->setRootIsDecorated(false);
    lstPlaces_->setUniformRowHeights(true);
    lstPlaces_->setHeaderLabels({QStringLiteral("Name"), QStringLiteral("Region"), QStringLiteral("Country"),
                                 QStringLiteral("Coordinates")});
    const int letter = fontMetrics().averageCharWidth();
    for (int column = 0; column < 3; ++column) lstPlaces_->setColumnWidth(column, 24 * letter);
    return lstPlaces_;
}

QLayout* AtlasWindow::MakeButtonRow() {
    cmdOK_ = MakePushButton("cmdOK", QStringLiteral("OK"));
    cmdCancel_ = MakePushButton("cmdCancel", QStringLiteral("Cancel"));
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(cmdOK_);
    row->addWidget(cmdCancel_);
    return row;
}

// Date and time, which stand below one another where the window is narrow.
QWidget* AtlasWindow::MakeBirthRow() {
    auto* rows = new QWidget;
    auto* halves = new EvenRows;
    rows->setLayout(halves);
    halves->addWidget(MakeDate());
    halves->addWidget(MakeTime());
    return rows;
}

QWidget* AtlasWindow::MakeDate() {
    auto* half = new QWidget;
    auto& layout = RowOf(*half);
    txtMonth_ = AddNumberBox(layout, "txtMonth", "Month", 2);
    txtDay_ = AddNumberBox(layout, "txtDay", "Day", 2);
    txtYear_ = AddNumberBox(layout, "txtYear", "Year", 4);
    layout.addStretch();
    return half;
}

QWidget* AtlasWindow::MakeTime() {
    auto* half = new QWidget;
    auto& layout = RowOf(*half);
    txtBirthHour_ = AddNumberBox(layout, "txtBirthHour", "Hour", 2);
    txtBirthMinute_ = AddNumberBox(layout, "txtBirthMinute", "Minute", 2);
    optAM_ = new QRadioButton(QStringLiteral("AM"));
    optAM_->setObjectName(QStringLiteral("optAM"));
    optPM_ = new QRadioButton(QStringLiteral("PM"));
    optPM_->setObjectName(QStringLiteral("optPM"));
    layout.addWidget(optAM_);
    layout.addWidget(optPM_);
    layout.addStretch();
    return half;
}

void AtlasWindow::SetBirth(const NatalEntry& birth) {
    txtMonth_->Fill(ToQt(birth.month));
    txtDay_->Fill(ToQt(birth.day));
    txtYear_->Fill(ToQt(birth.year));
    txtBirthHour_->Fill(ToQt(birth.birthHour));
    txtBirthMinute_->Fill(ToQt(birth.birthMinute));
    (birth.pm ? optPM_ : optAM_)->setChecked(true);
}

void AtlasWindow::ConnectControls() {
    connect(txtSearch_, &QLineEdit::textChanged, this, &AtlasWindow::txtSearch_Change);
    connect(lstPlaces_, &QTreeWidget::currentItemChanged, this, &AtlasWindow::ShowReadings);
    for (const EntryBox* box : {txtMonth_, txtDay_, txtYear_, txtBirthHour_, txtBirthMinute_}) {
        connect(box, &QLineEdit::textChanged, this, &AtlasWindow::ShowReadings);
    }
    connect(optPM_, &QRadioButton::toggled, this, &AtlasWindow::ShowReadings);
    connect(choices_, &QButtonGroup::idToggled, this, &AtlasWindow::UpdateOK);
    connect(cmdOK_, &QPushButton::clicked, this, &AtlasWindow::cmdOK_Click);
    connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::reject);
}

QWidget* AtlasWindow::MakeReadings() {
    auto* box = new QWidget;
    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    lblAnswer_ = MakeLabel("lblAnswer", "Time zone", 2);
    layout->addWidget(lblAnswer_);
    choices_ = new QButtonGroup(this);
    for (std::size_t i = 0; i < std::size(optReadings_); ++i) {
        optReadings_[i] = new QRadioButton;
        optReadings_[i]->setObjectName(QStringLiteral("optReading%1").arg(i + 1));
        choices_->addButton(optReadings_[i], static_cast<int>(i));
        QSizePolicy keepsRoom = optReadings_[i]->sizePolicy();
        keepsRoom.setRetainSizeWhenHidden(true);
        optReadings_[i]->setSizePolicy(keepsRoom);
        layout->addWidget(optReadings_[i]);
    }
    lblGrade_ = MakeLabel("lblGrade", "How sure the time zone is", 3);
    layout->addWidget(lblGrade_);
    return box;
}

NatalEntry AtlasWindow::Birth() const {
    const auto text = [](const EntryBox* box) { return box->text().toStdString(); };
    NatalEntry birth;
    birth.month = text(txtMonth_);
    birth.day = text(txtDay_);
    birth.year = text(txtYear_);
    const HourRule hour = ApplyHourRule(text(txtBirthHour_));
    birth.birthHour = hour.text;
    birth.birthMinute = text(txtBirthMinute_);
    birth.pm = optPM_->isChecked() || hour.ticksPm;
    return birth;
}

void AtlasWindow::txtSearch_Change() {
    const QSignalBlocker quiet(lstPlaces_);
    lstPlaces_->clear();
    for (const std::size_t index : book_.atlas.Search(txtSearch_->text().toStdString(), kMostShown)) {
        const AtlasPlace place = book_.atlas.At(index);
        auto* item = new QTreeWidgetItem(
            lstPlaces_, {ToQt(place.name), ToQt(place.region), ToQt(place.country), CoordinatesText(place)});
        item->setData(0, Qt::UserRole, QVariant::fromValue<qulonglong>(index));
    }
    lstPlaces_->setCurrentItem(lstPlaces_->topLevelItem(0));
    ShowReadings();
}

void AtlasWindow::ShowReadings() {
    found_.reset();
    choices_->setExclusive(false);
    for (QRadioButton* option : optReadings_) {
        option->setChecked(false);
        option->hide();
    }
    choices_->setExclusive(true);
    lblGrade_->clear();
    const QTreeWidgetItem* item = lstPlaces_->currentItem();
    const auto clock = ClockOfEntry(Birth());
    if (item == nullptr) {
        lblAnswer_->setText(txtSearch_->text().isEmpty() ? QStringLiteral("Type the name of the birthplace.")
                                                         : QStringLiteral("There is no such place."));
    } else if (!clock) {
        lblAnswer_->setText(QStringLiteral("Enter the date and the time of the birth."));
    } else {
        found_ = ReadingsAt(book_, book_.atlas.At(item->data(0, Qt::UserRole).toULongLong()), *clock);
        lblAnswer_->setText(ToQt(Advice(*found_)));
        const auto& candidates = found_->Candidates();
        if (!candidates.empty()) lblGrade_->setText(ToQt(GradeText(candidates.front()) + "."));
        if (candidates.size() > 1) {
            for (std::size_t i = 0; i < std::size(optReadings_); ++i) ShowReading(i, candidates[i]);
        }
    }
    UpdateOK();
}

void AtlasWindow::ShowReading(std::size_t index, const ZoneReading& reading) {
    const std::string zone = ZoneHoursText(found_->HoursOf(reading));
    const std::string text =
        "Zone " + zone + ": " + ReadingText(reading) +
        (found_->outcome() == ZoneOutcome::Never ? ", the clock at " + ClockText(reading.clock) : "");
    optReadings_[index]->setText(ToQt(text));
    optReadings_[index]->setAccessibleName(ToQt(text));
    optReadings_[index]->show();
}

// What the look-up says, in plain words.
std::string AtlasWindow::Advice(const EntryReadings& found) const {
    const std::string& place = found.place.name;
    if (found.outcome() == ZoneOutcome::Unknown) return place + ": " + WhatHappened(found, place) + ".";
    if (found.outcome() != ZoneOutcome::One) return WhatHappened(found, place) + ". Which is meant?";
    const ZoneReading& reading = found.answer.readings.front();
    const EntryZone zone = EntryZoneOf(reading.offset, found.place.place.degreesEast);
    std::string text = MomentText(found.clock) + ", " + place + ": " + ReadingText(reading) + ", zone " +
                       ZoneHoursText(zone.hours) + ".";
    if (zone.days != 0) {
        text += " The place keeps the date of the other side of the date line: enter " +
                DateText(DaysLater(found.clock, zone.days)) + " in the natal input.";
    }
    return text;
}

const ZoneReading* AtlasWindow::Chosen() const {
    if (!found_) return nullptr;
    if (found_->outcome() == ZoneOutcome::One) return &found_->answer.readings.front();
    const int choice = choices_->checkedId();
    return choice >= 0 ? &found_->Candidates()[static_cast<std::size_t>(choice)] : nullptr;
}

void AtlasWindow::UpdateOK() {
    cmdOK_->setEnabled(Chosen() != nullptr);
    cmdOK_->setDefault(true);
}

void AtlasWindow::cmdOK_Click() {
    const ZoneReading* reading = Chosen();
    if (reading == nullptr) return;
    const auto written = ReplaceFile(exchangeFile_, ExchangeText(found_->place, reading->offset));
    if (written) return accept();
    messages_.Tell("Error!", written.message(), MessageIcon::Stop);
}

}  // namespace tolvanis
