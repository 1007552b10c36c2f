// A page as a reader program draws it.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <ostream>
#include <sstream>
#include <string>

#include "toolkit/base/color.h"
#include "toolkit/base/files.h"

namespace zev::test {

/// Pixels of a byte, in greys, or of three, in colours.
struct Rendering {
    int width = 0;
    int height = 0;
    int channels = 1;
    std::string pixels;

    [[nodiscard]] int channel(int x, int y, int which) const {
        const std::size_t place = static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                                  static_cast<std::size_t>(x);
        const auto at =
            place * static_cast<std::size_t>(channels) + static_cast<std::size_t>(which);
        return static_cast<unsigned char>(pixels[at]);
    }
    [[nodiscard]] toolkit::Color color(int x, int y) const {
        return toolkit::rgb(channel(x, y, 0), channel(x, y, 1), channel(x, y, 2));
    }
    /// How dark a grey is, 0 to 255; outside the page it is paper.
    [[nodiscard]] int darkness(int x, int y) const {
        if (x < 0 || y < 0 || x >= width || y >= height) return 0;
        return 255 - channel(x, y, 0);
    }
    [[nodiscard]] int darkestNear(int x, int y) const {
        int most = 0;
        for (int row = y - 1; row <= y + 1; ++row)
            for (int column = x - 1; column <= x + 1; ++column)
                most = std::max(most, darkness(column, row));
        return most;
    }
};

inline Rendering renderingIn(const std::filesystem::path& pgm) {
    const std::string content = toolkit::readFile(pgm);
    std::istringstream file(content);
    std::string kind;
    std::string comment;
    Rendering rendering;
    int most = 0;
    file >> kind;
    while ((file >> std::ws).peek() == '#') std::getline(file, comment);
    file >> rendering.width >> rendering.height >> most;
    file.get();
    rendering.channels = kind == "P6" ? 3 : 1;
    rendering.pixels = content.substr(static_cast<std::size_t>(file.tellg()));
    return rendering;
}

/// A program that draws pages of 300 dots to the inch. In its command OUT stands for the PGM or PPM
/// file, IN for the page.
struct Reader {
    const char* name;
    const char* command;
};

inline std::ostream& operator<<(std::ostream& out, const Reader& reader) {
    return out << reader.name;
}

/// It scales pictures smoothly.
constexpr Reader poppler{"poppler", "pdftoppm -gray -r 300 'IN' >'OUT'"};
constexpr Reader popplerInColor{"poppler", "pdftoppm -r 300 'IN' >'OUT'"};

inline Rendering drawnBy(const Reader& reader, const std::filesystem::path& page) {
    const auto file = page.parent_path() / "page.pgm";
    std::string command = reader.command;
    command.replace(command.find("'OUT'"), 5, file.string());
    command.replace(command.find("'IN'"), 4, page.string());
    if (std::system(command.c_str()) != 0) return {};
    return renderingIn(file);
}

} // namespace zev::test
