#include "wheel/qt/wheel_export.h"

#include <QBuffer>
#include <QImage>
#include <QPageLayout>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <array>
#include <cstring>

#include "platform/file_replacing.h"
#include "platform/qt/painter_surface.h"
#include "wheel/picture_format.h"

namespace tolvanis {
namespace {

void Paint(QPaintDevice& device, const QRectF& area, const WheelRequest& request) {
    QPainter painter(&device);
    TextOutlines outlines;
    PainterSurface surface(painter, area, outlines);
    DrawWheel(surface, request);
}

QSize PixelSize(const WheelRequest& request) {
    return {qMax(1, qRound(request.width)), qMax(1, qRound(request.height))};
}

// A text as XML may hold it: its signs escaped, and without what XML has no way to write, control characters
// and noncharacters.
std::string XmlText(const std::string& utf8) {
    QString text = QString::fromStdString(utf8);
    text.remove(QChar(0xFFFE)).remove(QChar(0xFFFF));
    std::string escaped;
    for (const char c : text.toStdString()) {
        const auto byte = static_cast<unsigned char>(c);
        switch (c) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            case '"':
                escaped += "&quot;";
                break;
            default:
                if (byte >= 0x20 && byte != 0x7F) escaped += c;
        }
    }
    return escaped;
}

bool WriteSvg(const WheelRequest& request, QBuffer& buffer) {
    QSvgGenerator svg;
    svg.setOutputDevice(&buffer);
    svg.setResolution(96);
    svg.setSize(PixelSize(request));
    svg.setViewBox(QRect({0, 0}, PixelSize(request)));
    // The generator writes a title as it stands, so it gets one that needs no escaping.
    constexpr const char* kTitlePlace = "wheel-title";
    svg.setTitle(QString::fromLatin1(kTitlePlace));
    Paint(svg, QRectF({0.0, 0.0}, QSizeF(PixelSize(request))), request);
    QByteArray& bytes = buffer.buffer();
    const qsizetype place = bytes.indexOf(kTitlePlace);
    const std::string title = XmlText(request.chart.TitleLines[0]);
    if (place >= 0)
        bytes.replace(place, qsizetype(std::strlen(kTitlePlace)), QByteArray::fromStdString(title));
    return true;
}

bool WritePdf(const WheelRequest& request, QBuffer& buffer) {
    constexpr double kPointsPerPixel = 0.75;
    QPdfWriter pdf(&buffer);
    pdf.setResolution(1200);
    pdf.setTitle(QString::fromStdString(request.chart.TitleLines[0]));
    pdf.setCreator(QStringLiteral("TOLVANIS"));
    const QPageSize page(QSizeF(PixelSize(request)) * kPointsPerPixel, QPageSize::Point, QString(),
                         QPageSize::ExactMatch);
    pdf.setPageLayout({page, QPageLayout::Portrait, QMarginsF()});
    Paint(pdf, QRectF(0.0, 0.0, pdf.width(), pdf.height()), request);
    return true;
}

bool WritePng(const WheelRequest& request, QBuffer& buffer) {
    QImage image(PixelSize(request), QImage::Format_RGB32);
    if (image.isNull()) return false;
    Paint(image, image.rect(), request);
    return image.save(&buffer, "PNG");
}

using Write = bool (*)(const WheelRequest&, QBuffer&);
constexpr std::array<Write, 3> kWriters = {WriteSvg, WritePdf, WritePng};  // by PictureFormat

}  // namespace

Result<void> ExportWheel(const WheelRequest& request, const Path& file) {
    const std::optional<PictureFormat> format = PictureFormatOf(file);
    if (!format) return Fault{NoPictureName(file)};
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!kWriters[static_cast<std::size_t>(*format)](request, buffer))
        return Fault{"The picture is too large to be drawn."};
    const QByteArray& bytes = buffer.data();
    return ReplaceFile(file, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

}  // namespace tolvanis
