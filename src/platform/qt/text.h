#pragma once
// Texts between the engine, which holds UTF-8, and Qt.

#include <QString>
#include <string_view>

namespace tolvanis {

inline QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// A tool tip that shows the text as it is, wrapped where it is long. (A tip without a tag would show the
// escapes of an escaped text, and take "<b>" in another one for a tag.)
inline QString TipText(const QString& text) {
    constexpr int kWidestTip = 80;
    if (text.isEmpty()) return {};
    const auto* wrapping = text.size() > kWidestTip ? "pre-wrap" : "pre";
    return QStringLiteral("<div style=\"white-space:%1\">%2</div>")
        .arg(QLatin1String(wrapping), text.toHtmlEscaped());
}

}  // namespace tolvanis
