#include "wheel/wheel_placement.h"

#include <algorithm>
#include <cmath>

#include "chart/angles.h"

namespace tolvanis {
namespace {

constexpr int kSlots = 12 * kSlotsPerHouse;
constexpr double kSlotStep = 4.0;  // degrees between slots
constexpr double kLeastGap = 4.0;  // degrees between European glyphs
constexpr double kOnCusp = 1.0 / 36000.0;

// Degrees from the cusp of the point's house; a point just in front of the cusp is on it.
double OffsetInHouse(const WheelSnapshot& chart, int point) {
    const double offset =
        Norm360(chart.PointLongitude[point] - chart.HouseCusps.OfHouse(chart.PointHouse[point]));
    return offset >= 360.0 - kOnCusp ? 0.0 : offset;
}

// The slots of all houses in a row. Behind the last house lie the first house's again.
class SlotRow {
  public:
    bool IsFree(int house, int slot) const { return !taken_[Index(house, slot)]; }
    void Take(int house, int slot) { taken_[Index(house, slot)] = true; }

  private:
    static std::size_t Index(int house, int slot) {
        return static_cast<std::size_t>(((house - 1) * kSlotsPerHouse + slot) % kSlots);
    }
    std::array<bool, kSlots> taken_{};
};

// The slot of its house that a point lies in.
int OwnSlot(const WheelSnapshot& chart, int point) {
    const int house = chart.PointHouse[point];
    const double width = Norm360(chart.HouseCusps.OfHouse(house % 12 + 1) - chart.HouseCusps.OfHouse(house));
    if (!(width > 0.0)) return 0;
    const double slot = kSlotsPerHouse * OffsetInHouse(chart, point) / width;
    return static_cast<int>(std::min(slot, kSlotsPerHouse - 1.0));
}

// Where a point that lies in `slot` comes to stand; `behind` of the house's `count` points follow it.
int ChooseSlot(const SlotRow& row, int house, int slot, int count, int behind) {
    if (slot >= kSlotsPerHouse - behind) {
        const bool fitsBehind = slot - behind >= 0 && row.IsFree(house, slot);
        slot = fitsBehind ? kSlotsPerHouse - 1 - behind : kSlotsPerHouse - count;
    }
    slot = std::max(slot, 0);
    while (!row.IsFree(house, slot)) ++slot;
    return slot;
}

// Glyph angles on an unrolled wheel, ascending from the first house's cusp at 180; the last may not come
// closer to the first, one turn on, than the least gap.
class EuropeanAngles {
  public:
    void Add(double angle) {
        angles_.push_back(angles_.empty() ? angle : std::max(angle, angles_.back() + kLeastGap));
    }

    // Opens the gap between the last and the first by the chain of moves that is shorter in all.
    const std::vector<double>& Close() {
        if (angles_.size() < 2) return angles_;
        const double lack = kLeastGap - (angles_.front() + 360.0 - angles_.back());
        if (lack <= 0.0) return angles_;
        std::vector<double> back = angles_;
        std::vector<double> forward = angles_;
        back.back() -= lack;
        for (std::size_t i = back.size() - 1; i > 0; --i) {
            back[i - 1] = std::min(back[i - 1], back[i] - kLeastGap);
        }
        forward.front() += lack;
        for (std::size_t i = 1; i < forward.size(); ++i) {
            forward[i] = std::max(forward[i], forward[i - 1] + kLeastGap);
        }
        angles_ = Moved(forward) < Moved(back) ? forward : back;
        return angles_;
    }

  private:
    double Moved(const std::vector<double>& other) const {
        double sum = 0.0;
        for (std::size_t i = 0; i < angles_.size(); ++i) sum += std::abs(other[i] - angles_[i]);
        return sum;
    }

    std::vector<double> angles_;
};

void PlaceInSlots(const WheelSnapshot& chart, std::vector<PlacedGlyph>& glyphs) {
    const std::array<int, 12> counts = PointsPerHouse(chart);
    std::array<int, 12> behind = counts;
    SlotRow row;
    for (PlacedGlyph& glyph : glyphs) {
        const auto house = static_cast<std::size_t>(glyph.house - 1);
        const int count = counts[house];
        glyph.slot = ChooseSlot(row, glyph.house, OwnSlot(chart, glyph.point), count, --behind[house]);
        row.Take(glyph.house, glyph.slot);
        glyph.angle = Norm360(SectorStart(glyph.house) + kSlotStep * glyph.slot);
        glyph.drawn = count <= kSlotsPerHouse || (glyph.point != kSouthNode && glyph.point != kPartOfFortune);
    }
}

void MoveToTrueAngles(const WheelSnapshot& chart, std::vector<PlacedGlyph>& glyphs) {
    EuropeanAngles angles;
    for (PlacedGlyph& glyph : glyphs) {
        const double cusp = Norm360(chart.HouseCusps.OfHouse(glyph.house) - chart.HouseCusps.OfHouse(1));
        const double angle = 180.0 + cusp + OffsetInHouse(chart, glyph.point);
        glyph.angle = Norm360(angle);
        if (glyph.drawn) angles.Add(angle);
    }
    auto next = angles.Close().begin();
    for (PlacedGlyph& glyph : glyphs) {
        if (glyph.drawn) glyph.angle = Norm360(*next++);
    }
}

// Glyphs that stand side by side, around the middle of their true angles.
struct Cluster {
    double sum = 0.0;  // of the true angles, each less its place in the cluster
    std::size_t count = 0;
    double width = 0.0;  // from the first to the last

