#include "output/qt/data_window.h"

#include <QKeyEvent>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollBar>

#include "output/text_files.h"
#include "platform/file_replacing.h"
#include "platform/qt/hourglass.h"
#include "platform/qt/listing_font.h"
#include "platform/qt/placement.h"
#include "platform/qt/text.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

constexpr int kLinesPerSavedPageOption = 45;
constexpr const char* kNearlyFullText =
    "The data buffer is nearly full. Please consider clearing the data buffer by clicking on the "
    "'Clear all data' menu item.";
constexpr const char* kOverflowText =
    "The data buffer is full. What it already holds is kept, but the last lines could not be added. Please "
    "save the data and clear the data buffer by clicking on the 'Clear all data' menu item.";

constexpr QSize kSmallestSize = {200, 100};

bool HasDefaultPlace(const DataViewSettings& view) {
    const DataViewSettings standard;
    return view.DataTop == standard.DataTop && view.DataLeft == standard.DataLeft &&
           view.DataHeight == standard.DataHeight && view.DataWidth == standard.DataWidth;
}

QRect PlaceOf(const DataWindowContext& context) {
    const DataViewSettings& view = context.view;
    QRect wanted = ToPixels(
        {double(view.DataTop), double(view.DataLeft), double(view.DataHeight), double(view.DataWidth)},
        context.twipsPerPixel);
    wanted.setSize(wanted.size().expandedTo(kSmallestSize));
    const QRect place = BroughtIntoView(wanted, UsableScreens());
    // Only its user puts the window partly beside the screen.
    return HasDefaultPlace(view) ? WhollyInView(place, UsableScreens()) : place;
}

// Where the reader is in a text: the lines in view and the marked part, kept over a change of letters.
class ReaderPlace {
  public:
    explicit ReaderPlace(const QPlainTextEdit& area)
        : text_(area.toPlainText()),
          anchor_(area.textCursor().anchor()),
          position_(area.textCursor().position()),
          line_(area.verticalScrollBar()->value()),
          column_(area.horizontalScrollBar()->value() / LetterWidth(area)) {}

    // Does nothing where the area shows another text by now.
    void Restore(QPlainTextEdit& area) const {
        if (!area.toPlainText().startsWith(text_)) return;
        QTextCursor cursor = area.textCursor();
        cursor.setPosition(anchor_);
        cursor.setPosition(position_, QTextCursor::KeepAnchor);
        area.setTextCursor(cursor);
        area.verticalScrollBar()->setValue(line_);
        area.horizontalScrollBar()->setValue(qRound(column_ * LetterWidth(area)));
    }

  private:
    static double LetterWidth(const QPlainTextEdit& area) {
        return QFontMetricsF(area.font()).horizontalAdvance(QLatin1Char('0'));
    }

    QString text_;
    int anchor_, position_;
    int line_;       // the first one in view
    double column_;  // the first one in view
};

}  // namespace

