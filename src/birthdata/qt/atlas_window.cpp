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
#include "text/columns.h"
#include "text/numbers.h"

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

}  // namespace

AtlasWindow::AtlasWindow(const ZoneBook& book, const NatalEntry& birth, Path exchangeFile, Messages& messages)
    : book_(book), exchangeFile_(std::move(exchangeFile)), messages_(messages) {
    setObjectName(QStringLiteral("Atlas"));
    setWindowTitle(QStringLiteral("Atlas"));
    txtSearch_ = new EntryBox;
    txtSearch_->setObjectName(QStringLiteral("txtSearch"));
    txtSearch_->setAccessibleName(QStringLiteral("Place"));
    txtSearch_->setPlaceholderText(QStringLiteral("City, or city, region, country"));
    auto* caption = new QLabel(QStringLiteral("&Place"));
    caption->setBuddy(txtSearch_);
    lstPlaces_ = new QTreeWidget;
    lstPlaces_->setObjectName(QStringLiteral("lstPlaces"));
    lstPlaces_->setAccessibleName(QStringLiteral("Places found"));
    lstPlaces_->setRootIsDecorated(false);
    lstPlaces_->setUniformRowHeights(true);
    lstPlaces_->setHeaderLabels({QStringLiteral("Name"), QStringLiteral("Region"), QStringLiteral("Country"),
                                 QStringLiteral("Coordinates")});
    const int letter = fontMetrics().averageCharWidth();
    for (int column = 0; column < 3; ++column) lstPlaces_->setColumnWidth(column, 24 * letter);
    cmdOK_ = MakePushButton("cmdOK", QStringLiteral("OK"));
    cmdCancel_ = MakePushButton("cmdCancel", QStringLiteral("Cancel"));

    auto* search = new QHBoxLayout;
    search->addWidget(caption);
    search->addWidget(txtSearch_, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK_);
    buttons->addWidget(cmdCancel_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(search);
    layout->addWidget(lstPlaces_, 1);
    layout->addWidget(MakeBirthRow(birth));
    layout->addWidget(MakeReadings());
    layout->addLayout(buttons);
    ResizeToFit(*this, {96 * letter, 34 * fontMetrics().lineSpacing()});

    connect(txtSearch_, &QLineEdit::textChanged, this, &AtlasWindow::txtSearch_Change);
    connect(lstPlaces_, &QTreeWidget::currentItemChanged, this, &AtlasWindow::ShowReadings);
    connect(cmdOK_, &QPushButton::clicked, this, &AtlasWindow::cmdOK_Click);
    connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::reject);
    ShowReadings();
    txtSearch_->setFocus();
}

QWidget* AtlasWindow::MakeBirthRow(const NatalEntry& birth) {
    auto* rows = new QWidget;
    auto* halves = new EvenRows;
    rows->setLayout(halves);
    QHBoxLayout* layout = nullptr;
    const auto begin = [&] {
        auto* half = new QWidget;
        layout = new QHBoxLayout(half);
        layout->setContentsMargins(0, 0, 0, 0);
        halves->addWidget(half);
    };
    const auto add = [&](const char* name, const char* label, int width, const std::string& text) {
        auto* box = new EntryBox(QLatin1String(kDigits), width);
        box->setObjectName(QLatin1String(name));
        box->setAccessibleName(QLatin1String(label));
        box->Fill(ToQt(text));
        auto* shown = new QLabel(QLatin1String(label));
        shown->setBuddy(box);
        layout->addWidget(shown);
        layout->addWidget(box);
        connect(box, &QLineEdit::textChanged, this, &AtlasWindow::ShowReadings);
        return box;
    };
    begin();
    txtMonth_ = add("txtMonth", "Month", 2, birth.month);
    txtDay_ = add("txtDay", "Day", 2, birth.day);
    txtYear_ = add("txtYear", "Year", 4, birth.year);
    layout->addStretch();
    begin();
    txtBirthHour_ = add("txtBirthHour", "Hour", 2, birth.birthHour);
    txtBirthMinute_ = add("txtBirthMinute", "Minute", 2, birth.birthMinute);
    optAM_ = new QRadioButton(QStringLiteral("AM"));
    optAM_->setObjectName(QStringLiteral("optAM"));
    optPM_ = new QRadioButton(QStringLiteral("PM"));
    optPM_->setObjectName(QStringLiteral("optPM"));
    (birth.pm ? optPM_ : optAM_)->setChecked(true);
    layout->addWidget(optAM_);
    layout->addWidget(optPM_);
    layout->addStretch();
    connect(optPM_, &QRadioButton::toggled, this, &AtlasWindow::ShowReadings);
    return rows;
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
    connect(choices_, &QButtonGroup::idToggled, this, &AtlasWindow::UpdateOK);
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
