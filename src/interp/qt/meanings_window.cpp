#include "interp/qt/meanings_window.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QStyle>

#include "chart/chart_point.h"
#include "interp/keyword_system.h"
#include "interp/qt/option_group.h"
#include "platform/qt/even_rows.h"
#include "platform/qt/placement.h"
#include "platform/qt/push_button.h"
#include "platform/qt/scroll_box.h"

namespace tolvanis {
namespace {

constexpr std::array<std::string_view, 3> kAspectCaptions = {"blending", "harmonizing", "discordant"};
constexpr const char* kHints =
    "1. Double-click on Sign/Asc Sign for interpretation.\r\n"
    "2. Double-click on House for interpretation.\r\n"
    "3. Double-click on Aspect for interpretation.";

}  // namespace

MEANINGS::MEANINGS(Messages& messages) : messages_(messages) {
    setObjectName(QStringLiteral("MEANINGS"));
    setWindowTitle(QStringLiteral("TOLVANIS MEANINGS"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* groups = new QWidget;
    auto* row = new QHBoxLayout(groups);
    row->setContentsMargins(0, 0, 0, 0);
    const MeaningChoice first;
    const auto planets = std::span(kGridNames).first<kInterpretedPlanets>();
    Option1_ = AddGroup(*row, "Option1", "Sign/Asc Sign", kSignNames, first.sign);
    Option2_ = AddGroup(*row, "Option2", "Houses", kHouseNames, first.house);
    Option3_ = AddGroup(*row, "Option3", "Planets", planets, first.planet);
    Option4_ = AddGroup(*row, "Option4", "Aspects", kAspectCaptions, first.aspect);
    Option5_ = AddGroup(*row, "Option5", "2nd Planet", planets, first.secondPlanet);
    connect(Option1_, &OptionGroup::opened, this, &MEANINGS::OKRisingSign_Click);
    connect(Option2_, &OptionGroup::opened, this, &MEANINGS::OKHouses_Click);
    connect(Option4_, &OptionGroup::opened, this, &MEANINGS::OKAspects_Click);
    auto* buttons = new EvenRows;
    AddButton(*buttons, "OKSigns", "Planet in &sign", &MEANINGS::OKSigns_Click);
    AddButton(*buttons, "OKHouses", "Planet &house", &MEANINGS::OKHouses_Click);
    AddButton(*buttons, "OKRisingSign", "&Rising sign", &MEANINGS::OKRisingSign_Click);
    AddButton(*buttons, "OKAspects", "&Aspects", &MEANINGS::OKAspects_Click);
    AddButton(*buttons, "Command1", "Hel&p", &MEANINGS::Command1_Click);
    auto* column = new QVBoxLayout(this);
    column->addWidget(new ScrollBox(groups), 1);
    column->addLayout(buttons);
}

OptionGroup* MEANINGS::AddGroup(QHBoxLayout& row, const char* name, const char* caption,
                                std::span<const std::string_view> options, int chosen) {
    auto* group = new OptionGroup(QLatin1String(name), QLatin1String(caption), options, chosen);
    row.addWidget(group, 1);
    return group;
}

void MEANINGS::AddButton(EvenRows& buttons, const char* name, const char* caption,
                         void (MEANINGS::*handler)()) {
    QPushButton* button = MakePushButton(name, QLatin1String(caption));
    connect(button, &QPushButton::clicked, this, handler);
    buttons.addWidget(button);
}

QSize MEANINGS::minimumSizeHint() const {
    const QSize room = RoomBesideMenu();
    QSize size = sizeHint();
    if (size.height() > room.height()) size.rwidth() += style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    return size.boundedTo(room);
}

MeaningChoice MEANINGS::Choice() const {
    return {Option1_->Index(), Option2_->Index(), Option3_->Index(), Option4_->Index(), Option5_->Index()};
}

void MEANINGS::ShowOrTell(const Result<MeaningPlace>& place) {
    if (place) {
        Q_EMIT meaningChosen(*place);
    } else {
        messages_.Tell("Information", place.message(), MessageIcon::Warning);
    }
}

void MEANINGS::OKSigns_Click() {
    ShowOrTell(PlanetInSign(Choice()));
}

void MEANINGS::OKHouses_Click() {
    ShowOrTell(PlanetInHouse(Choice()));
}

void MEANINGS::OKRisingSign_Click() {
    ShowOrTell(RisingSign(Choice()));
}

void MEANINGS::OKAspects_Click() {
    ShowOrTell(AspectOfPlanets(Choice()));
}

void MEANINGS::Command1_Click() {
    messages_.Tell("Helpful Hints", kHints, MessageIcon::Information);
}

void MEANINGS::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        Q_EMIT mainWindowRequested();
    } else {
        QWidget::keyPressEvent(event);
    }
}

}  // namespace tolvanis
