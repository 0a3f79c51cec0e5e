#pragma once
// Texts between the engine, which holds UTF-8, and Qt.

#include <QString>
#include <string_view>

namespace tolvanis {

inline QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace tolvanis
