#include "interp/qt/report_window.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QVBoxLayout>
#include <QtMath>
#include <algorithm>
#include <cmath>

#include "output/text_files.h"
#include "platform/qt/even_rows.h"
#include "platform/qt/hourglass.h"
#include "platform/qt/listing_font.h"
#include "platform/qt/placement.h"
#include "platform/qt/push_button.h"
#include "platform/qt/text.h"
#include "platform/qt/text_area.h"
#include "text/columns.h"

namespace tolvanis {
namespace {

constexpr int kColumns = 80;  // that the window is made for
constexpr double kPoints = 11.0;
constexpr double kReadablePoints = 7.0;  // that a window beside others still has
constexpr double kSmallestPoints = 5.0;  // before scroll bars come
constexpr double kPointStep = 0.25;
constexpr int kWheelLines = 3;  // for one notch of a mouse wheel
constexpr int kNotch = 120;

// The area that shows a whole screen in letters of that size.
QSize AreaFor(const QPlainTextEdit& area, double points) {
    const QFontMetricsF metrics(ListingFont(points), &area);
    const int margin = 2 * qCeil(area.document()->documentMargin());
    return {qCeil(metrics.horizontalAdvance(QLatin1Char('M')) * kColumns) + margin,
            qCeil(metrics.lineSpacing()) * kScreenLines + margin};
}

bool Fits(const QSize& inner, const QSize& outer) {
    return inner.width() <= outer.width() && inner.height() <= outer.height();
}

bool HasWideLine(const ReportBuffer& report) {
    for (int n = 0; n < report.LineCount(); ++n) {
        if (CharacterCount(report.Line(n)) > kColumns) return true;
    }
    return false;
}

}  // namespace

Report::Report(const ReportContext& context)
    : context_(context),
      screen_(context.report),
      saving_(context.SaveFileName, context.printing.messages, context.printing.dialogs) {
    setObjectName(QStringLiteral("Report"));
    setAttribute(Qt::WA_DeleteOnClose);
    Build();
}

void Report::Build() {
    buttons_ = new EvenRows;
    AddButton("cmdDown1", "Down 1 Line", &Report::cmdDown1_Click);
    AddButton("cmdUp1", "Up 1 Line", &Report::cmdUp1_Click);
    cmdPageDOWN_ = AddButton("cmdPageDOWN", "Page Down", &Report::cmdPageDOWN_Click);
    cmdPageUP_ = AddButton("cmdPageUP", "Page Up", &Report::cmdPageUP_Click);
    AddButton("cmdSave", "Save", &Report::cmdSave_Click);
    AddButton("cmdSaveAs", "Save As", &Report::cmdSaveAs_Click);
    AddButton("btnCancel", "CANCEL", &Report::btnCancel_Click);
    AddButton("btnPrint", "Print", &Report::btnPrint_Click);
    txtContent_ = MakeTextArea("txtContent", "Report");
    txtContent_->setReadOnly(true);
    txtContent_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    txtContent_->installEventFilter(this);
    txtContent_->viewport()->installEventFilter(this);
    BuildFindBar();
    auto* column = new QVBoxLayout(this);
    column->addWidget(txtContent_, 1);
    column->addWidget(findBar_);
    column->addLayout(buttons_);
    ResizeToFit(*this, SizeFor(kPoints, buttons_->sizeHint().width()));
    AddShortcut(QKeySequence::Save, [this] { cmdSave_Click(); });
    AddShortcut(QKeySequence::Print, [this] { btnPrint_Click(); });
    AddShortcut(QKeySequence::Find, [this] { OpenFind(); });
    AddShortcut(QKeySequence(Qt::Key_F3), [this] { Find(screen_.top() + 1, SearchDirection::Forward); });
    AddShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F3),
                [this] { Find(screen_.top() - 1, SearchDirection::Backward); });
}

QPushButton* Report::AddButton(const char* name, const char* caption, void (Report::*handler)()) {
    QPushButton* button = MakePushButton(name, QLatin1String(caption));
    connect(button, &QPushButton::clicked, this, handler);
    buttons_->addWidget(button);
    return button;
}

