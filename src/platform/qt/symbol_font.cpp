#include "platform/qt/symbol_font.h"

#include <QFontDatabase>

namespace tolvanis {

namespace {
bool loaded = false;  // Qt keeps the fonts of a program, not of a caller
}

bool SymbolFontIsLoaded() {
    return loaded;
}

bool LoadSymbolFont(const DataFiles& files) {
    if (loaded) return true;
    bool all = true;
    for (const char* name : {"HORARY.ttf", "HORARY-Bold.ttf"}) {
        // From memory: the file may be replaced or removed while the program runs.
        const Result<std::string> bytes = ReadBytes(files.Find(name));
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
