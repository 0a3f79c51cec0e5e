#include "platform/qt/printing.h"

#include <QApplication>
#include <QBuffer>
#include <QFontMetricsF>
#include <QLocale>
#include <QPagedPaintDevice>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>

#include "platform/file_replacing.h"
#include "platform/qt/hourglass.h"
#include "platform/qt/listing_font.h"
#include "platform/qt/text.h"

namespace tolvanis {
namespace {

constexpr double kMarginPoints = 36.0;
constexpr double kLinesPerInch = 6.0;
constexpr int kColumns = 80;        // up to which lines are narrowed alike, so that columns stay in line
constexpr double kNarrowest = 0.5;  // of a letter's width
constexpr double kClosest = 0.85;   // of the distance of lines; closer ones need smaller letters

QPageLayout Layout() {
    const bool letter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return {QPageSize(letter ? QPageSize::Letter : QPageSize::A4), QPageLayout::Portrait,
            QMarginsF(kMarginPoints, kMarginPoints, kMarginPoints, kMarginPoints), QPageLayout::Point};
}

bool TellFault(const PrintServices& services, const std::string& text) {
    services.messages.Tell("Error!", text, MessageIcon::Stop);
    return false;
}

bool PrintToPdf(const PrintServices& services, const std::string& documentName, const PaintDocument& paint) {
    const SaveRequest request = {services.directory(), documentName + ".pdf", "PDF Files", "*.pdf", "pdf"};
    const std::optional<Path> path = ChooseOutput(services.dialogs, services.messages, request);
    if (!path) return false;
    const Hourglass hourglass;
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setTitle(ToQt(documentName));
        writer.setCreator(QStringLiteral("TOLVANIS"));
        writer.setResolution(600);
        writer.setPageLayout(Layout());
        QPainter painter(&writer);
        paint(writer, painter);
    }
    const QByteArray& bytes = buffer.data();
    const std::string_view content(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    const Result<void> written = ReplaceFile(*path, content);
    return written || TellFault(services, written.message());
}

bool PrintToPrinter(const PrintServices& services, const std::string& documentName,
                    const PaintDocument& paint) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(ToQt(FittingFileName(documentName)));
    printer.setCreator(QStringLiteral("TOLVANIS"));
    printer.setPageMargins(QMarginsF(kMarginPoints, kMarginPoints, kMarginPoints, kMarginPoints),
                           QPageLayout::Point);
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    dialog.setOptions(QAbstractPrintDialog::PrintToFile);
    if (dialog.exec() != QDialog::Accepted) return false;
    const Hourglass hourglass;
    QPainter painter;
    if (!painter.begin(&printer)) return TellFault(services, "The printer cannot be used.");
    paint(printer, painter);
    if (!painter.end() || printer.printerState() == QPrinter::Error) {
        return TellFault(services, "The printer reported an error. The document may be incomplete.");
    }
    return true;
}

// Draws text pages on the sheets of a device.
class TextPainter {
  public:
    TextPainter(QPagedPaintDevice& device, QPainter& painter, const PrintText& text)
        : device_(device), painter_(painter), text_(text) {
        lineHeight_ = device.logicalDpiY() / kLinesPerInch;
        const QRect sheet = device.pageLayout().paintRectPixels(device.logicalDpiX());
        MeasureFont(sheet, text.pointSize);
        linesPerSheet_ = std::max(1, static_cast<int>(sheet.height() / lineHeight_));
        if (text.wholePages && LongestPage() > linesPerSheet_) FitPages(sheet);
        usualNarrowing_ = NarrowingFor(LongestUsualLine());
    }

    void Paint() {
        bool first = true;
        for (const std::vector<std::string>& page : text_.pages) {
            if (!first) device_.newPage();
            first = false;
            PaintPage(page);
        }
    }

