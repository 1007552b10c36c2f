#include "card_tool/card_file.h"

#include "card_tool/failure.h"
#include "card_tool/layout_file.h"

#include <algorithm>

namespace card {
namespace {

constexpr char storedQuote = static_cast<char>(178);
constexpr int boldSwitch = 1;

std::string quoted(std::string text) {
    std::ranges::replace(text, '"', storedQuote);
    return '"' + text + '"';
}

std::string header(const SampleCard& sample) {
    const std::string stars =
        "' ************************************************************************\r\n";
    return stars +
           "' **           DO NOT MODIFY THIS FILE (it's OK to delete it)           **\r\n" +
           stars +
           "\r\n"
           "' This contains the settings for the card called: " +
           sample.name +
           "\r\n"
           "' You may delete it from your computer if you no longer need it\r\n"
           "' Program version: " +
           programVersion +
           "\r\n\r\n"
           "' Partner's name and ACBL ID number (both are optional)\r\n" +
           quoted(sample.partnerName) + "," + quoted(sample.partnerNumber) + "\r\n\r\n";
}

std::string markLines(const SampleCard& sample, const Sheet& sheet) {
    std::string lines =
        "' # of mark-fields to follow\r\n" + std::to_string(sheet.marks.size()) +
        "\r\n\r\n"
        "' For each, 3 values: its field-number; whether or not it was selected (1=yes, 0=no); "
        "bit-switches (unused)\r\n"
        "'           The field numbers correspond to the ones in the 'Definitions.Ini' file\r\n";
    int number = 0;
    for (const MarkPlace& mark : sheet.marks)
        lines +=
            std::to_string(++number) + (sample.marks.contains(mark.id) ? ",1,0\r\n" : ",0,0\r\n");
    return lines;
}

std::string textLines(const SampleCard& sample, const Sheet& sheet) {
    std::string lines =
        "\r\n' # of text-fields to follow\r\n" + std::to_string(sheet.texts.size()) +
        "\r\n\r\n"
        "' For each, 3 values: its field-number; the text it contains; bit-switches (1=Bold, "
        "2=Italic, 4=Left-justify)\r\n";
    int number = 0;
    for (const TextPlace& text : sheet.texts) {
        const auto found = sample.texts.find(text.id);
        const std::string value = found == sample.texts.end() ? std::string() : found->second;
        const int switches = text.size == AreaSize::Large ? boldSwitch : 0;
        lines += std::to_string(++number) + "," + quoted(value) + "," + std::to_string(switches) +
                 "\r\n";
    }
    return lines;
}

/// A sample must not name what the card hasn't got: a slip of the pen would go unseen.
void checkName(const std::string& name, const auto& places, const SampleCard& sample) {
    if (std::ranges::none_of(places, [&](const auto& place) { return place.id == name; }))
        throw Failure(sample.name + ": no such field: " + name);
}

void checkNames(const SampleCard& sample, const Sheet& sheet) {
    for (const std::string& name : sample.marks) checkName(name, sheet.marks, sample);
    for (const auto& text : sample.texts) checkName(text.first, sheet.texts, sample);
}

} // namespace

std::string cardText(const SampleCard& sample, const Sheet& sheet) {
    checkNames(sample, sheet);
    return header(sample) + markLines(sample, sheet) + textLines(sample, sheet);
}

} // namespace card