OutputD1::OutputD1(const DataWindowContext& context)
    : context_(context),
      saving_(context.SaveFileName, context.messages, context.dialogs),
      Text1_(new QPlainTextEdit) {
    setObjectName(QStringLiteral("OutputD1"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(ToQt(context_.titlePrefix + "Data"));
    BuildMenu();
    Text1_->setObjectName(QStringLiteral("Text1"));
    Text1_->setAccessibleName(QStringLiteral("Listing"));
    Text1_->setReadOnly(true);
    Text1_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    Text1_->setLineWrapMode(QPlainTextEdit::NoWrap);
    Text1_->setTabChangesFocus(true);
    Text1_->setFrameShape(QFrame::NoFrame);
    Text1_->setContextMenuPolicy(Qt::PreventContextMenu);
    Text1_->installEventFilter(this);
    Text1_->viewport()->installEventFilter(this);
    setCentralWidget(Text1_);
    setMinimumSize(kSmallestSize);
    ApplyFont();
    EnableFontItems();
    PlaceWindow(*this, PlaceOf(context_));
}

void OutputD1::BuildMenu() {
    menuBar()->setNativeMenuBar(false);
    const auto named = [](QAction* action, const char* name) {
        action->setObjectName(QLatin1String(name));
        return action;
    };
    const auto add = [&](QWidget* menu, const char* name, const char* caption, auto handler) {
        auto* action = named(new QAction(QLatin1String(caption), this), name);
        menu->addAction(action);
        connect(action, &QAction::triggered, this, handler);
        return action;
    };
    QMenu* file = menuBar()->addMenu(QStringLiteral("&File"));
    add(file, "mnuSave", "&Save", &OutputD1::mnuSave_Click)->setShortcut(QKeySequence::Save);
    add(file, "mnuSaveAs", "Save &As", &OutputD1::mnuSaveAs_Click);
    QMenu* font = menuBar()->addMenu(QStringLiteral("F&ont"));
    mnuIncrease_ = add(font, "mnuIncrease", "&Increase", &OutputD1::mnuIncrease_Click);
    mnuIncrease_->setShortcut(QKeySequence::ZoomIn);
    mnuDecrease_ = add(font, "mnuDecrease", "&Decrease", &OutputD1::mnuDecrease_Click);
    mnuDecrease_->setShortcut(QKeySequence::ZoomOut);
    mnuBold_ = add(font, "mnuBold", "&Bold", &OutputD1::mnuBold_Click);
    mnuItalic_ = add(font, "mnuItalic", "I&talic", &OutputD1::mnuItalic_Click);
    mnuBold_->setCheckable(true);
    mnuItalic_->setCheckable(true);
    add(menuBar(), "mnuClear", "&Clear all data", &OutputD1::mnuClear_Click);
    add(menuBar(), "mnuPrintPage", "&Print page", &OutputD1::mnuPrintPage_Click);
    add(menuBar(), "mnuPrintData", "Print &data", &OutputD1::mnuPrintData_Click);
    add(menuBar(), "mnuHelp", "&Help", &OutputD1::helpRequested);
}

void OutputD1::ApplyFont() {
    const DataViewSettings& view = context_.view;
    QFont font = ListingFont(std::min(view.FontSize, kLargestFontSize));
    font.setBold(view.FontBold != 0.0);
    font.setItalic(view.FontItalic != 0.0);
    Text1_->setFont(font);
    mnuBold_->setChecked(font.bold());
    mnuItalic_->setChecked(font.italic());
}

void OutputD1::EnableFontItems() {
    mnuIncrease_->setEnabled(CanIncreaseFont(context_.view));
    mnuDecrease_->setEnabled(CanDecreaseFont(context_.view));
}

void OutputD1::ShowDataBuffer() {
    DataBuffer& buffer = context_.buffer;
    if (isMinimized() || buffer.BufferLineCount() == 0) return;
    buffer.AppendBlankLine();
    Text1_->setPlainText(ToQt(buffer.ListingText("\n")));
    setWindowTitle(ToQt(context_.titlePrefix + "Data"));
    show();
    raise();
    activateWindow();
    Text1_->setFocus();
    if (buffer.TakeOverflowNotice()) {
        context_.messages.Tell("Warning!", kOverflowText, MessageIcon::Warning);
    } else if (buffer.BufferLineCount() > DataBuffer::kNearlyFull) {
        context_.messages.Tell("Warning!", kNearlyFullText, MessageIcon::Information);
    }
}

void OutputD1::RefreshView() {
    if (context_.buffer.ListingLineCount() == 0) return;
    const Hourglass hourglass;
    ShowDataBuffer();
    EnableFontItems();
}

void OutputD1::ShowInNewFont() {
    const ReaderPlace place(*Text1_);
    ApplyFont();
    RefreshView();
    place.Restore(*Text1_);
}

void OutputD1::mnuIncrease_Click() {
    IncreaseFont(context_.view, context_.fontStep);
    ShowInNewFont();
}

void OutputD1::mnuDecrease_Click() {
    DecreaseFont(context_.view, context_.fontStep);
    ShowInNewFont();
}

void OutputD1::mnuBold_Click(bool ticked) {
    context_.view.FontBold = FontFlag(ticked);
    ShowInNewFont();
}

void OutputD1::mnuItalic_Click(bool ticked) {
    context_.view.FontItalic = FontFlag(ticked);
    ShowInNewFont();
}

TextToSave OutputD1::SavedBuffer() const {
    return {
        context_.buffer.BufferLineCount() == 0,
        [this] {
            return SaveRequest{context_.applicationDirectory, ProposedFileName(context_.natal.Name, ".DOC"),
                               "Data Files", "*.DOC", "doc"};
        },
        [this] {
            return SavedListing(context_.buffer.BufferLines(), context_.options[kLinesPerSavedPageOption]);
        }};
}

void OutputD1::mnuSave_Click() {
    saving_.Save(SavedBuffer());
}

void OutputD1::mnuSaveAs_Click() {
    saving_.SaveAs(SavedBuffer());
}

void OutputD1::mnuClear_Click() {
    context_.buffer.ClearBufferLines();
    context_.messages.Tell("Information!", "All data cleared from buffer.", MessageIcon::Warning);
}

void OutputD1::mnuPrintPage_Click() {
    if (context_.buffer.ListingLineCount() > 0) WritePrintFile(context_.buffer.ListingLines());
}

void OutputD1::mnuPrintData_Click() {
    if (context_.buffer.BufferLineCount() > 0) return WritePrintFile(context_.buffer.BufferLines());
    context_.messages.Tell("Information", "No data to print.", MessageIcon::Warning);
}

void OutputD1::WritePrintFile(const std::vector<std::string>& lines) {
    const Result<void> written =
        ReplaceFile(FindFile(context_.applicationDirectory, kPrintFileName), PrintFileText(lines));
    if (!written) {
        context_.messages.Tell("Error!", written.message(), MessageIcon::Stop);
        return;
    }
    Q_EMIT printFileWritten();
}

bool OutputD1::eventFilter(QObject* object, QEvent* event) {
    const bool escape =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    const bool rightButton = event->type() == QEvent::MouseButtonRelease &&
                             static_cast<QMouseEvent*>(event)->button() == Qt::RightButton;
    if (!escape && !rightButton) return QMainWindow::eventFilter(object, event);
    Q_EMIT mainWindowRequested();
    return true;
}

void OutputD1::KeepPlacement() {
    // Placements that the program or the system chose are no wish of the user's.
    if (!isVisible() || isMinimized() || isMaximized() || isFullScreen()) return;
    const QRect place(pos(), size());
    if (IsSamePlace(place, PlaceOf(context_))) return;
    const TwipsPlacement twips = ToTwips(place, context_.twipsPerPixel);
    context_.view.DataTop = RoundToInt16(twips.top);
    context_.view.DataLeft = RoundToInt16(twips.left);
    context_.view.DataHeight = RoundToInt16(twips.height);
    context_.view.DataWidth = RoundToInt16(twips.width);
}

void OutputD1::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    KeepPlacement();
}

void OutputD1::moveEvent(QMoveEvent* event) {
    QMainWindow::moveEvent(event);
    KeepPlacement();
}

}  // namespace tolvanis