// The window's size for a whole screen in letters of that size, and at least so wide a row of buttons.
QSize Report::SizeFor(double points, int row) const {
    const int frame = 2 * txtContent_->frameWidth();
    const QMargins margins = layout()->contentsMargins();
    const QSize area = AreaFor(*txtContent_, points) + QSize(frame, frame);
    const int width = std::max(area.width(), row);
    const int height = area.height() + layout()->spacing() + buttons_->heightForWidth(width);
    return QSize(width, height).grownBy(margins);
}

QSize Report::minimumSizeHint() const {
    return SizeFor(kReadablePoints, 0);
}

void Report::AddShortcut(const QKeySequence& keys, const std::function<void()>& handler) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, handler);
}

void Report::BuildFindBar() {
    findBar_ = new QWidget;
    txtFind_ = new QLineEdit;
    txtFind_->setObjectName(QStringLiteral("txtFind"));
    lblFound_ = new QLabel;
    lblFound_->setObjectName(QStringLiteral("lblFound"));
    auto* caption = new QLabel(QStringLiteral("&Find"));
    caption->setBuddy(txtFind_);
    auto* row = new QHBoxLayout(findBar_);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(caption);
    row->addWidget(txtFind_, 1);
    row->addWidget(lblFound_);
    findBar_->hide();
    connect(txtFind_, &QLineEdit::textEdited, this,
            [this] { Find(screen_.top(), SearchDirection::Forward); });
    connect(txtFind_, &QLineEdit::returnPressed, this,
            [this] { Find(screen_.top() + 1, SearchDirection::Forward); });
}

void Report::Load(const std::string& personName) {
    personName_ = personName;
    screen_.GoTo(0);
    // A bar that came and went would change the room, and with it the letters.
    isWide_ = HasWideLine(context_.report);
    SetBars(false);
    findBar_->hide();
    Redraw();
}

void Report::ShowScreen() {
    if (context_.report.LineCount() == 0) return;
    txtContent_->setExtraSelections({});
    SetAreaText(*txtContent_, screen_.Text());
    setWindowTitle(ToQt(context_.titlePrefix + "REPORT"));
    show();
}

void Report::Redraw() {
    if (context_.report.LineCount() == 0) return;
    ShowScreen();
    cmdPageDOWN_->setFocus();
}

void Report::Move(int lines) {
    if (screen_.Move(lines)) Redraw();
}

void Report::cmdDown1_Click() {
    Move(1);
}

void Report::cmdUp1_Click() {
    Move(-1);
}

void Report::cmdPageDOWN_Click() {
    Move(kScreenLines);
}

void Report::cmdPageUP_Click() {
    Move(-kScreenLines);
    cmdPageUP_->setFocus();
}

bool Report::HandleKey(int key) {
    switch (key) {
        case Qt::Key_PageUp:
            cmdPageUP_Click();
            return true;
        case Qt::Key_PageDown:
            cmdPageDOWN_Click();
            return true;
        case Qt::Key_End:
            cmdDown1_Click();
            return true;
        case Qt::Key_Home:
            cmdUp1_Click();
            return true;
        default:
            return false;
    }
}

void Report::keyPressEvent(QKeyEvent* event) {
    if (HandleKey(event->key())) return;
    if (event->key() != Qt::Key_Escape) return QWidget::keyPressEvent(event);
    if (findBar_->isVisible()) return CloseFind();
    Q_EMIT mainWindowRequested();
}

bool Report::eventFilter(QObject* object, QEvent* event) {
    if (object == txtContent_ && event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        return !(key->modifiers() & ~Qt::KeypadModifier) && HandleKey(key->key());
    }
    if (object == txtContent_->viewport() && event->type() == QEvent::Wheel) {
        Wheel(static_cast<QWheelEvent*>(event)->angleDelta().y());
        return true;
    }
    if (object == txtContent_->viewport() && event->type() == QEvent::Resize) FitLetters();
    return false;
}

