#include "platform/qt/symbol_font.h"

#include <QFontDatabase>

namespace tolvanis {

bool LoadSymbolFont(const Path& directory) {
    static bool loaded = false;
    if (loaded) return true;
    bool all = true;
    for (const char* name : {"HORARY.ttf", "HORARY-Bold.ttf"}) {
        // From memory: the file may be replaced or removed while the program runs.
        const Result<std::string> bytes = ReadBytes(FindFile(directory, name));
        all =
            bytes && QFontDatabase::addApplicationFontFromData(QByteArray::fromStdString(*bytes)) >= 0 && all;
    }
    loaded = all;
    return all;
}

QFont SymbolFont(double pixels, bool bold) {
    QFont font(QString::fromLatin1(kSymbolFontFamily));
    font.setPixelSize(qMax(1, qRound(pixels)));
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

void TellSymbolFontMissing(Messages& messages) {
    messages.Tell("Information!",
                  "You must have the HORARY font installed in Windows. Please add this font through CONTROL "
                  "PANEL - FONTS.",
                  MessageIcon::Information);
}

}  // namespace tolvanis
