#include "birthdata/qt/record_list_window.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QShortcut>
#include <QToolTip>
#include <algorithm>

#include "platform/files.h"
#include "platform/qt/elided_label.h"
#include "platform/qt/hourglass.h"
#include "platform/qt/text.h"
#include "text/columns.h"

namespace tolvanis {

void RecordListModel::SetRecords(std::size_t count, TextAt textAt) {
    beginResetModel();
    count_ = static_cast<int>(count);
    textAt_ = std::move(textAt);
    search_.reset();
    endResetModel();
}

std::string RecordListModel::Text(int row) const {
    return row >= 0 && row < count_ ? textAt_(static_cast<std::size_t>(row)) : std::string();
}

const RecordSearch& RecordListModel::Search() const {
    if (!search_) {
        const Hourglass hourglass;
        search_.emplace(static_cast<std::size_t>(count_), textAt_, moreAt_);
    }
    return *search_;
}

int RecordListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count_;
}

QVariant RecordListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || role != Qt::DisplayRole) return {};
    return ToQt(Text(index.row()));
}

RecordListView::RecordListView(QWidget* parent) : QListView(parent) {
    setModel(&model_);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    connect(this, &QListView::clicked, this,
            [this](const QModelIndex& index) { Q_EMIT rowPicked(index.row()); });
    connect(this, &QListView::doubleClicked, this,
            [this](const QModelIndex& index) { Q_EMIT rowOpened(index.row()); });
}

void RecordListView::SetRecords(std::size_t count, RecordListModel::TextAt textAt) {
    typed_.clear();
    top_ = -1;
    model_.SetRecords(count, std::move(textAt));
}

int RecordListView::CurrentRow() const {
    return currentIndex().row();
}

void RecordListView::SelectRow(int row) {
    const QModelIndex index = model_.index(row, 0);
    const bool inView = viewport()->rect().contains(visualRect(index));
    setCurrentIndex(index);
    if (!inView) scrollTo(index, PositionAtCenter);
}

void RecordListView::SetPosition(int top, int row) {
    SelectRow(row);
    verticalScrollBar()->setValue(top);
    if (!isVisible()) top_ = top;
}

// The scroll bar's range is known only when the list has its size.
void RecordListView::resizeEvent(QResizeEvent* event) {
    QListView::resizeEvent(event);
    if (top_ < 0) return;
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(top_);
    if (isVisible()) top_ = -1;
}

// A text that is wider than the list is shown whole beside the pointer.
bool RecordListView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QString text = indexAt(help->pos()).data().toString();
        const bool cut = fontMetrics().horizontalAdvance(text) > viewport()->width() - 2 * frameWidth();
        QToolTip::showText(help->globalPos(), cut ? TipText(text) : QString(), this);
        return true;
    }
    return QListView::viewportEvent(event);
}

bool RecordListView::IsTyping() const {
    return lastTyped_.isValid() && lastTyped_.elapsed() <= QApplication::keyboardInputInterval();
}

void RecordListView::keyboardSearch(const QString& typed) {
    typed_ = IsTyping() ? typed_ + typed : typed;
    // One letter typed again and again goes through the texts that begin with it.
    const bool repeated =
        std::all_of(typed_.begin(), typed_.end(), [&](QChar c) { return c == typed_.front(); });
    const QString wanted = repeated ? typed_.left(1) : typed_;
    const int from = std::max(0, CurrentRow() + (repeated ? 1 : 0));
    const auto found = model_.Search().FindBeginning(wanted.toStdString(), static_cast<std::size_t>(from));
    if (found) SelectRow(static_cast<int>(*found));
    lastTyped_.restart();  // the time that the search has taken is no pause of the user's
}

void RecordListView::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const bool opens = key == Qt::Key_Return || key == Qt::Key_Enter;
    const bool picks = key == Qt::Key_Space && !IsTyping();
    if (!opens && !picks) return QListView::keyPressEvent(event);
    event->accept();
    if (CurrentRow() < 0) return;
    if (opens) {
        Q_EMIT rowOpened(CurrentRow());
    } else {
        Q_EMIT rowPicked(CurrentRow());
    }
}

void RecordListView::KeepWidthOfTexts() {
    const int most = fontMetrics().horizontalAdvance(QLatin1Char('0')) * 64;
    const int room = verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
    setMinimumWidth(std::min(sizeHintForColumn(0), most) + room);
}

// Room for a remembered entry and the twelve above it.
QSize RecordListView::sizeHint() const {
    constexpr int kRows = 18;
    constexpr int kCharacters = 40;
    const QFontMetrics metrics = fontMetrics();
    return {metrics.averageCharWidth() * kCharacters, (metrics.height() + 2) * kRows + 2 * frameWidth()};
}