  private:
    void MeasureFont(const QRect& sheet, double pointSize) {
        sheetWidth_ = sheet.width();
        painter_.setFont(ListingFont(pointSize));
        const QFontMetricsF metrics(painter_.font(), &device_);
        letterWidth_ = metrics.horizontalAdvance(QLatin1Char('M'));
        ascent_ = metrics.ascent();
        longestLine_ = std::max(1, static_cast<int>(sheet.width() / (letterWidth_ * kNarrowest)));
    }

    // Sets the lines so close that the longest page stands on one sheet.
    void FitPages(const QRect& sheet) {
        linesPerSheet_ = LongestPage();
        const double closer = sheet.height() / (lineHeight_ * linesPerSheet_);
        lineHeight_ *= closer;
        if (closer < kClosest) MeasureFont(sheet, text_.pointSize * closer / kClosest);
        linesPerSheet_ = LongestPage();  // smaller letters may have made fewer lines of the long ones
    }

    // Of the letters of a line.
    double NarrowingFor(qsizetype length) const {
        const auto shown = static_cast<double>(std::clamp<qsizetype>(length, 1, longestLine_));
        return std::min(1.0, sheetWidth_ / (letterWidth_ * shown));
    }

    // The parts of a line that stand below each other, broken at a blank where there is one near the end.
    QStringList PartsOf(const std::string& line) const {
        QStringList parts;
        QString rest = ToQt(line);
        while (rest.size() > longestLine_) {
            const qsizetype blank = rest.lastIndexOf(QLatin1Char(' '), longestLine_ - 1);
            qsizetype length = blank >= longestLine_ / 2 ? blank + 1 : longestLine_;
            if (length > 1 && rest[length].isLowSurrogate()) --length;
            parts += rest.left(length);
            rest.remove(0, length);
        }
        return parts += rest;
    }

    // In lines as they are printed.
    int LongestPage() const {
        qsizetype longest = 1;
        for (const std::vector<std::string>& page : text_.pages) {
            qsizetype lines = 0;
            for (const std::string& line : page) lines += PartsOf(line).size();
            longest = std::max(longest, lines);
        }
        return static_cast<int>(longest);
    }

    qsizetype LongestUsualLine() const {
        qsizetype longest = 1;
        for (const std::vector<std::string>& page : text_.pages) {
            for (const std::string& line : page) {
                const qsizetype length = ToQt(line).size();
                if (length <= kColumns) longest = std::max(longest, length);
            }
        }
        return longest;
    }

    void PaintPage(const std::vector<std::string>& page) {
        int row = 0;
        for (const std::string& line : page) {
            const double narrowing = std::min(usualNarrowing_, NarrowingFor(ToQt(line).size()));
            for (const QString& part : PartsOf(line)) {
                if (row == linesPerSheet_) {
                    device_.newPage();
                    row = 0;
                }
                PaintLine(part, row++, narrowing);
            }
        }
    }

    void PaintLine(const QString& line, int row, double narrowing) {
        painter_.save();
        painter_.scale(narrowing, 1.0);
        painter_.drawText(QPointF(0.0, row * lineHeight_ + ascent_), line);
        painter_.restore();
    }

    QPagedPaintDevice& device_;
    QPainter& painter_;
    const PrintText& text_;
    double sheetWidth_ = 1.0, letterWidth_ = 1.0, lineHeight_ = 1.0, ascent_ = 0.0;
    int linesPerSheet_ = 1;
    int longestLine_ = 1;
    double usualNarrowing_ = 1.0;  // of lines of up to kColumns characters
};

}  // namespace

bool PrintDocument(const PrintServices& services, const std::string& documentName,
                   const PaintDocument& paint) {
    const bool hasPrinter = !QPrinterInfo::availablePrinterNames().isEmpty();
    return hasPrinter ? PrintToPrinter(services, documentName, paint)
                      : PrintToPdf(services, documentName, paint);
}

bool PrintPages(const PrintServices& services, const std::string& documentName, const PrintText& text) {
    return PrintDocument(services, documentName, [&](QPagedPaintDevice& device, QPainter& painter) {
        TextPainter(device, painter, text).Paint();
    });
}

}  // namespace tolvanis
