#include "platform/qt/listing_font.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QStringList>
#include <algorithm>

namespace tolvanis {
namespace {

// Fonts in which every character is 0.6 of the size wide, the best known first.
const QStringList& PreferredFamilies() {
    static const QStringList families = {QStringLiteral("Courier New"), QStringLiteral("Liberation Mono"),
                                         QStringLiteral("Cousine"), QStringLiteral("Nimbus Mono PS"),
                                         QStringLiteral("FreeMono")};
    return families;
}

QString FixedPitchFamily() {
    for (const QString& family : QFontDatabase::families()) {
        if (QFontDatabase::isFixedPitch(family) && IsReallyFixedPitch(QFont(family))) return family;
    }
    return {};
}

// The family list that gives a fixed pitch on this system.
QStringList Families() {
    QFont font;
    font.setStyleHint(QFont::TypeWriter);
    font.setFamilies(PreferredFamilies());
    if (IsReallyFixedPitch(font)) return PreferredFamilies();
    const QFont system = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    return {IsReallyFixedPitch(system) ? system.family() : FixedPitchFamily()};
}

}  // namespace

bool IsReallyFixedPitch(const QFont& font) {
    const QFontMetricsF metrics(font);
    const double width = metrics.horizontalAdvance(QLatin1Char('M'));
    const auto same = [&](char c) { return metrics.horizontalAdvance(QLatin1Char(c)) == width; };
    return same('i') && same('.') && same(' ') && same('W');
}

QFont ListingFont(double pointSize) {
    static const QStringList families = Families();
    QFont font;
    font.setStyleHint(QFont::TypeWriter);
    font.setFamilies(families);
    font.setPointSizeF(std::clamp(pointSize, 4.0, 72.0));
    font.setKerning(false);
    return font;
}

}  // namespace tolvanis
