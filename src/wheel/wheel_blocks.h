#pragma once
// The blocks beside the wheel: grid of the aspects, table of the points, elements and qualities.

#include "wheel/wheel_layout.h"

namespace tolvanis {

// What a block shows, and in which colours.
struct BlockSource {
    const WheelSnapshot& chart;
    const Options& options;
    const OrbTable& orbs;
    int ground = kWhite;
    bool turnsColours = false;  // colours chosen for white paper are turned for a dark ground

    // The colour, legible on the ground.
    int Colour(int colour, double contrast) const;
};

// A triangle: the points run down the diagonal, and each aspect stands where the row of one point meets the
// column of the other.
class AspectGridBlock {
  public:
    struct Look {
        Point corner;  // upper left
        double cellWidth, cellHeight;
        double glyphSize, aspectSize;  // of the points' letters and of the aspects'
        // Where an aspect's letter begins, from the upper left corner of its cell to the right and down;
        // without it the letter stands in the middle.
        std::optional<Point> aspectCorner{};
    };
    AspectGridBlock(const BlockSource& source, const Look& look) : source_(source), look_(look) {}

    // The ground that each row covers.
    std::vector<Box> Rows() const;
    void Draw(DrawingSurface& surface) const;

  private:
    double RowTop(int row) const { return look_.corner.y - (row - 1) * look_.cellHeight; }

    BlockSource source_;
    Look look_;
};

// Colour of an aspect's glyph in the grid, by its family.
int GridColour(const Options& options, AspectCode code);

// A block of texts and fine rules, laid out to be placed; (0, 0) is its upper left corner.
struct TextBlock {
    std::vector<WheelText> texts;
    std::vector<LineSpan> rules;
    double width = 0.0;
    double height = 0.0;

    Box At(Point corner) const { return {corner.x, corner.y, corner.x + width, corner.y - height}; }
    void Draw(DrawingSurface& surface, Point corner, int ruleColour) const;
};

// How many points stand in each element and quality, from Sun to Pluto with the Moon, Ascendant and
// Midheaven: a table of the elements' rows and the qualities' columns that shows the points themselves.
TextBlock ElementTable(const BlockSource& source, const TextMeasure& measure, double size);

// Each point in a line: glyph, position, retrograde mark, declination, house.
TextBlock PointTable(const BlockSource& source, const TextMeasure& measure, double size);

}  // namespace tolvanis
