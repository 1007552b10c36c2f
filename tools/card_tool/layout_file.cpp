#include "card_tool/layout_file.h"

#include "card_tool/field_record.h"
#include "card_tool/ink_offsets.h"

#include <algorithm>
#include <initializer_list>
#include <map>
#include <string_view>

namespace card {
namespace {

constexpr int screenWidthPixels = 1280;
/// Marks follow the texts in the numbers of the tab table.
constexpr int firstMarkItem = 1000;

class TextLines {
  public:
    void add(std::string_view line) { m_text.append(line).append("\r\n"); }
    void addValues(std::initializer_list<int> values) {
        std::string line;
        for (const int value : values) {
            if (!line.empty()) line += ',';
            line += std::to_string(value);
        }
        add(line);
    }
    std::string text() && { return std::move(m_text); }

  private:
    std::string m_text{};
};

const char* const sequenceNote = "' The field numbers are not in horizontal or vertical order.  "
                                 "They're in the sequence in which they were "
                                 "added during design.";

void addBanner(TextLines& lines) {
    const char* const stars =
        "' ***********************************************************************";
    const char* const empty =
        "' **                                                                   **";
    for (const char* const line : {stars, stars, empty}) lines.add(line);
    lines.add("' **                 DO NOT MODIFY OR DELETE THIS FILE                 **");
    for (const char* const line : {empty, stars, stars, ""}) lines.add(line);
    lines.add("' It defines the locations and default styles of the checkmark, circle, and text "
              "areas on the "
              "Convention card.");
    lines.add("' Individual card files (xxx.zev) only indicate which marks and what text should be "
              "shown; not where. "
              " Those");
    lines.add("' files reference the field numbers in this file, so changing this file will affect "
              "the appearance of "
              "all cards.");
    lines.add("");
}

void addEnvironment(TextLines& lines, int twipsPerPixel) {
    lines.add("' The next few lines describe the environment in which this file was created");
    lines.add(std::string("' Program version: ") + programVersion);
    lines.add("");
    lines.add("' Screen TwipsPerPixel (usually 15, 13, or 12) and Screen Width in twips");
    lines.addValues({twipsPerPixel, screenWidthPixels * twipsPerPixel});
    lines.add("");
    lines.add("' Text font name; small, medium, and large text font sizes - all in points");
    lines.add(R"("Arial","11.00","14.00","18.00")");
    lines.add("");
    lines.add("' Symbol font name (for checkmarks and circles); small, medium, and large Symbol "
              "font sizes - all in "
              "points");
    lines.add(R"("Wingdings","18.00","22.00","30.00")");
    lines.add("' Symbol font name for Suit Symbols: Symbol; this one is a comment only and isn't "
              "read back");
    lines.add("");
}

void addOffsets(TextLines& lines, const Typefaces& faces, int twipsPerPixel) {
    lines.add("' # of pixels by which characters are offset from the left and from the bottom "
              "within their positions");
    lines.add("' These values are used by the Auto-Adjust feature to fine-tune positions, "
              "especially in tight spaces");
    lines.add("");
    std::string values;
    for (const InkOffset& offset : inkOffsets(faces, twipsPerPixel))
        values += std::to_string(offset.left) + "," + std::to_string(offset.bottom) + ",";
    lines.add(values + "0");
    lines.add("");
}

void addMarks(TextLines& lines, const Sheet& sheet, const Typefaces& faces, int twipsPerPixel) {
    lines.add("' # of mark-fields (checkmarks and circles) defined in this layout");
    lines.addValues({static_cast<int>(sheet.marks.size())});
    lines.add("");
    lines.add(sequenceNote);
    lines.add("' For each one, 9 values: field#, position in pixels (left, top, width, height); "
              "color (1=black, 2=red, "
              "3=blue); symbol font size (1=small, 2=medium, 3=large); symbol: 252=checkmark, "
              "161=circle; "
              "bit-switches (unused)");
    lines.add("");
    int number = 0;
    for (const MarkPlace& mark : sheet.marks) {
        const FieldRecord at = markRecord(mark, faces, twipsPerPixel);
        lines.addValues({++number, at.left, at.top, at.width, at.height, colourNumber(mark.ink),
                         at.size, symbolNumber(mark.kind), 0});
    }
    lines.add("");
}

void addTexts(TextLines& lines, const Sheet& sheet, const Typefaces& faces, int twipsPerPixel) {
    lines.add("' # of text-fields defined in this layout");
    lines.addValues({static_cast<int>(sheet.texts.size())});
    lines.add("");
    lines.add(sequenceNote);
    lines.add("' For each one, 8 values: field#, position in pixels (left, top, width, height); "
              "color (1=black, 2=red, "
              "3=blue); text font size (1=small, 2=medium, 3=large); bit-switches (unused)");
    lines.add("");
    int number = 0;
    for (const TextPlace& text : sheet.texts) {
        const FieldRecord at = textRecord(text, faces, twipsPerPixel);
        lines.addValues(
            {++number, at.left, at.top, at.width, at.height, colourNumber(text.ink), at.size, 0});
    }
    lines.add("");
}

int itemNumber(FieldNumber field) {
    return field.number + (field.kind == FieldKind::Mark ? firstMarkItem : 0);
}

std::map<int, int> tabTable(const Sheet& sheet) {
    std::map<int, int> table;
    for (std::size_t at = 0; at < sheet.walk.size(); ++at)
        table[itemNumber(sheet.walk[at])] = itemNumber(sheet.walk[(at + 1) % sheet.walk.size()]);
    return table;
}

void addWalk(TextLines& lines, const Sheet& sheet) {
    const std::map<int, int> table = tabTable(sheet);
    lines.add("' Largest tab sequence value; undefined values are omitted, so the list is far "
              "smaller than this "
              "number");
    lines.addValues({table.empty() ? 0 : table.rbegin()->first});
    lines.add("");
    lines.add("' The tab sequences flow across/down each boxed area of the card.  They apply to "
              "Text and Checkmarks, "
              "not Circles.");
    lines.add("' For each one: Field # (they're in sequence); Field # to which the TAB key moves "
              "the cursor.");
    lines.add(
        "' If the number is larger than  1000, it refers to a Checkmark; otherwise, to Text.");
    lines.add("");
    for (const auto& [from, to] : table) lines.addValues({from, to});
}

} // namespace

std::string layoutText(const Sheet& sheet, const Typefaces& faces, int twipsPerPixel) {
    TextLines lines;
    addBanner(lines);
    addEnvironment(lines, twipsPerPixel);
    addOffsets(lines, faces, twipsPerPixel);
    addMarks(lines, sheet, faces, twipsPerPixel);
    addTexts(lines, sheet, faces, twipsPerPixel);
    addWalk(lines, sheet);
    return std::move(lines).text();
}

} // namespace card