    double First() const { return sum / static_cast<double>(count); }
};

// Room for a label, degrees: numbers are wider than high, so they need more at the top and at the bottom.
double RingGap(double angle) {
    constexpr double kLeast = 4.95;
    constexpr double kMoreOnSteepRays = 1.0;
    const double steep = SinDeg(angle);
    return kLeast + kMoreOnSteepRays * steep * steep;
}

// Moves ascending angles apart, each as little as can be (least squares, by merging neighbours that meet).
std::vector<double> SpreadApart(const std::vector<double>& angles) {
    std::vector<Cluster> clusters;
    for (std::size_t i = 0; i < angles.size(); ++i) {
        Cluster added{angles[i], 1, 0.0};
        while (!clusters.empty()) {
            const Cluster& before = clusters.back();
            const double gap = RingGap(added.First());
            if (before.First() + before.width + gap <= added.First()) break;
            const double shift = before.width + gap;
            added = {before.sum + added.sum - shift * static_cast<double>(added.count),
                     before.count + added.count, shift + added.width};
            clusters.pop_back();
        }
        clusters.push_back(added);
    }
    std::vector<double> spread;
    for (const Cluster& cluster : clusters) {
        const double step = cluster.count > 1 ? cluster.width / static_cast<double>(cluster.count - 1) : 0.0;
        for (std::size_t i = 0; i < cluster.count; ++i) {
            spread.push_back(cluster.First() + step * static_cast<double>(i));
        }
    }
    return spread;
}

// The wheel is cut open in its widest gap.
void SpreadAroundTrueAngles(const WheelSnapshot& chart, std::vector<PlacedGlyph>& glyphs) {
    for (PlacedGlyph& glyph : glyphs) {
        glyph.angle = WheelAngle(chart.PointLongitude[glyph.point], chart.HouseCusps);
        glyph.drawn = true;
    }
    std::ranges::stable_sort(glyphs, {}, &PlacedGlyph::angle);
    std::size_t cut = 0;
    double widest = -1.0;
    for (std::size_t i = 0; i < glyphs.size(); ++i) {
        const double before = glyphs[(i + glyphs.size() - 1) % glyphs.size()].angle;
        const double gap = i == 0 ? glyphs[i].angle + 360.0 - before : glyphs[i].angle - before;
        if (gap > widest) {
            widest = gap;
            cut = i;
        }
    }
    std::rotate(glyphs.begin(), glyphs.begin() + static_cast<std::ptrdiff_t>(cut), glyphs.end());
    std::vector<double> angles;
    for (const PlacedGlyph& glyph : glyphs) {
        angles.push_back(angles.empty() || glyph.angle >= angles.front() ? glyph.angle : glyph.angle + 360.0);
    }
    angles = SpreadApart(angles);
    for (std::size_t i = 0; i < glyphs.size(); ++i) glyphs[i].angle = Norm360(angles[i]);
}

}  // namespace

double WheelAngle(double longitude, const HouseCusps& cusps) {
    return Norm360(longitude - cusps.OfHouse(1) + 180.0);
}

std::array<int, 12> PointsPerHouse(const WheelSnapshot& chart, int lastPoint) {
    std::array<int, 12> counts{};
    for (int point = 1; point <= lastPoint; ++point) {
        ++counts[static_cast<std::size_t>(chart.PointHouse[point] - 1)];
    }
    return counts;
}

std::vector<int> PlacementOrder(const WheelSnapshot& chart, int lastPoint) {
    std::vector<int> order;
    for (int point = 1; point <= lastPoint; ++point) order.push_back(point);
    std::ranges::stable_sort(order, [&](int a, int b) {
        if (chart.PointHouse[a] != chart.PointHouse[b]) return chart.PointHouse[a] < chart.PointHouse[b];
        return OffsetInHouse(chart, a) < OffsetInHouse(chart, b);
    });
    return order;
}

std::vector<PlacedGlyph> PlaceGlyphs(const WheelSnapshot& chart, ChartType type) {
    std::vector<PlacedGlyph> glyphs;
    for (const int point : PlacementOrder(chart)) {
        PlacedGlyph& glyph = glyphs.emplace_back();
        glyph.point = point;
        glyph.house = chart.PointHouse[point];
    }
    PlaceInSlots(chart, glyphs);
    if (type == ChartType::European) MoveToTrueAngles(chart, glyphs);
    if (type == ChartType::ZodiacRing) SpreadAroundTrueAngles(chart, glyphs);
    return glyphs;
}

}  // namespace tolvanis
