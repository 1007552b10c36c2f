#pragma once

#include <map>
#include <string>
#include <vector>

/// A small reader of layout files, independent of the program's own.
namespace card_picture {

struct Field {
    int number = 0;
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    int colour = 0;
    int size = 0;
    /// 252 or 161; 0 for a text.
    int symbol = 0;

    [[nodiscard]] bool isCheck() const { return symbol == 252; }
    [[nodiscard]] bool isCircle() const { return symbol == 161; }
};

struct Layout {
    int twips = 0;
    int screenWidth = 0;
    std::vector<std::string> textFont{};
    std::vector<std::string> markFont{};
    std::vector<int> offsets{};
    std::vector<Field> marks{};
    std::vector<Field> texts{};
    std::map<int, int> tab{};
    int largestTab = 0;
};

/// The layout made for that many twips per pixel, from the tool's output folder.
[[nodiscard]] const Layout& layout(int twips);

/// Every byte of a file; empty if it can't be read.
[[nodiscard]] std::string fileBytes(const std::string& path);
/// The lines of a text, without their line ends.
[[nodiscard]] std::vector<std::string> linesOf(const std::string& text);
/// The values of a comma-separated line, quotes taken away.
[[nodiscard]] std::vector<std::string> valuesOf(const std::string& line);
/// The numbers of the fields of that kind ("mark" or "text") by name.
[[nodiscard]] std::map<std::string, int> fieldNumbers(const std::string& kind);

} // namespace card_picture
