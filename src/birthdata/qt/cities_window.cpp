#include "birthdata/qt/cities_window.h"

#include <QCloseEvent>
#include <QVBoxLayout>

#include "birthdata/qt/record_list_window.h"

namespace tolvanis {

Geograph::Geograph(std::string file, Messages& messages, QWidget* parent)
    : QWidget(parent, Qt::Window),
      file_(std::move(file)),
      messages_(messages),
      pane_(new RecordListPane({"CitiesOnFile", "lblCitiesOnFile", "city", "cities"}, this)) {
    setObjectName(QStringLiteral("Geograph"));
    setWindowTitle(QStringLiteral("Cities"));
    connect(&pane_->list(), &RecordListView::rowPicked, this, &Geograph::CitiesOnFile_Click);
    // Enter: there is nothing more to open, and the mouse has picked at the first click.
    connect(&pane_->list(), &RecordListView::rowOpened, this, &Geograph::CitiesOnFile_Click);

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