void Report::Wheel(int angle) {
    wheelAngle_ += angle;
    const int notches = wheelAngle_ / kNotch;
    wheelAngle_ -= notches * kNotch;
    if (notches != 0) Move(-notches * kWheelLines);
}

void Report::SetBars(bool needed) {
    const auto policy = needed ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
    txtContent_->setVerticalScrollBarPolicy(policy);
    txtContent_->setHorizontalScrollBarPolicy(isWide_ ? Qt::ScrollBarAlwaysOn : policy);
}

// The largest letters in which a whole screen fits; where there are none, scroll bars come.
void Report::FitLetters() {
    const QSize room = txtContent_->viewport()->size();
    const QSize smallest = AreaFor(*txtContent_, kSmallestPoints);
    const double growth =
        std::min(double(room.width()) / smallest.width(), double(room.height()) / smallest.height());
    double points = std::max(kSmallestPoints, kSmallestPoints * growth + 1.0);
    points = std::floor(points / kPointStep) * kPointStep;
    while (points > kSmallestPoints && !Fits(AreaFor(*txtContent_, points), room)) points -= kPointStep;
    txtContent_->setFont(ListingFont(points));
    SetBars(!Fits(smallest, room));
}

void Report::OpenFind() {
    findBar_->show();
    lblFound_->clear();
    txtFind_->setFocus();
    txtFind_->selectAll();
}

void Report::CloseFind() {
    findBar_->hide();
    txtContent_->setExtraSelections({});
    cmdPageDOWN_->setFocus();
}

void Report::Find(int from, SearchDirection direction) {
    const std::string text = txtFind_->text().toStdString();
    if (text.empty()) return lblFound_->clear();
    ReportPlace place;
    const bool found = FindInReport(context_.report, text, from, direction, place);
    lblFound_->setText(found ? QString() : QStringLiteral("Not found"));
    if (!found) return;
    screen_.GoTo(place.line);
    ShowScreen();  // the focus stays where the user types
    MarkFound(place);
}

void Report::MarkFound(const ReportPlace& place) {
    const auto front = FirstCharacters(context_.report.Line(place.line), place.column);
    QTextEdit::ExtraSelection mark;
    mark.format.setBackground(palette().highlight());
    mark.format.setForeground(palette().highlightedText());
    mark.cursor = QTextCursor(txtContent_->document());
    mark.cursor.setPosition(static_cast<int>(ToQt(front).size()));
    mark.cursor.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor,
                             static_cast<int>(txtFind_->text().size()));
    txtContent_->setExtraSelections({mark});
}

// The directory of reports, or where it cannot be made the one above it.
Path Report::SavingDirectory() {
    std::error_code error;
    std::filesystem::create_directories(context_.reportsDirectory, error);
    if (!error) return context_.reportsDirectory;
    context_.printing.messages.Tell(
        "Error!",
        "Cannot make the directory " + context_.reportsDirectory.string() + ": " + error.message() + ".",
        MessageIcon::Stop);
    return context_.reportsDirectory.parent_path();
}

TextToSave Report::SavedText() {
    return {context_.report.LineCount() == 0,
            [this] {
                return SaveRequest{SavingDirectory(), ProposedFileName(personName_, ".TXT"), "Data Files",
                                   "*.TXT", "txt"};
            },
            [this] { return SavedReport(context_.report, ReportPageFormOf(context_.options), "\r\n"); }};
}

void Report::cmdSave_Click() {
    saving_.Save(SavedText());
}

void Report::cmdSaveAs_Click() {
    saving_.SaveAs(SavedText());
}

void Report::btnCancel_Click() {
    close();
}

void Report::btnPrint_Click() {
    PrintServices printing = context_.printing;
    printing.directory = [this] { return SavingDirectory(); };
    PrintPages(printing, ProposedFileName(personName_, " report"),
               {PrintedReport(context_.report, ReportPageFormOf(context_.options)), 12, true});
}

}  // namespace tolvanis
