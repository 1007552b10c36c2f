#include "card_tool/description.h"

#include <fstream>
#include <map>
#include <optional>
#include <sstream>

#include "card_tool/failure.h"

namespace card_tool {
namespace {

const std::map<std::string, NodeKind> openers{{"panel", NodeKind::Panel},
                                              {"frame", NodeKind::Frame},
                                              {"columns", NodeKind::Columns},
                                              {"grid", NodeKind::Grid}};
const std::map<std::string, NodeKind> lines{
    {"row", NodeKind::Row},         {"bar", NodeKind::Bar},     {"head", NodeKind::Head},
    {"caption", NodeKind::Caption}, {"space", NodeKind::Space}, {"pitch", NodeKind::Pitch}};

std::vector<double> readMeasures(const std::string& text) {
    std::vector<double> measures;
    std::istringstream parts(text);
    for (std::string part; parts >> part;) {
        if (part == "*") {
            measures.push_back(0);
            continue;
        }
        std::istringstream number(part);
        double measure = 0;
        if (!(number >> measure)) throw Failure("not a measure: " + part);
        measures.push_back(measure);
    }
    return measures;
}

struct Line {
    int number = 0;
    std::string word;
    std::string rest;
};

std::optional<Line> nextLine(std::istream& in, int& number) {
    for (std::string text; std::getline(in, text);) {
        ++number;
        const std::size_t start = text.find_first_not_of(' ');
        if (start == std::string::npos || text[start] == '#') continue;
        const std::size_t end = std::min(text.find(' ', start), text.size());
        const std::size_t rest = std::min(text.find_first_not_of(' ', end), text.size());
        return Line{number, text.substr(start, end - start), text.substr(rest)};
    }
    return std::nullopt;
}

/// Builds the tree of parts while the lines come in.
class TreeBuilder {
  public:
    void take(const Line& line) {
        if (line.word == "end")
            close();
        else if (line.word == "next")
            nextColumn(line);
        else if (const auto opener = openers.find(line.word); opener != openers.end())
            open(opener->second, line);
        else if (const auto single = lines.find(line.word); single != lines.end())
            current().parts.push_back(singleLine(single->second, line));
        else
            throw Failure("no such word: " + line.word);
    }

    std::vector<Node> finish() {
        if (open_.size() != 1) throw Failure("a part is not closed");
        return std::move(open_.front().parts);
    }

  private:
    Node& current() { return open_.back(); }

    static Node singleLine(NodeKind kind, const Line& line) {
        Node node{.kind = kind, .line = line.number};
        if (kind == NodeKind::Space || kind == NodeKind::Pitch)
            node.measures = readMeasures(line.rest);
        else
            node.cells = readCells(line.rest);
        return node;
    }

    void open(NodeKind kind, const Line& line) {
        Node node{.kind = kind, .line = line.number};
        if (kind != NodeKind::Panel) node.measures = readMeasures(line.rest);
        open_.push_back(std::move(node));
        if (kind == NodeKind::Columns)
            open_.push_back({.kind = NodeKind::Stack, .line = line.number});
    }

    void close() {
        if (open_.size() == 1) throw Failure("nothing is open here");
        const bool column = current().kind == NodeKind::Stack;
        hang();
        if (column) hang();
    }

    void nextColumn(const Line& line) {
        if (current().kind != NodeKind::Stack) throw Failure("no columns are open here");
        hang();
        open_.push_back({.kind = NodeKind::Stack, .line = line.number});
    }

    /// Puts the innermost open part into the one around it.
    void hang() {
        Node done = std::move(open_.back());
        open_.pop_back();
        open_.back().parts.push_back(std::move(done));
    }

    std::vector<Node> open_{1};
};

} // namespace

Description readDescription(const std::filesystem::path& path) {
    std::ifstream in(path);
    if (!in) throw Failure("can't read " + path.string());
    const std::string file = path.filename().string();
    int number = 0;
    TreeBuilder builder;
    try {
        while (const auto line = nextLine(in, number)) builder.take(*line);
        return {file, builder.finish()};
    } catch (const Failure& failure) {
        throw Failure(file, number, failure.what());
    }
}

} // namespace card_tool
