#include "card_tool/sample_card.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <utility>

#include "card/card_file.h"
#include "card/write_card.h"
#include "card_tool/failure.h"
#include "card_tool/program_version.h"
#include "text/escapes.h"
#include "toolkit/base/ansi.h"

namespace card_tool {
namespace {

std::string trimmed(std::string_view text) { return std::string(toolkit::trim(text)); }

void takeText(SampleCard& sample, const std::string& key, const std::string& value) {
    if (key == "card")
        sample.name = value;
    else if (key == "partner")
        sample.partnerName = value;
    else if (key == "partner number")
        sample.partnerNumber = value;
    else if (!sample.texts.emplace(key, value).second)
        throw Failure("the field has two texts: " + key);
}

void takeMarks(SampleCard& sample, const std::string& names) {
    std::istringstream parts(names);
    for (std::string name; parts >> name;)
        if (!sample.marks.insert(name).second) throw Failure("the mark is set twice: " + name);
}

/// "+ a b c" sets marks, "field = text" fills in a text.
void takeLine(SampleCard& sample, const std::string& line) {
    if (line.empty() || line.front() == '#') return;
    const bool plain =
        std::ranges::all_of(line, [](char letter) { return letter >= ' ' && letter <= '~'; });
    if (!plain) throw Failure("a character beyond ASCII");
    const std::size_t equals = line.find(" = ");
    if (line.front() == '+')
        takeMarks(sample, line.substr(1));
    else if (equals != std::string::npos)
        takeText(sample, trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 3)));
    else
        throw Failure("neither marks nor a text");
}

/// Throws Failure for a name that no field has: a typing error would go unseen otherwise.
void checkName(const std::string& name, const auto& places, const SampleCard& sample) {
    if (std::ranges::none_of(places, [&](const auto& place) { return place.id == name; }))
        throw Failure(sample.name + ": no such field: " + name);
}

void checkNames(const SampleCard& sample, const Sheet& sheet) {
    for (const std::string& name : sample.marks) checkName(name, sheet.marks, sample);
    for (const auto& text : sample.texts) checkName(text.first, sheet.texts, sample);
}

zev::CardDocument::Text textOf(const SampleCard& sample, const TextPlace& place) {
    const auto found = sample.texts.find(place.id);
    std::string text = found == sample.texts.end() ? std::string() : found->second;
    zev::AmpAdd(text);
    return {std::move(text), place.size == AreaSize::Large ? zev::text_switch::bold : 0};
}

} // namespace

SampleCard readSampleCard(const std::filesystem::path& path) {
    std::ifstream in(path);
    if (!in) throw Failure("can't read " + path.string());
    SampleCard sample;
    int number = 0;
    try {
        for (std::string line; std::getline(in, line);) {
            ++number;
            takeLine(sample, trimmed(line));
        }
    } catch (const Failure& failure) {
        throw Failure(path.filename().string(), number, failure.what());
    }
    if (sample.name.empty()) throw Failure(path.string() + ": the card has no name");
    return sample;
}

std::string cardText(const SampleCard& sample, const Sheet& sheet) {
    checkNames(sample, sheet);
    zev::CardDocument document;
    document.cardName = sample.name;
    document.programVersion = programVersion();
    document.partner = {sample.partnerName, sample.partnerNumber};
    for (const MarkPlace& mark : sheet.marks)
        document.marks.push_back(sample.marks.contains(mark.id));
    for (const TextPlace& text : sheet.texts) document.texts.push_back(textOf(sample, text));
    return zev::writeCard(document);
}

} // namespace card_tool
