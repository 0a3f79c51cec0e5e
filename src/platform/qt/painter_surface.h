#pragma once
// A drawing surface on a QPainter: widget, image, printer, PDF or SVG. Texts are filled outlines, so that
// pictures look the same where the font is not installed.

#include <QPainter>
#include <QPainterPath>
#include <QRectF>
#include <unordered_map>

#include "platform/drawing_surface.h"

namespace tolvanis {

// Outlines and cells of texts in the symbol font, made once for each text and weight.
class TextOutlines {
  public:
    struct Outline {
        QPainterPath path;  // at kUnit pixels, the cell's upper left corner at (0, 0), y downwards
        TextBox cell;       // at kUnit pixels
    };
    static constexpr double kUnit = 128.0;

    const Outline& Of(std::string_view text, bool bold);

  private:
    std::unordered_map<std::string, Outline> outlines_;
};

class PainterSurface : public DrawingSurface {
  public:
    // Draws into the rectangle `area` of the painter's coordinates. Nothing is drawn thinner than
    // `thinnestLine` of them. Outlines are kept in `outlines` for the next drawing.
    PainterSurface(QPainter& painter, QRectF area, TextOutlines& outlines, double thinnestLine = 1.0);

    void SetCoordinates(const Extent& extent) override;
    void Clear(int colour) override;
    void Line(Point from, Point to, Stroke stroke) override;
    void Lines(std::span<const LineSpan> lines, Stroke stroke) override;
    void Circle(Point centre, double radius, Stroke stroke) override;
    void Disc(Point centre, double radius, int colour) override;
    void Sector(const RingSector& sector, int colour) override;
    TextBox Measure(std::string_view text, TextFont font) const override;
    void Text(Point corner, std::string_view text, TextFont font, int colour) override;

  private:
    QPointF ToDevice(Point point) const;
    QPen PenOf(Stroke stroke) const;

    QPainter& painter_;
    QRectF area_;
    TextOutlines& outlines_;
    double thinnestLine_;
    Extent extent_;
    double scale_ = 1.0;  // painter units a wheel unit
};

}  // namespace tolvanis
