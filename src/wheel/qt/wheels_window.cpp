#include "wheel/qt/wheels_window.h"

#include <QKeyEvent>
#include <QMenuBar>
#include <QPagedPaintDevice>
#include <QScreen>

#include "output/text_files.h"
#include "platform/qt/hourglass.h"
#include "platform/qt/palette.h"
#include "platform/qt/placement.h"
#include "platform/qt/symbol_font.h"
#include "wheel/picture_format.h"
#include "wheel/qt/wheel_export.h"
#include "wheel/wheel_page.h"
#include "wheel/wheel_words.h"

namespace tolvanis {

Wheels::Wheels(WheelSnapshot chart, const WheelContext& context, int typeChart, QWidget* parent)
    : QMainWindow(parent),
      chart_(std::move(chart)),
      context_(context),
      typeChart_(typeChart),
      orbsFile_(context.orbsFile),
      hasFont_(SymbolFontIsLoaded()),
      canvas_(new WheelCanvas(*this, this)) {
    setObjectName(QStringLiteral("Wheels"));
    setWindowTitle(QString::fromStdString("Natal Chartwheel " + chart_.Name));
    canvas_->setAccessibleName(windowTitle());
    setCentralWidget(canvas_);
    connect(canvas_, &WheelCanvas::resized, this,
            [this](QSize size) { Q_EMIT startScaleChanged(StartScale(size.width(), size.height())); });
    BuildMenu();
    ReadOrbs();
    canvas_->setFocus();
    if (!hasFont_) TellSymbolFontMissing(context_.printing.messages);
}

void Wheels::BuildMenu() {
    const auto add = [this](auto& menu, const char* name, const QString& caption, auto handler) {
        QAction* action = menu.addAction(caption, this, handler);
        action->setObjectName(QString::fromLatin1(name));
        return action;
    };
    QMenuBar& bar = *menuBar();
    add(bar, "mnuAsciiChart", QStringLiteral("AS&CII"), &Wheels::asciiChartRequested);
    add(bar, "mnuAspects", QStringLiteral("&Aspects"), &Wheels::mnuAspects_Click);
    QMenu& orbs = *bar.addMenu(QStringLiteral("&Orbs"));
    add(orbs, "mnuOrbsChange", QStringLiteral("&Select new orb file"), &Wheels::mnuOrbsChange_Click);
    add(orbs, "mnuOrbsEdit", QStringLiteral("&Edit orb file"),
        [this] { Q_EMIT orbsEditRequested(QString::fromStdString(orbsFile_.string())); });
    add(bar, "mnuPrintChartwheel", QStringLiteral("&Print"), &Wheels::mnuPrintChartwheel_Click);
    QMenu& type = *bar.addMenu(QStringLiteral("&Type"));
    mnuCTAmerican_ = add(type, "mnuCTAmerican", QStringLiteral("&American"), &Wheels::mnuCTAmerican_Click);
    mnuCTEuropean_ = add(type, "mnuCTEuropean", QStringLiteral("&European"), &Wheels::mnuCTEuropean_Click);
    mnuCTRing_ = add(type, "mnuCTRing", QStringLiteral("&Zodiac ring"), &Wheels::mnuCTRing_Click);
    for (QAction* item : {mnuCTAmerican_, mnuCTEuropean_, mnuCTRing_}) item->setCheckable(true);
    CheckType();
    add(bar, "mnuHelp", QStringLiteral("&Help"), &Wheels::helpRequested);
    add(bar, "mnuExport", QStringLiteral("&Export"), &Wheels::mnuExport_Click);
}

QSize Wheels::minimumSizeHint() const {
    constexpr double kUsualDpi = 96.0;
    constexpr int kSmallestWheel = 320;  // pixels of that resolution
    const int side = qRound(kSmallestWheel * logicalDpiX() / kUsualDpi);
    return QSize(side, side + menuBar()->sizeHint().height()).boundedTo(RoomBesideMenu());
}

std::vector<DrawnPoint> Wheels::PaintWheel(QPainter& painter, const QRect& area) {
    if (!hasFont_) {
        painter.fillRect(area, PaletteColour(ColourOf(context_.options, kBackgroundOption)));
        return {};
    }
    PainterSurface surface(painter, area, outlines_);
    return DrawWheel(surface, RequestFor(area.size()));
}

QString Wheels::TipOf(int point) const {
    return QString::fromStdString(PointTip(RequestFor(canvas_->size()), point));
}

QString Wheels::WordsOf(int point) const {
    return QString::fromStdString(PointInWords(RequestFor(canvas_->size()), point));
}

// The picture in words follows the type and the orbs.
void Wheels::Describe() {
    canvas_->setAccessibleDescription(QString::fromStdString(WheelInWords(RequestFor(canvas_->size()))));
}

// A file that cannot be read is told where the user asks for its aspects, not here.
void Wheels::ReadOrbs() {
    OrbTable orbs{};
    orbs_ = ReadOrbsFile(orbsFile_, orbs) ? orbs : NoOrbs();
    Describe();
    canvas_->update();
}

// The orbs file may have been edited in another window.
void Wheels::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) ReadOrbs();
}

WheelRequest Wheels::RequestFor(QSizeF size, WheelUse use) const {
    const QColor ground = canvas_->palette().color(QPalette::Base);
    return {.chart = chart_,
            .data = context_.data,
            .options = context_.options,
            .type = ChartTypeOf(typeChart_),
            .width = size.width(),
            .height = size.height(),
            .use = use,
            .orbs = orbs_,
            .desktopGround = Rgb(static_cast<int>(ground.rgb() & 0xFFFFFFU))};
}

