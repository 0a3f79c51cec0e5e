#pragma once
// The kinds of files in which a wheel is exported as a picture.

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"
#include "text/columns.h"

namespace tolvanis {

enum class PictureFormat { Svg, Pdf, Png };

// Endings of pictures of other formats, which nobody means as a part of a name.
inline constexpr std::array<std::string_view, 9> kOtherPictures = {".jpg",  ".jpeg", ".gif",  ".bmp", ".tif",
                                                                   ".tiff", ".webp", ".avif", ".eps"};

// The format that a file's extension stands for, in either letter case; nothing for any other.
inline std::optional<PictureFormat> PictureFormatOf(const Path& file) {
    struct Extension {
        std::string_view text;
        PictureFormat format;
    };
    constexpr std::array kExtensions = {Extension{".svg", PictureFormat::Svg},
                                        Extension{".pdf", PictureFormat::Pdf},
                                        Extension{".png", PictureFormat::Png}};
    for (const Extension& extension : kExtensions) {
        if (EqualIgnoringCase(extension.text, file.extension().string())) return extension.format;
    }
    return std::nullopt;
}

// What is wrong with a file that stands for none.
inline std::string NoPictureName(const Path& file) {
    return "\"" + file.string() + "\": a picture's name ends in .svg, .pdf or .png";
}

}  // namespace tolvanis
