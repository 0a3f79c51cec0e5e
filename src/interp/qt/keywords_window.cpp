#include "interp/qt/keywords_window.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "interp/keywords.h"
#include "platform/qt/listing_font.h"
#include "platform/qt/text.h"

namespace tolvanis {
namespace {

constexpr double kRowTwips = 250.0;
constexpr double kColumnTwips = 1200.0;
constexpr double kPoints = 8.0;          // of letters in the smallest cells
constexpr double kHeadingPoints = 10.0;  // of the letters that are measured
constexpr double kLastHeadingAt = 3.1;   // columns from the left, so that all headings stand above theirs
constexpr int kRows = static_cast<int>(kKeywordRows);
constexpr int kColumns = static_cast<int>(kKeywordColumns);
constexpr const char* kHeadings = "    Planet          Sign             House         Quality";
constexpr const char* kHeadingsBeforeLast = "    Planet          Sign             House         ";

QLabel* MakeLabel(const char* name, const char* text) {
    auto* label = new QLabel(QLatin1String(text));
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

}  // namespace

Keywords::Keywords(Messages& messages, double twipsPerPixel)
    : messages_(messages),
      cell_(kColumnTwips / twipsPerPixel, kRowTwips / twipsPerPixel),
      Label2_(MakeLabel("Label2", kHeadings)),
      grdOutput_(new QTableWidget(kRows, kColumns)) {
    setObjectName(QStringLiteral("Keywords"));
    setWindowTitle(QStringLiteral("Keywords"));
    setAttribute(Qt::WA_DeleteOnClose);
    FillGrid();
    Label2_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // its letters follow the grid
    auto* column = new QVBoxLayout(this);
    column->addWidget(Label2_);
    column->addWidget(grdOutput_, 1);
    column->addWidget(MakeLabel("Label1", "NOTE: Click on a topic for information"));
    FitGrid({});
    resize(minimumSizeHint());
    setFocusProxy(grdOutput_);
}

void Keywords::FillGrid() {
    grdOutput_->setObjectName(QStringLiteral("grdOutput"));
    grdOutput_->setAccessibleName(QStringLiteral("Topics"));
    grdOutput_->horizontalHeader()->hide();
    grdOutput_->verticalHeader()->hide();
    for (QHeaderView* header : {grdOutput_->horizontalHeader(), grdOutput_->verticalHeader()}) {
        header->setMinimumSectionSize(1);
        header->setSectionResizeMode(QHeaderView::Fixed);
    }
    grdOutput_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grdOutput_->setSelectionMode(QAbstractItemView::SingleSelection);
    grdOutput_->setTabKeyNavigation(false);
    grdOutput_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    grdOutput_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (int row = 0; row < kRows; ++row) {
        for (int column = 0; column < kColumns; ++column) {
            const std::string_view topic =
                kKeywordGrid[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
            grdOutput_->setItem(row, column, new QTableWidgetItem(ToQt(topic)));
        }
    }
    grdOutput_->setCurrentCell(0, 0);
    const int frame = 2 * grdOutput_->frameWidth();
    grdOutput_->setMinimumSize(qRound(cell_.width() * kColumns) + frame,
                               qRound(cell_.height() * kRows) + frame);
    connect(grdOutput_, &QTableWidget::cellClicked, this, &Keywords::grdOutput_Click);
    grdOutput_->installEventFilter(this);
    grdOutput_->viewport()->installEventFilter(this);
}

// Cells and letters as large as the room allows, the headings above their columns.
void Keywords::FitGrid(const QSizeF& room) {
    const double width = std::max(cell_.width(), room.width() / kColumns);
    const double height = std::max(cell_.height(), room.height() / kRows);
    for (int column = 0; column < kColumns; ++column) {
        grdOutput_->setColumnWidth(column, qRound(width * (column + 1)) - qRound(width * column));
    }
    for (int row = 0; row < kRows; ++row) {
        grdOutput_->setRowHeight(row, qRound(height * (row + 1)) - qRound(height * row));
    }
    const double growth = std::min(width / cell_.width(), height / cell_.height());
    grdOutput_->setFont(ListingFont(kPoints * growth));
    QFont headings = font();
    headings.setPointSizeF(kHeadingPoints);
    const double advance = QFontMetricsF(headings).horizontalAdvance(QLatin1String(kHeadingsBeforeLast));
    headings.setPointSizeF(kHeadingPoints * kLastHeadingAt * width / advance);
    Label2_->setFont(headings);
}

void Keywords::grdOutput_Click() {
    const QTableWidgetItem* cell = grdOutput_->currentItem();
    if (cell == nullptr) return;
    const std::string topic = cell->text().toStdString();
    const std::string text = KeywordText(topic);
    if (!text.empty()) DisplayMsgBox(topic, text);
}

void Keywords::DisplayMsgBox(const std::string& topic, const std::string& text) {
    messages_.Tell(topic, text, MessageIcon::Information);
}

bool Keywords::eventFilter(QObject* object, QEvent* event) {
    if (object == grdOutput_->viewport() && event->type() == QEvent::Resize) {
        FitGrid(grdOutput_->viewport()->size());
    }
    if (object != grdOutput_ || event->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(object, event);
    }
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Space) return false;
    grdOutput_Click();
    return true;
}

void Keywords::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        Q_EMIT mainWindowRequested();
    } else {
        QWidget::keyPressEvent(event);
    }
}

}  // namespace tolvanis