RecordListPane::RecordListPane(const Wording& wording, QWidget* parent)
    : QWidget(parent),
      wording_(wording),
      fileLabel_(new ElidedLabel(this)),
      countLabel_(new QLabel(this)),
      problemLabel_(new QLabel(this)),
      find_(new QLineEdit(this)),
      list_(new RecordListView(this)) {
    NameControls();
    SetUpFind();
    LayOut();
    setFocusProxy(list_);
}

void RecordListPane::NameControls() {
    list_->setObjectName(QLatin1String(wording_.list));
    list_->setAccessibleName(QStringLiteral("List of %1").arg(QLatin1String(wording_.many)));
    fileLabel_->setObjectName(QLatin1String(wording_.label));
    countLabel_->setObjectName(QStringLiteral("lblCount"));
    problemLabel_->setObjectName(QStringLiteral("lblProblem"));
    countLabel_->setTextFormat(Qt::PlainText);
    problemLabel_->setTextFormat(Qt::PlainText);
    problemLabel_->setWordWrap(true);
    problemLabel_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    problemLabel_->hide();
    find_->setObjectName(QStringLiteral("txtFind"));
    find_->setAccessibleName(QStringLiteral("Find"));
}

void RecordListPane::SetUpFind() {
    find_->setToolTip(QStringLiteral(
        "Part of a name, accents and capitals aside. Down and Up go through what fits, Enter picks. "
        "(Ctrl+F)"));
    find_->setClearButtonEnabled(true);
    find_->installEventFilter(this);
    connect(find_, &QLineEdit::textChanged, this, &RecordListPane::FindTyped);
    const auto focusFind = [this] {
        find_->setFocus(Qt::ShortcutFocusReason);
        find_->selectAll();
    };
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, focusFind);
}

void RecordListPane::LayOut() {
    auto* findLabel = new QLabel(QStringLiteral("&Find"), this);
    findLabel->setBuddy(find_);
    auto* head = new QHBoxLayout;
    head->addWidget(fileLabel_, 1);
    head->addWidget(countLabel_);
    auto* findRow = new QHBoxLayout;
    findRow->addWidget(findLabel);
    findRow->addWidget(find_, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addLayout(head);
    column->addLayout(findRow);
    column->addWidget(list_, 1);
    column->addWidget(problemLabel_);
}

void RecordListPane::ShowReading(const std::string& file) {
    fileLabel_->setText(ToQt(UpperCase(FileNamePart(file))));
    fileLabel_->setToolTip(TipText(ToQt(file)));
    list_->SetRecords(0, {});
    problemLabel_->hide();
    reading_ = true;
    find_->clear();
    FindTyped();
}

void RecordListPane::Show(std::size_t count, RecordListModel::TextAt textAt, const std::string& problem) {
    list_->SetRecords(count, std::move(textAt));
    problemLabel_->setText(ToQt(problem));
    problemLabel_->setToolTip(TipText(ToQt(problem)));
    problemLabel_->setVisible(!problem.empty());
    reading_ = false;
    FindTyped();
}

void RecordListPane::ShowCount() {
    const auto count = list_->records().rowCount();
    const QLocale locale;
    if (reading_) {
        countLabel_->setText(QStringLiteral("reading..."));
    } else if (find_->text().trimmed().isEmpty()) {
        const char* what = count == 1 ? wording_.one : wording_.many;
        countLabel_->setText(locale.toString(count) + QLatin1Char(' ') + QLatin1String(what));
    } else if (matches_.empty()) {
        countLabel_->setText(QStringLiteral("nothing found"));
    } else {
        countLabel_->setText(
            QStringLiteral("%1 of %2")
                .arg(locale.toString(match_ + 1), locale.toString(static_cast<qulonglong>(matches_.size()))));
    }
}

void RecordListPane::FindTyped() {
    const QString typed = find_->text();
    matches_.clear();
    if (!typed.trimmed().isEmpty()) matches_ = list_->records().Search().FindAll(typed.toStdString());
    match_ = 0;
    GoToMatch(0);
}

void RecordListPane::GoToMatch(int step) {
    const int count = static_cast<int>(matches_.size());
    if (count > 0) {
        match_ = (match_ + step + count) % count;
        list_->SelectRow(static_cast<int>(matches_[static_cast<std::size_t>(match_)]));
    }
    ShowCount();
}

bool RecordListPane::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool back = key->modifiers().testFlag(Qt::ShiftModifier);
    switch (key->key()) {
        case Qt::Key_Down:
            GoToMatch(1);
            return true;
        case Qt::Key_Up:
            GoToMatch(-1);
            return true;
        case Qt::Key_F3:
            GoToMatch(back ? -1 : 1);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!matches_.empty()) Q_EMIT list_->rowPicked(list_->CurrentRow());
            return true;
        case Qt::Key_Escape:
            if (find_->text().isEmpty()) return false;
            find_->clear();
            list_->setFocus();
            return true;
        default:
            return QWidget::eventFilter(watched, event);
    }
}

}  // namespace tolvanis
