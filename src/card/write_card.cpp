#include "card/write_card.h"

#include <algorithm>

#include "text/escapes.h"
#include "toolkit/base/ansi.h"
#include "toolkit/base/number_text.h"

namespace zev {
namespace {

using toolkit::numberText;

constexpr std::string_view banner =
    "' ************************************************************************\r\n"
    "' **           DO NOT MODIFY THIS FILE (it's OK to delete it)           **\r\n"
    "' ************************************************************************\r\n"
    "\r\n";

constexpr std::string_view partnerComment =
    "\r\n"
    "' Partner's name and ACBL ID number (both are optional)\r\n";

constexpr std::string_view markCountComment = "\r\n"
                                              "' # of mark-fields to follow\r\n";

constexpr std::string_view marksComment =
    "\r\n"
    "' For each, 3 values: its field-number; whether or not it was selected (1=yes, 0=no); "
    "bit-switches (unused)\r\n"
    "'           The field numbers correspond to the ones in the 'Definitions.Ini' file\r\n";

constexpr std::string_view textCountComment = "\r\n"
                                              "' # of text-fields to follow\r\n";

constexpr std::string_view textsComment =
    "\r\n"
    "' For each, 3 values: its field-number; the text it contains; bit-switches (1=Bold, 2=Italic, "
    "4=Left-justify)\r\n";

constexpr std::string_view lineEnd = "\r\n";

/// A quoted string. Nothing is escaped in it, so a superscript two stands for the double quote.
std::string quoted(std::string text) {
    std::ranges::replace(text, '"', toolkit::superscriptTwo);
    return "\"" + text + "\"";
}

std::string fieldNumber(std::size_t position) { return numberText(static_cast<int>(position) + 1); }

void appendCount(std::string& file, std::string_view comment, std::size_t count) {
    file += comment;
    file += numberText(static_cast<int>(count));
    file += lineEnd;
}

void appendHead(std::string& file, const CardDocument& document) {
    file += banner;
    file += "' This contains the settings for the card called: " + document.cardName + "\r\n";
    file += "' You may delete it from your computer if you no longer need it\r\n";
    file += "' Program version: " + document.programVersion + "\r\n";
    file += partnerComment;
    file += quoted(document.partner.name) + "," + quoted(document.partner.number) + "\r\n";
}

void appendMarks(std::string& file, const std::vector<bool>& marks) {
    appendCount(file, markCountComment, marks.size());
    file += marksComment;
    for (std::size_t i = 0; i < marks.size(); ++i)
        file += fieldNumber(i) + (marks[i] ? ",1,0\r\n" : ",0,0\r\n");
}

std::string storedText(std::string raw) {
    AmpRem(raw);
    return quoted(std::move(raw));
}

void appendTexts(std::string& file, const std::vector<CardDocument::Text>& texts) {
    appendCount(file, textCountComment, texts.size());
    file += textsComment;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        file +=
            fieldNumber(i) + "," + storedText(texts[i].text) + "," + numberText(texts[i].switches);
        file += lineEnd;
    }
}

} // namespace

std::string writeCard(const CardDocument& document) {
    std::string file;
    appendHead(file, document);
    appendMarks(file, document.marks);
    appendTexts(file, document.texts);
    return file;
}

} // namespace zev
