#include "text/search_key.h"

#include <algorithm>
#include <array>
#include <utility>

#include "text/columns.h"

namespace tolvanis {
namespace {

// The letter without its accent for the characters of a block, "." where there is none.
struct Block {
    char32_t first;
    std::string_view letters;
};

constexpr Block kBlocks[] = {
    {0xC0,
     "AAAAAA.CEEEEIIIIDNOOOOO.OUUUUY..AAAAAA.CEEEEIIIIDNOOOOO.OUUUUY.Y"
     "AAAAAACCCCCCCCDDDDEEEEEEEEEEGGGGGGGGHHHHIIIIIIIIII..JJKKKLLLLLL."
     ".LLNNNNNNNNNOOOOOO..RRRRRRSSSSSSSSTTTTTTUUUUUUUUUUUUWWYYYZZZZZZS"
     ".B....O..DD....EE.......KK......OO.............UU..............."
     ".............AAIIOOUUUUUUUUUU.AAAA....GGKKOOOO..J...GG..NNAA...."
     "AAAAEEEEIIIIOOOORRRRUUUUSSTT..HH......AAEEOOOOOOOOYY............"},
    {0x1E00,
     "AABBBBBBCCDDDDDDDDDDEEEEEEEEEEFFGGHHHHHHHHHHIIIIKKKKKKLLLLLLLLMM"
     "MMMMNNNNNNNNOOOOOOOOPPPPRRRRRRRRSSSSSSSSSSTTTTTTTTUUUUUUUUUUVVVV"
     "WWWWWWWWWWXXXXYYZZZZZZHTWY......AAAAAAAAAAAAAAAAAAAAAAAAEEEEEEEE"
     "EEEEEEEEIIIIOOOOOOOOOOOOOOOOOOOOOOOOUUUUUUUUUUUUUUYYYYYYYY......"},
};

struct Spelling {
    char32_t letter;
    std::string_view text;
};

constexpr Spelling kSpellings[] = {
    {U'Æ', "AE"}, {U'æ', "AE"}, {U'Œ', "OE"}, {U'œ', "OE"}, {U'ß', "SS"}, {U'ẞ', "SS"},
    {U'Þ', "TH"}, {U'þ', "TH"}, {U'ə', "E"},  {U'Ĳ', "IJ"}, {U'ĳ', "IJ"},
};

constexpr std::pair<std::string_view, std::string_view> kShortenedWords[] = {
    {"SAINT", "ST"}, {"SAINTE", "STE"}, {"MOUNT", "MT"}, {"FORT", "FT"}};

bool IsDropped(char32_t code) {
    const bool combiningMark = code >= 0x300 && code <= 0x36F;
    const bool apostrophe =
        code == '\'' || code == '`' || (code >= 0x2018 && code <= 0x201B) || (code >= 0x2B9 && code <= 0x2BF);
    return combiningMark || apostrophe || code == '.';
}

bool IsSeparator(char32_t code) {
    return code < 0xC0 || code == 0xD7 || code == 0xF7 || (code >= 0x2000 && code <= 0x206F);
}

// The letters and digits of ASCII in upper case, 0 for its other characters.
constexpr std::array<char, 128> MakePlainLetters() {
    std::array<char, 128> letters{};
    for (std::size_t c = '0'; c <= '9'; ++c) letters[c] = static_cast<char>(c);
    for (std::size_t c = 'A'; c <= 'Z'; ++c) letters[c] = letters[c + 32] = static_cast<char>(c);
    return letters;
}
constexpr std::array<char, 128> kPlainLetters = MakePlainLetters();

// Takes one character off the text; a byte that begins none is taken alone.
std::string_view TakeCharacter(std::string_view& text, char32_t& code) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    const std::string_view character = text.substr(0, length);
    code = length == 1 ? lead : lead & (0xFFU >> (length + 1));
    for (const char byte : character.substr(1))
        code = (code << 6) | (static_cast<unsigned char>(byte) & 0x3FU);
    text.remove_prefix(character.size());
    return character;
}

void AppendPlain(std::string& key, char32_t code, std::string_view character) {
    for (const Block& block : kBlocks) {
        if (code < block.first || code - block.first >= block.letters.size()) continue;
        const char letter = block.letters[code - block.first];
        if (letter != '.') {
            key += letter;
            return;
        }
    }
    for (const Spelling& spelling : kSpellings) {
        if (spelling.letter == code) {
            key += spelling.text;
            return;
        }
    }
    key += UpperCase(character);
}

// The key with a word exchanged for another wherever it stands.
std::string WithWord(const std::string& key, std::string_view word, std::string_view other) {
    std::string made = " " + key + " ";
    const std::string from = " " + std::string(word) + " ";
    for (std::size_t at = 0; (at = made.find(from, at)) != std::string::npos; ++at) {
        made.replace(at + 1, word.size(), other);
    }
    return made.substr(1, made.size() - 2);
}

std::string WithoutUmlauts(std::string key) {
    for (std::size_t at = 0; at + 1 < key.size(); ++at) {
        const bool first = key[at] == 'A' || key[at] == 'O' || key[at] == 'U';
        if (first && key[at + 1] == 'E') key.erase(at + 1, 1);
    }
    return key;
}

}  // namespace

std::vector<std::string> KeySpellings(const std::string& key) {
    std::vector<std::string> spellings = {key};
    const auto add = [&](std::string other) {
        if (std::ranges::find(spellings, other) == spellings.end()) spellings.push_back(std::move(other));
    };
    for (const auto& [word, shortened] : kShortenedWords) {
        add(WithWord(key, word, shortened));
        add(WithWord(key, shortened, word));
    }
    add(WithoutUmlauts(key));
    return spellings;
}

std::string SearchKey(std::string_view text) {
    std::string key;
    key.reserve(text.size());
    bool separated = false;
    int letters = 0;  // since the last separator or full stop
    const auto beginLetter = [&] {
        if (separated && !key.empty()) key += ' ';
        letters = separated ? 1 : letters + 1;
        separated = false;
    };
    while (!text.empty()) {
        // Nearly all characters are plain letters.
        const auto byte = static_cast<unsigned char>(text.front());
        if (byte < kPlainLetters.size() && kPlainLetters[byte] != 0) {
            beginLetter();
            key += kPlainLetters[byte];
            text.remove_prefix(1);
            continue;
        }
        char32_t code = 0;
        const std::string_view character = TakeCharacter(text, code);
        if (code == '.') {
            separated = separated || letters > 1;
            letters = 0;
        }
        if (IsDropped(code)) continue;
        if (IsSeparator(code)) {
            separated = true;
            continue;
        }
        beginLetter();
        AppendPlain(key, code, character);
    }
    return key;
}

}  // namespace tolvanis
