#include "card_picture/layout_reader.h"

#include <fstream>
#include <iterator>
#include <sstream>

namespace card_picture {
namespace {

/// The lines that hold values, one after the other.
class DataLines {
  public:
    explicit DataLines(const std::string& text) {
        for (const std::string& line : linesOf(text))
            if (!line.empty() && line.front() != '\'') m_lines.push_back(line);
    }
    std::vector<std::string> next() {
        return m_at < m_lines.size() ? valuesOf(m_lines[m_at++]) : std::vector<std::string>{};
    }
    std::vector<int> numbers() {
        std::vector<int> numbers;
        for (const std::string& value : next()) numbers.push_back(std::stoi(value));
        return numbers;
    }
    [[nodiscard]] bool atEnd() const { return m_at == m_lines.size(); }

  private:
    std::vector<std::string> m_lines{};
    std::size_t m_at = 0;
};

enum class FieldKind { Mark, Text };

std::vector<Field> readFields(DataLines& lines, FieldKind kind) {
    std::vector<Field> fields;
    const int count = lines.numbers().at(0);
    for (int at = 0; at < count; ++at) {
        const std::vector<int> v = lines.numbers();
        if (v.size() != (kind == FieldKind::Mark ? 9U : 8U)) continue;
        fields.push_back(
            {v[0], v[1], v[2], v[3], v[4], v[5], v[6], kind == FieldKind::Mark ? v[7] : 0});
    }
    return fields;
}

Layout readLayout(int twips) {
    DataLines lines(
        fileBytes(std::string(CARD_OUTPUT "/Definitions.Ini.") + std::to_string(twips)));
    Layout read;
    const std::vector<int> environment = lines.numbers();
    read.twips = environment.at(0);
    read.screenWidth = environment.at(1);
    read.textFont = lines.next();
    read.markFont = lines.next();
    read.offsets = lines.numbers();
    read.marks = readFields(lines, FieldKind::Mark);
    read.texts = readFields(lines, FieldKind::Text);
    read.largestTab = lines.numbers().at(0);
    while (!lines.atEnd()) {
        const std::vector<int> pair = lines.numbers();
        read.tab[pair.at(0)] = pair.at(1);
    }
    return read;
}

} // namespace

const Layout& layout(int twips) {
    static std::map<int, Layout> layouts;
    const auto found = layouts.find(twips);
    return found != layouts.end() ? found->second
                                  : layouts.emplace(twips, readLayout(twips)).first->second;
}

std::string fileBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

std::vector<std::string> valuesOf(const std::string& line) {
    std::vector<std::string> values(1);
    bool quoted = false;
    for (const char letter : line) {
        if (letter == '"')
            quoted = !quoted;
        else if (letter == ',' && !quoted)
            values.emplace_back();
        else
            values.back().push_back(letter);
    }
    return values;
}

std::map<std::string, int> fieldNumbers(const std::string& kind) {
    std::map<std::string, int> numbers;
    for (const std::string& line : linesOf(fileBytes(CARD_OUTPUT "/fields.txt"))) {
        std::istringstream parts(line);
        std::string word;
        std::string name;
        int number = 0;
        parts >> word >> number >> name;
        if (word == kind) numbers[name] = number;
    }
    return numbers;
}

} // namespace card_picture
