#include "layout/write_layout.h"

#include <cstddef>

#include "toolkit/base/number_text.h"

namespace zev {
namespace {

using toolkit::numberText;

constexpr std::string_view banner =
    "' ***********************************************************************\r\n"
    "' ***********************************************************************\r\n"
    "' **                                                                   **\r\n"
    "' **                 DO NOT MODIFY OR DELETE THIS FILE                 **\r\n"
    "' **                                                                   **\r\n"
    "' ***********************************************************************\r\n"
    "' ***********************************************************************\r\n"
    "\r\n"
    "' It defines the locations and default styles of the checkmark, circle, and text areas on the "
    "Convention card.\r\n"
    "' Individual card files (xxx.zev) only indicate which marks and what text should be shown; "
    "not "
    "where.  Those\r\n"
    "' files reference the field numbers in this file, so changing this file will affect the "
    "appearance of all cards.\r\n"
    "\r\n"
    "' The next few lines describe the environment in which this file was created\r\n";

constexpr std::string_view environmentComment =
    "\r\n"
    "' Screen TwipsPerPixel (usually 15, 13, or 12) and Screen Width in twips\r\n";

constexpr std::string_view textFontComment =
    "\r\n"
    "' Text font name; small, medium, and large text font sizes - all in points\r\n";

constexpr std::string_view markFontComment =
    "\r\n"
    "' Symbol font name (for checkmarks and circles); small, medium, and large Symbol font sizes - "
    "all in points\r\n";

constexpr std::string_view offsetsComment =
    "\r\n"
    "' # of pixels by which characters are offset from the left and from the bottom within their "
    "positions\r\n"
    "' These values are used by the Auto-Adjust feature to fine-tune positions, especially in "
    "tight "
    "spaces\r\n"
    "\r\n";

constexpr std::string_view markCountComment =
    "\r\n"
    "' # of mark-fields (checkmarks and circles) defined in this layout\r\n";

constexpr std::string_view textCountComment = "\r\n"
                                              "' # of text-fields defined in this layout\r\n";

constexpr std::string_view orderComment = "\r\n"
                                          "' The field numbers are not in horizontal or vertical "
                                          "order.  They're in the sequence in which "
                                          "they were added during design.\r\n";

constexpr std::string_view marksComment =
    "' For each one, 9 values: field#, position in pixels (left, top, width, height); color "
    "(1=black, 2=red, 3=blue); symbol font size (1=small, 2=medium, 3=large); symbol: "
    "252=checkmark, 161=circle; bit-switches (unused)\r\n"
    "\r\n";

constexpr std::string_view textsComment =
    "' For each one, 8 values: field#, position in pixels (left, top, width, height); color "
    "(1=black, 2=red, 3=blue); text font size (1=small, 2=medium, 3=large); bit-switches "
    "(unused)\r\n"
    "\r\n";

constexpr std::string_view largestTabComment =
    "\r\n"
    "' Largest tab sequence value; undefined values are omitted, so the list is far smaller than "
    "this number\r\n";

constexpr std::string_view tabPairsComment =
    "\r\n"
    "' The tab sequences flow across/down each boxed area of the card.  They apply to Text and "
    "Checkmarks, not Circles.\r\n"
    "' For each one: Field # (they're in sequence); Field # to which the TAB key moves the "
    "cursor.\r\n"
    "' If the number is larger than  1000, it refers to a Checkmark; otherwise, to Text.\r\n"
    "\r\n";

constexpr std::string_view lineEnd = "\r\n";

void appendFont(std::string& file, const NamedSizes& font) {
    file += "\"" + font.name + "\"";
    for (const float size : font.sizes) file += ",\"" + toolkit::fixedText(size, 1, 2) + "\"";
    file += lineEnd;
}

void appendEnvironment(std::string& file, const LayoutDocument& document) {
    file += "' Program version: " + document.programVersion;
    file += lineEnd;
    file += environmentComment;
    file += numberText(document.twips) + "," + numberText(document.screenWidth);
    file += lineEnd;
}

void appendFonts(std::string& file, const LayoutDocument& document) {
    file += textFontComment;
    appendFont(file, document.textFont);
    file += markFontComment;
    appendFont(file, document.markFont);
    file += "' Symbol font name for Suit Symbols: " + document.suitFontName;
    file += lineEnd;
}

void appendOffsets(std::string& file, const FileOffsets& offsets) {
    file += offsetsComment;
    for (const float offset : offsets) file += numberText(offset) + ",";
    file += "0\r\n";
}

void appendCount(std::string& file, std::string_view comment, std::size_t count) {
    file += comment;
    file += numberText(static_cast<int>(count));
    file += lineEnd;
}

/// The values that records of marks and texts begin with. The position gives the field number.
std::string recordStart(const FieldRecord& record, std::size_t position) {
    std::string line = numberText(static_cast<int>(position) + 1);
    for (const float value : {record.left, record.top, record.width, record.height})
        line += "," + numberText(value);
    return line + "," + numberText(record.color) + "," + numberText(record.size);
}

void appendMarks(std::string& file, const std::vector<FieldRecord>& marks) {
    appendCount(file, markCountComment, marks.size());
    file += orderComment;
    file += marksComment;
    for (std::size_t i = 0; i < marks.size(); ++i)
        file += recordStart(marks[i], i) + "," + numberText(marks[i].symbol) + ",0\r\n";
}

void appendTexts(std::string& file, const std::vector<FieldRecord>& texts) {
    appendCount(file, textCountComment, texts.size());
    file += orderComment;
    file += textsComment;
    for (std::size_t i = 0; i < texts.size(); ++i) file += recordStart(texts[i], i) + ",0\r\n";
}

void appendTabs(std::string& file, const TabTable& table) {
    appendCount(file, largestTabComment, static_cast<std::size_t>(table.UBound()));
    file += tabPairsComment;
    for (int item = 1; item <= table.UBound(); ++item) {
        if (table[item] == 0) continue;
        file += numberText(item) + "," + numberText(int{table[item]});
        file += lineEnd;
    }
}

} // namespace

std::string writeLayout(const LayoutDocument& document) {
    std::string file(banner);
    appendEnvironment(file, document);
    appendFonts(file, document);
    appendOffsets(file, document.offsets);
    appendMarks(file, document.marks);
    appendTexts(file, document.texts);
    const bool hasTabs = document.tabTable != nullptr && document.tabTable->UBound() > 0;
    if (hasTabs) appendTabs(file, *document.tabTable);
    return file;
}

} // namespace zev