void Wheels::mnuCTAmerican_Click() {
    SetTypeChart(ChartType::American);
}

void Wheels::mnuCTEuropean_Click() {
    SetTypeChart(ChartType::European);
}

void Wheels::mnuCTRing_Click() {
    SetTypeChart(ChartType::ZodiacRing);
}

void Wheels::CheckType() {
    const ChartType type = ChartTypeOf(typeChart_);
    mnuCTAmerican_->setChecked(type == ChartType::American);
    mnuCTEuropean_->setChecked(type == ChartType::European);
    mnuCTRing_->setChecked(type == ChartType::ZodiacRing);
}

void Wheels::SetTypeChart(ChartType type) {
    const Hourglass hourglass;
    typeChart_ = static_cast<int>(type);
    CheckType();
    Q_EMIT typeChartChanged(typeChart_);
    ReadOrbs();
    canvas_->repaint();
}

void Wheels::mnuAspects_Click() {
    if (aspects_ == nullptr) {
        aspects_ = new CWAspect(this);
        connect(aspects_, &CWAspect::mainWindowRequested, this, &Wheels::mainWindowRequested);
        Q_EMIT aspectsOpened();
    }
    aspects_->List(chart_, orbsFile_, context_.printing.messages);
    BringForward(*aspects_);
}

void Wheels::mnuOrbsChange_Click() {
    if (!IsReadableFile(orbsFile_)) {
        context_.printing.messages.Tell("Error!", orbsFile_.string() + " cannot be found.",
                                        MessageIcon::Stop);
    }
    const std::string chosen = context_.printing.dialogs.ChooseFile("*.ORB", orbsFile_.string());
    if (chosen.empty()) return;
    orbsFile_ = FindPath(PathFromText(chosen));
    ReadOrbs();
    mnuAspects_Click();
}

void Wheels::mnuPrintChartwheel_Click() {
    const Answer answer = context_.printing.messages.AskYesNoCancel(
        "Full page or half page chartwheel",
        "Click 'YES' for full page chartwheel. Click 'NO' for half page chartwheel.");
    if (answer == Answer::Yes) PrintFullPage();
    if (answer == Answer::No) PrintHalfPage();
    if (isMaximized()) showNormal();
    canvas_->update();
}

void Wheels::PrintFullPage() {
    PageRequest page{.chart = chart_,
                     .data = context_.data,
                     .options = context_.options,
                     .typeChart = typeChart_,
                     .personalLines = ReadPersonalLines(context_.personalBlock, context_.options)};
    if (const Result<void> read = ReadOrbsFile(orbsFile_, page.orbs); !read) {
        context_.printing.messages.Tell("Error!", read.message(), MessageIcon::Stop);
        page.orbs = NoOrbs();
    }
    PrintDocument(context_.printing, DocumentName(), [&](QPagedPaintDevice& device, QPainter& painter) {
        page.width = device.width();
        page.height = device.height();
        PainterSurface surface(painter, QRectF(0.0, 0.0, page.width, page.height), outlines_);
        DrawPage(surface, page);
    });
}

void Wheels::PrintHalfPage() {
    // The picture has the shape of the maximised window.
    const QSizeF window = screen()->availableSize();
    PrintDocument(context_.printing, DocumentName(), [&](QPagedPaintDevice& device, QPainter& painter) {
        const QSizeF half(device.width(), device.height() / 2.0);
        const QSizeF size = window.scaled(half, Qt::KeepAspectRatio);
        const QRectF area(QPointF((half.width() - size.width()) / 2, 0.0), size);
        PainterSurface surface(painter, area, outlines_);
        DrawWheel(surface, RequestFor(size, WheelUse::HalfPage));
    });
}

void Wheels::mnuExport_Click() {
    const std::optional<Path> file = ChoosePicture();
    if (!file) return;
    const Hourglass hourglass;
    const Result<void> written = ExportWheel(RequestFor(canvas_->size()), *file);
    if (!written) context_.printing.messages.Tell("Error!", written.message(), MessageIcon::Stop);
}

// Asks until the name is that of a picture that can be drawn.
std::optional<Path> Wheels::ChoosePicture() {
    SaveRequest request = {context_.printing.directory(),
                           DocumentName() + ".svg",
                           "Pictures",
                           "*.svg *.pdf *.png",
                           "svg",
                           {kOtherPictures.begin(), kOtherPictures.end()}};
    for (;;) {
        const std::optional<Path> file =
            ChooseOutput(context_.printing.dialogs, context_.printing.messages, request);
        if (!file || PictureFormatOf(*file)) return file;
        context_.printing.messages.Tell("Error!", NoPictureName(*file), MessageIcon::Stop);
        request.directory = file->parent_path();
        request.proposedName = file->filename().string();
    }
}

std::string Wheels::DocumentName() const {
    return FileNameText(chart_.Name.empty() ? "Chartwheel" : chart_.Name);
}

void Wheels::hideEvent(QHideEvent* event) {
    QMainWindow::hideEvent(event);
    if (aspects_ != nullptr && !event->spontaneous()) aspects_->close();
}

void Wheels::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        Q_EMIT mainWindowRequested();
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

void Wheels::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton) Q_EMIT mainWindowRequested();
}

}  // namespace tolvanis
