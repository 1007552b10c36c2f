#include "card_tool/card_file.h"
#include "card_tool/failure.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace card {
namespace {

std::string trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

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

} // namespace card
