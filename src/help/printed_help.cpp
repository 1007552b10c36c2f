#include "help/printed_help.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "toolkit/text/font.h"

namespace zev {
namespace {

float widestLine(const toolkit::FontSpec& font, std::span<const std::string> lines) {
    float widest = 0;
    for (const auto& line : lines) widest = std::max(widest, toolkit::textWidth(font, line));
    return widest;
}

bool beginsPage(const std::string& line) { return line.starts_with('_'); }

/// Puts lines below each other and turns the page where the next one would overrun it.
class Pages {
  public:
    Pages(const toolkit::FontSpec& font, float height)
        : lineHeight_(toolkit::textHeight(font)), height_(height) {
        help_.font = font;
    }

    /// What is empty takes room, but never a page of its own.
    void print(std::string_view text) {
        if (text.empty()) {
            top_ += lineHeight_;
            return;
        }
        if (top_ > 0 && top_ + lineHeight_ > height_) turn();
        help_.lines.push_back({std::string(text), page_, top_});
        top_ += lineHeight_;
    }
    void turn() {
        ++page_;
        top_ = 0;
    }
    [[nodiscard]] PrintedHelp take() { return std::move(help_); }

  private:
    float lineHeight_;
    float height_;
    PrintedHelp help_;
    std::size_t page_ = 0;
    float top_ = 0;
};

/// Without what only makes sense on the screen, and the title before it.
std::vector<std::string> textOnPaper(std::span<const std::string> lines, std::string_view title) {
    std::vector<std::string> text{{}, std::string(title), {}};
    std::ranges::copy_if(lines, std::back_inserter(text),
                         [](const std::string& line) { return !line.starts_with("(To close"); });
    return text;
}

} // namespace

toolkit::FontSpec fittedHelpFont(toolkit::FontSpec font, std::span<const std::string> lines,
                                 float width) {
    font.Size = largestHelpFont;
    const float widest = widestLine(font, lines);
    if (widest > width) font.Size *= width / widest;
    return font;
}

PrintedHelp printedHelp(const toolkit::FontSpec& font, std::span<const std::string> lines,
                        std::string_view title, const PageRoom& room) {
    const auto text = textOnPaper(lines, title);
    std::vector<std::string> printed;
    std::ranges::remove_copy_if(text, std::back_inserter(printed), beginsPage);
    Pages pages(fittedHelpFont(font, printed, room.width), room.height);
    for (const auto& line : text) {
        if (beginsPage(line))
            pages.turn();
        else
            pages.print(line);
    }
    return pages.take();
}

} // namespace zev
