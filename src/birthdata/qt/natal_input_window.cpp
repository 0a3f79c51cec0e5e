#include "birthdata/qt/natal_input_window.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QRadioButton>
#include <QTimer>
#include <tuple>

#include "platform/qt/bevel_frame.h"
#include "platform/qt/entry_box.h"
#include "platform/qt/push_button.h"
#include "platform/qt/text.h"

namespace tolvanis {
namespace {

constexpr const char* kDigits = "0123456789";
constexpr int kAdviceDelay = 120;  // milliseconds after the last key
constexpr const char* kZoneCharacters = "0123456789.-";

struct BoxTraits {
    const char* name;
    const char* label;
    const char* accepted;  // characters
    int width;             // in characters
};

EntryBox* AddBox(QGridLayout& grid, int row, int column, const BoxTraits& traits) {
    auto* box = new EntryBox(QLatin1String(traits.accepted), traits.width);
    box->setObjectName(QLatin1String(traits.name));
    box->setAccessibleName(QLatin1String(traits.label));
    auto* caption = new QLabel(QLatin1String(traits.label));
    caption->setBuddy(box);
    grid.addWidget(caption, row, column, Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(box, row, column + 1, Qt::AlignLeft | Qt::AlignVCenter);
    return box;
}

// An option button of a pair: Tab stops at the ticked one, the arrow keys tick the other.
QRadioButton* MakeOption(const char* caption) {
    auto* option = new QRadioButton(QLatin1String(caption));
    option->setObjectName(QStringLiteral("opt") + QLatin1String(caption));
    option->setAccessibleName(QLatin1String(caption));
    option->setFocusPolicy(Qt::ClickFocus);
    QObject::connect(option, &QRadioButton::toggled, option, [option](bool ticked) {
        option->setFocusPolicy(ticked ? Qt::StrongFocus : Qt::ClickFocus);
    });
    return option;
}

// Two option buttons of which one is ticked, with the name of their frame in front.
std::pair<QRadioButton*, QRadioButton*> AddPair(QGridLayout& grid, int row, const char* frame,
                                                const char* first, const char* second) {
    auto* pair = new QWidget;
    pair->setAccessibleName(QLatin1String(frame));
    auto* options = new QHBoxLayout(pair);
    options->setContentsMargins(0, 0, 0, 0);
    QRadioButton* const made[] = {MakeOption(first), MakeOption(second)};
    for (QRadioButton* option : made) options->addWidget(option, 1);
    grid.addWidget(new QLabel(QLatin1String(frame)), row, 4, Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(pair, row, 5);
    return {made[0], made[1]};
}

}  // namespace

InputD::InputD(const Options& options, Messages& messages, LocalClock clock)
    : QDialog(nullptr, Qt::Window), options_(options), messages_(messages), clock_(std::move(clock)) {
    setObjectName(QStringLiteral("InputD"));
    setWindowTitle(QStringLiteral("Natal Input Data"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(MakeEntryFrame());
    layout->addLayout(MakeAdviceRow());
    layout->addStretch();
    layout->addLayout(MakeButtonRow());
    cmdOK_->setDefault(true);  // Enter in a box or on an option
    SetTabOrder();
    connect(optEast_, &QRadioButton::clicked, this, &InputD::optEast_Click);
    connect(optWest_, &QRadioButton::clicked, this, &InputD::optWest_Click);
    connect(txtBirthHour_, &QLineEdit::textChanged, this, &InputD::txtBirthHour_Change);
    FillNow();
}

QWidget* InputD::MakeEntryFrame() {
    auto* frame = new BevelFrame;
    auto* grid = new QGridLayout(frame);
    const int room = fontMetrics().height();
    grid->setContentsMargins(room / 2, room, room / 2, room);
    grid->setHorizontalSpacing(room / 2);
    grid->setVerticalSpacing(room / 2);
    Label1_ = MakeButton("Label1", "TZ Help", &InputD::Label1_Click);
    Label2_ = MakeButton("Label2", "ACS Atlas", &InputD::Label2_Click);

    txtName_ = AddBox(*grid, 0, 0, {"txtName", "Name", "", 0});
    grid->addWidget(txtName_, 0, 1, 1, 5);
    txtMonth_ = AddBox(*grid, 1, 0, {"txtMonth", "Birth Month", kDigits, 2});
    txtDay_ = AddBox(*grid, 1, 2, {"txtDay", "Birth Day", kDigits, 2});
    txtYear_ = AddBox(*grid, 1, 4, {"txtYear", "Birth Year", kDigits, 4});
    txtBirthHour_ = AddBox(*grid, 2, 0, {"txtBirthHour", "Birth Hour", kDigits, 2});
    txtBirthMinute_ = AddBox(*grid, 2, 2, {"txtBirthMinute", "Birth Minute", kDigits, 2});
    std::tie(optAM_, optPM_) = AddPair(*grid, 2, "Am/Pm", "AM", "PM");
    txtTZ_ = AddBox(*grid, 3, 0, {"txtTZ", "Time Zone . . .", kZoneCharacters, 6});
    // The wide box must not push the columns apart: the window has to fit on small screens.
    grid->addWidget(txtTZ_, 3, 1, 1, 2, Qt::AlignLeft | Qt::AlignVCenter);
    grid->addWidget(Label1_, 3, 3, 1, 3, Qt::AlignLeft);
    txtLongDeg_ = AddBox(*grid, 4, 0, {"txtLongDeg", "Long Degrees", kDigits, 3});
    txtLongMin_ = AddBox(*grid, 4, 2, {"txtLongMin", "Long Minutes", kDigits, 2});
    std::tie(optEast_, optWest_) = AddPair(*grid, 4, "Ea/We", "East", "West");
    txtLatDeg_ = AddBox(*grid, 5, 0, {"txtLatDeg", "Lat Degrees", kDigits, 3});
    txtLatMin_ = AddBox(*grid, 5, 2, {"txtLatMin", "Lat Minutes", kDigits, 2});
    std::tie(optNorth_, optSouth_) = AddPair(*grid, 5, "No/So", "North", "South");
    grid->setColumnStretch(5, 1);
    return frame;
}

// The advice has its room from the start, so that nothing moves when it comes and goes.
QHBoxLayout* InputD::MakeAdviceRow() {
    lblAdvice_ = new QLabel;
    lblAdvice_->setObjectName(QStringLiteral("lblAdvice"));
    lblAdvice_->setAccessibleName(QStringLiteral("Time zone advice"));
    lblAdvice_->setWordWrap(true);
    lblAdvice_->setTextFormat(Qt::PlainText);
    lblAdvice_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lblAdvice_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblAdvice_->setMinimumHeight(3 * fontMetrics().lineSpacing());
    lblAdvice_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    cmdTakeZone_ = MakeButton("cmdTakeZone", "Take zone", &InputD::cmdTakeZone_Click);
    QSizePolicy keepsRoom = cmdTakeZone_->sizePolicy();
    keepsRoom.setRetainSizeWhenHidden(true);
    cmdTakeZone_->setSizePolicy(keepsRoom);
    cmdTakeZone_->hide();
    adviceTimer_ = new QTimer(this);
    adviceTimer_->setSingleShot(true);
    adviceTimer_->setInterval(kAdviceDelay);
    connect(adviceTimer_, &QTimer::timeout, this, &InputD::UpdateAdvice);
    const auto later = [this] { adviceTimer_->start(); };
    for (EntryBox* box : {txtMonth_, txtDay_, txtYear_, txtBirthHour_, txtBirthMinute_, txtTZ_, txtLongDeg_,
                          txtLongMin_, txtLatDeg_, txtLatMin_}) {
        connect(box, &QLineEdit::textChanged, this, later);
    }
    for (QRadioButton* option : {optPM_, optEast_, optSouth_}) {
        connect(option, &QRadioButton::toggled, this, later);
    }
    auto* row = new QHBoxLayout;
    row->addWidget(lblAdvice_, 1);
    row->addWidget(cmdTakeZone_, 0, Qt::AlignTop);
    return row;
}

void InputD::SetAdviser(Adviser adviser) {
    adviser_ = std::move(adviser);
    adviceTimer_->start();
}

void InputD::UpdateAdvice() {
    if (!adviser_ || !isVisible()) return;
    const ZoneAdvice advice = adviser_(Entry());
    // A zone stays beside its number where the line breaks.
    lblAdvice_->setText(ToQt(advice.text).replace(QStringLiteral("zone "), QStringLiteral("zone\u00a0")));
    lblAdvice_->setToolTip(TipText(ToQt(advice.text)));
    lblAdvice_->setAccessibleDescription(ToQt(advice.text));
    advisedZone_ = advice.zone;
    cmdTakeZone_->setVisible(!advice.zone.empty());
    const std::string caption = "Take zone " + advice.zone;
    cmdTakeZone_->setText(ToQt(caption));
    cmdTakeZone_->setAccessibleName(ToQt(caption));
    cmdTakeZone_->setAccessibleDescription(ToQt(advice.text));
}

void InputD::cmdTakeZone_Click() {
    txtTZ_->Fill(ToQt(advisedZone_));
    UpdateAdvice();
    txtTZ_->setFocus();
}

QHBoxLayout* InputD::MakeButtonRow() {
    cmdNow_ = MakeButton("cmdNow", "NOW", &InputD::cmdNow_Click);
    cmdOK_ = MakeButton("cmdOK", "OK", &InputD::cmdOK_Click);
    cmdSave_ = MakeButton("cmdSave", "Save to disk", &InputD::cmdSave_Click);
    auto* row = new QHBoxLayout;
    row->addWidget(Label2_);
    row->addStretch();
    row->addWidget(cmdNow_);
    row->addWidget(cmdOK_);
    row->addWidget(cmdSave_);
    return row;
}

QPushButton* InputD::MakeButton(const char* name, const char* caption, void (InputD::*handler)()) {
    QPushButton* button = MakePushButton(name, QLatin1String(caption));
    connect(button, &QPushButton::clicked, this, handler);
    return button;
}

void InputD::SetTabOrder() {
    QWidget* const order[] = {txtName_, txtMonth_,  txtDay_,    txtYear_,    txtBirthHour_, txtBirthMinute_,
                              optAM_,   optPM_,     txtTZ_,     txtLongDeg_, txtLongMin_,   optEast_,
                              optWest_, txtLatDeg_, txtLatMin_, optNorth_,   optSouth_,     cmdNow_,
                              cmdOK_,   cmdSave_,   Label1_,    Label2_,     cmdTakeZone_};
    for (std::size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
}

EntryBox* InputD::BoxOf(EntryField field) const {
    switch (field) {
        case EntryField::Name:
            return txtName_;
        case EntryField::Month:
            return txtMonth_;
        case EntryField::Day:
            return txtDay_;
        case EntryField::Year:
            return txtYear_;
        case EntryField::BirthHour:
            return txtBirthHour_;
        case EntryField::BirthMinute:
            return txtBirthMinute_;
        case EntryField::TimeZone:
            return txtTZ_;
        case EntryField::LongDeg:
            return txtLongDeg_;
        case EntryField::LongMin:
            return txtLongMin_;
        case EntryField::LatDeg:
            return txtLatDeg_;
        case EntryField::LatMin:
            return txtLatMin_;
    }
    return txtName_;
}

NatalEntry InputD::Entry() const {
    const auto text = [](const EntryBox* box) { return box->text().toStdString(); };
    NatalEntry entry;
    entry.name = text(txtName_);
    entry.month = text(txtMonth_);
    entry.day = text(txtDay_);
    entry.year = text(txtYear_);
    entry.birthHour = text(txtBirthHour_);
    entry.birthMinute = text(txtBirthMinute_);
    entry.pm = optPM_->isChecked();
    entry.timeZone = text(txtTZ_);
    entry.longDeg = text(txtLongDeg_);
    entry.longMin = text(txtLongMin_);
    entry.east = optEast_->isChecked();
    entry.latDeg = text(txtLatDeg_);
    entry.latMin = text(txtLatMin_);
    entry.south = optSouth_->isChecked();
    return entry;
}

void InputD::SetEntry(const NatalEntry& entry) {
    txtName_->Fill(ToQt(entry.name));
    txtMonth_->Fill(ToQt(entry.month));
    txtDay_->Fill(ToQt(entry.day));
    txtYear_->Fill(ToQt(entry.year));
    txtBirthHour_->Fill(ToQt(entry.birthHour));
    txtBirthMinute_->Fill(ToQt(entry.birthMinute));
    (entry.pm ? optPM_ : optAM_)->setChecked(true);
    txtTZ_->Fill(ToQt(entry.timeZone));
    txtLongDeg_->Fill(ToQt(entry.longDeg));
    txtLongMin_->Fill(ToQt(entry.longMin));
    (entry.east ? optEast_ : optWest_)->setChecked(true);
    txtLatDeg_->Fill(ToQt(entry.latDeg));
    txtLatMin_->Fill(ToQt(entry.latMin));
    (entry.south ? optSouth_ : optNorth_)->setChecked(true);
}

void InputD::FillNow() {
    SetEntry(tolvanis::FillNow(clock_(), options_));
}

bool InputD::HoldsPresentMoment() const {
    return txtName_->text() == ToQt(kNowName);
}

void InputD::FocusField(EntryField field) {
    EntryBox* box = BoxOf(field);
    box->setFocus(Qt::OtherFocusReason);
    box->selectAll();
}

void InputD::cmdOK_Click() {
    Q_EMIT computeRequested();
}

void InputD::cmdSave_Click() {
    Q_EMIT saveRequested();
}

void InputD::cmdNow_Click() {
    FillNow();
}

void InputD::Label1_Click() {
    Q_EMIT timeZoneHelpRequested();
}

void InputD::SetAtlasOpen(bool open) {
    Label2_->setEnabled(!open);
    Label2_->setToolTip(open ? QStringLiteral("The atlas is open in a window of its own.") : QString());
    if (!open) Label2_->setFocus();
}

void InputD::Label2_Click() {
    Q_EMIT atlasRequested();
}

void InputD::optEast_Click() {
    txtTZ_->Fill(ToQt(ZoneForSide(txtTZ_->text().toStdString(), true)));
}

void InputD::optWest_Click() {
    txtTZ_->Fill(ToQt(ZoneForSide(txtTZ_->text().toStdString(), false)));
}

void InputD::txtBirthHour_Change() {
    const std::string typed = txtBirthHour_->text().toStdString();
    const HourRule rule = ApplyHourRule(typed);
    if (rule.outcome == HourRule::Outcome::AskForValue) {
        messages_.Tell("Warning!", "Please fill in a value for birth hour.", MessageIcon::Information);
        return;
    }
    if (rule.outcome == HourRule::Outcome::TooFast) {
        messages_.Tell("Warning!", "You are typing too fast. Please slow down.", MessageIcon::Information);
        txtBirthHour_->setCursorPosition(0);
        return;
    }
    if (rule.ticksPm) optPM_->setChecked(true);
    if (rule.text == typed) return;
    txtBirthHour_->Fill(ToQt(rule.text));
    // A leading zero has become 12: the next digit typed replaces it, so that 09 is 9 and not 129.
    if (!rule.ticksPm) txtBirthHour_->selectAll();
}

void InputD::reject() {
    Q_EMIT mainWindowRequested();  // Esc
}

void InputD::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    adviceTimer_->start();
}

void InputD::mouseReleaseEvent(QMouseEvent* event) {
    QDialog::mouseReleaseEvent(event);
    if (event->button() == Qt::RightButton) Q_EMIT mainWindowRequested();
}

void InputD::closeEvent(QCloseEvent* event) {
    event->accept();
    Q_EMIT closedByUser();
}

}  // namespace tolvanis
