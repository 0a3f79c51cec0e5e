#include "platform/qt/painter_surface.h"

#include <QFontMetricsF>
#include <algorithm>

#include "platform/qt/palette.h"
#include "platform/qt/symbol_font.h"

namespace tolvanis {
namespace {

// How far the outline reaches on the slants.
void MeasureSlants(const QPainterPath& path, TextBox& cell) {
    bool isFirst = true;
    for (const QPolygonF& polygon : path.toSubpathPolygons()) {
        for (const QPointF& point : polygon) {
            const double sum = point.x() + point.y();
            const double difference = point.x() - point.y();
            cell.leastSum = isFirst ? sum : std::min(cell.leastSum, sum);
            cell.mostSum = isFirst ? sum : std::max(cell.mostSum, sum);
            cell.leastDifference = isFirst ? difference : std::min(cell.leastDifference, difference);
            cell.mostDifference = isFirst ? difference : std::max(cell.mostDifference, difference);
            isFirst = false;
        }
    }
}

}  // namespace

const TextOutlines::Outline& TextOutlines::Of(std::string_view text, bool bold) {
    std::string key(text);
    key += bold ? '\1' : '\0';
    const auto [entry, isNew] = outlines_.try_emplace(std::move(key));
    Outline& outline = entry->second;
    if (!isNew) return outline;
    const QFont font = SymbolFont(kUnit, bold);
    const QFontMetricsF metrics(font);
    const QString string = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    outline.path.setFillRule(Qt::WindingFill);
    outline.path.addText(0.0, metrics.ascent(), font, string);
    const QRectF ink = outline.path.boundingRect();
    outline.cell = {metrics.horizontalAdvance(string),
                    metrics.ascent() + metrics.descent(),
                    ink.left(),
                    ink.top(),
                    ink.right(),
                    ink.bottom()};
    MeasureSlants(outline.path, outline.cell);
    return outline;
}

PainterSurface::PainterSurface(QPainter& painter, QRectF area, TextOutlines& outlines, double thinnestLine)
    : painter_(painter), area_(area), outlines_(outlines), thinnestLine_(thinnestLine) {
    painter_.setRenderHint(QPainter::Antialiasing);
}

void PainterSurface::SetCoordinates(const Extent& extent) {
    extent_ = extent;
    scale_ = area_.width() / (extent.right - extent.left);
}

void PainterSurface::Clear(int colour) {
    painter_.fillRect(area_, PaletteColour(colour));
}

void PainterSurface::Line(Point from, Point to, Stroke stroke) {
    painter_.setPen(PenOf(stroke));
    painter_.drawLine(ToDevice(from), ToDevice(to));
}

void PainterSurface::Lines(std::span<const LineSpan> lines, Stroke stroke) {
    QPainterPath path;
    for (const LineSpan& line : lines) {
        path.moveTo(ToDevice(line.from));
        path.lineTo(ToDevice(line.to));
    }
    painter_.strokePath(path, PenOf(stroke));
}

void PainterSurface::Circle(Point centre, double radius, Stroke stroke) {
    painter_.setPen(PenOf(stroke));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawEllipse(ToDevice(centre), radius * scale_, radius * scale_);
}

void PainterSurface::Disc(Point centre, double radius, int colour) {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(PaletteColour(colour));
    painter_.drawEllipse(ToDevice(centre), radius * scale_, radius * scale_);
}

void PainterSurface::Sector(const RingSector& sector, int colour) {
    const auto around = [&](double radius) {
        const QPointF reach(radius * scale_, radius * scale_);
        return QRectF(ToDevice({}) - reach, ToDevice({}) + reach);
    };
    const double sweep = sector.to - sector.from;
    QPainterPath path;
    path.arcMoveTo(around(sector.outerRadius), sector.from);
    path.arcTo(around(sector.outerRadius), sector.from, sweep);
    path.arcTo(around(sector.innerRadius), sector.to, -sweep);
    path.closeSubpath();
    painter_.fillPath(path, PaletteColour(colour));
}

TextBox PainterSurface::Measure(std::string_view text, TextFont font) const {
    const double scale = font.size / TextOutlines::kUnit;
    TextBox box = outlines_.Of(text, font.bold).cell;
    for (double* value : {&box.width, &box.height, &box.inkLeft, &box.inkTop, &box.inkRight, &box.inkBottom,
                          &box.leastSum, &box.mostSum, &box.leastDifference, &box.mostDifference}) {
        *value *= scale;
    }
    return box;
}

void PainterSurface::Text(Point corner, std::string_view text, TextFont font, int colour) {
    const QPointF place = ToDevice(corner);
    const double scale = font.size * scale_ / TextOutlines::kUnit;
    const QTransform kept = painter_.transform();
    painter_.translate(place);
    painter_.scale(scale, scale);
    painter_.fillPath(outlines_.Of(text, font.bold).path, PaletteColour(colour));
    painter_.setTransform(kept);
}

QPointF PainterSurface::ToDevice(Point point) const {
    return {area_.left() + (point.x - extent_.left) * scale_, area_.top() + (extent_.top - point.y) * scale_};
}

QPen PainterSurface::PenOf(Stroke stroke) const {
    return QPen(PaletteColour(stroke.colour), qMax(stroke.width * scale_, thinnestLine_), Qt::SolidLine,
                Qt::FlatCap);
}

}  // namespace tolvanis
