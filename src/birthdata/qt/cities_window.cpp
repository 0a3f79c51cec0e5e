#include "birthdata/qt/cities_window.h"

#include <QCloseEvent>
#include <QVBoxLayout>

#include "birthdata/qt/record_list_window.h"

namespace tolvanis {
namespace {

constexpr double kSamePlaceKm = 3.0;

// The names and the size of the place in the atlas that a record stands for.
RecordSearch::More OtherNamesOf(const CityRecord& city, const Atlas& atlas) {
    const Place place = PlaceOfCity(city);
    const double north = DegreesOf(*place.latitude);
    const double east = -DegreesOf(*place.longitude);
    const std::string name = city.city.substr(0, city.city.find(" ("));
    const auto known = atlas.Named(name, north, east, kSamePlaceKm);
    if (!known) return {};
    RecordSearch::More more;
    more.weight = atlas.At(*known).population;
    for (const std::string_view key : atlas.KeysOf(*known)) more.names.emplace_back(key);
    return more;
}

}  // namespace

Geograph::Geograph(std::string file, Messages& messages, AtlasSource atlas, QWidget* parent)
    : QWidget(parent, Qt::Window),
      file_(std::move(file)),
      messages_(messages),
      pane_(new RecordListPane({"CitiesOnFile", "lblCitiesOnFile", "city", "cities"}, this)) {
    setObjectName(QStringLiteral("Geograph"));
    setWindowTitle(QStringLiteral("Cities"));
    connect(&pane_->list(), &RecordListView::rowPicked, this, &Geograph::CitiesOnFile_Click);
    // Enter: there is nothing more to open, and the mouse has picked at the first click.
    connect(&pane_->list(), &RecordListView::rowOpened, this, &Geograph::CitiesOnFile_Click);

    if (atlas) {
        pane_->list().SetMore([this, atlas = std::move(atlas)](std::size_t row) {
            const Result<CityRecord> city = ParseCityRecord(cities_.Line(row));
            const Atlas* places = atlas();
            return city && places != nullptr ? OtherNamesOf(*city, *places) : RecordSearch::More{};
        });
    }

    auto* column = new QVBoxLayout(this);
    column->addWidget(pane_, 1);
    column->addLayout(ListButtons(*this, QStringLiteral("Click here for &names"), &Geograph::namesRequested,
                                  &Geograph::editListRequested, &Geograph::changeListRequested));
    setFocusProxy(pane_);
}

void Geograph::Load() {
    pane_->ShowReading(file_);
    loader_.Start(PathFromText(file_), ReadCitiesFile,
                  [this](RecordList cities) { Show(std::move(cities)); });
}

void Geograph::Show(RecordList cities) {
    cities_ = std::move(cities);
    pane_->Show(
        cities_.size(), [this](std::size_t row) { return CityTextAt(cities_, row); },
        ProblemText(cities_.fault()));
    if (cities_.fault()) TellCitiesFault(*cities_.fault(), messages_);
}

void Geograph::ChangeFile(const std::string& file) {
    file_ = file;
    Load();
}

void Geograph::CitiesOnFile_Click(int row) {
    if (const auto city = FindCityText(cities_, pane_->list().records().Text(row)))
        Q_EMIT placePicked(PlaceOfCity(*city));
}

void Geograph::closeEvent(QCloseEvent* event) {
    event->accept();
    Q_EMIT closedByUser();
}

}  // namespace tolvanis
