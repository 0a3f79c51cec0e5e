#include "birthdata/qt/cities_window.h"

#include <QVBoxLayout>

#include "birthdata/qt/record_list_window.h"
#include "platform/qt/hourglass.h"

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
    {
        const Hourglass hourglass;
        cities_ = ReadCitiesFile(PathFromText(file_));
        pane_->Show(
            file_, cities_.size(), [this](std::size_t row) { return CityTextAt(cities_, row); },
            ProblemText(cities_.fault()));
    }
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

}  // namespace tolvanis
