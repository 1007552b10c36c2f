#include "view/scale_picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <optional>
#include <thread>
#include <vector>

namespace zev {
namespace {

using Pixel = std::uint32_t;

// A pixel's channels or their weighted sum, side by side so that one instruction takes all four.
// Single precision holds them to a ten-thousandth of a shade.
struct Channels {
    alignas(16) std::array<float, 4> shares{};

    void add(const Channels& other, float weight) {
        for (std::size_t i = 0; i < shares.size(); ++i) shares[i] += other.shares[i] * weight;
    }
};

constexpr Channels split(Pixel pixel) {
    return {{static_cast<float>(pixel & 0xFFU), static_cast<float>(pixel >> 8U & 0xFFU),
             static_cast<float>(pixel >> 16U & 0xFFU), 255}};
}

constexpr Pixel joined(const Channels& channels) {
    std::array<std::int32_t, 4> bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<std::int32_t>(channels.shares[i]);
    return static_cast<Pixel>(bytes[3]) << 24U | static_cast<Pixel>(bytes[2]) << 16U |
           static_cast<Pixel>(bytes[1]) << 8U | static_cast<Pixel>(bytes[0]);
}

// The pixels of one direction that an output pixel covers. Their weights sum to 1.
struct Span {
    int first = 0;
    int count = 0;
    std::size_t weights = 0; ///< place of the first one in the list of weights
};

struct Coverage {
    std::vector<Span> spans;
    std::vector<float> weights;
};

void addSpan(Coverage& coverage, double from, double to, int last) {
    const int first = std::min(static_cast<int>(from), last);
    const int count = std::clamp(static_cast<int>(std::ceil(to)), first + 1, last + 1) - first;
    const double end = std::min(to, last + 1.0);
    coverage.spans.push_back({first, count, coverage.weights.size()});
    double given = 0;
    for (int i = 1; i < count; ++i) {
        const double boundary = (first + i - from) / (end - from);
        coverage.weights.push_back(static_cast<float>(boundary - given));
        given = boundary;
    }
    coverage.weights.push_back(static_cast<float>(1 - given));
}

// For each output pixel that `length` pixels reach when shrunk, the input pixels below it.
Coverage coverageOf(int length, double factor, int outputLength) {
    Coverage coverage;
    const double reached = std::nearbyint(length * factor);
    const int count = static_cast<int>(std::clamp<double>(reached, 0, outputLength));
    for (int i = 0; i < count; ++i) addSpan(coverage, i / factor, (i + 1) / factor, length - 1);
    return coverage;
}

Pixel averageColumns(const Channels* columns, const float* weights, int count) {
    // What is joined loses its fraction: a half more, and it is rounded.
    Channels sum{{0.5F, 0.5F, 0.5F, 0.5F}};
    for (int i = 0; i < count; ++i) sum.add(columns[i], weights[i]);
    return joined(sum);
}

using Palette = std::array<Pixel, 256>;

// Every index has a colour, also one beyond the picture's palette.
Palette fullPalette(const toolkit::IndexedPicture& picture) {
    Palette palette;
    palette.fill(toolkit::pixelOf(toolkit::white));
    std::copy_n(picture.palette.begin(), std::min(picture.palette.size(), palette.size()),
                palette.begin());
    return palette;
}

// The element that is white, if there is one.
std::optional<std::uint8_t> paperOf(const Palette& palette) {
    const auto found = std::ranges::find(palette, toolkit::pixelOf(toolkit::white));
    if (found == palette.end()) return std::nullopt;
    return static_cast<std::uint8_t>(found - palette.begin());
}

const std::uint8_t* indexRow(const toolkit::IndexedPicture& picture, int y) {
    return picture.indices.data() +
           static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width);
}

// Most of a card is paper. Columns go in blocks, and a block without ink costs only the look at it.
constexpr int blockWidth = 8;

// Fewer output rows aren't worth a thread.
constexpr int fewestRows = 64;
constexpr int mostProcessors = 4;

int processors() {
    return std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, mostProcessors);
}

// The output pixels that a block of columns has part in: from `first` up to `end`.
struct Reach {
    int first = 0;
    int end = 0;
};

std::vector<Reach> reachOf(const Coverage& columns, int width) {
    const auto blocks = static_cast<std::size_t>((width + blockWidth - 1) / blockWidth);
    std::vector<Reach> reach(blocks, {static_cast<int>(columns.spans.size()), 0});
    for (int x = 0; x < static_cast<int>(columns.spans.size()); ++x) {
        const Span& span = columns.spans[static_cast<std::size_t>(x)];
        for (int i = span.first / blockWidth; i <= (span.first + span.count - 1) / blockWidth;
             ++i) {
            Reach& block = reach[static_cast<std::size_t>(i)];
            block = {std::min(block.first, x), std::max(block.end, x + 1)};
        }
    }
    return reach;
}

// A source whose element `first`[x] of a row stands for the channels `channelsOf(first[x])`.
template <typename Row, typename ChannelsOf, typename Element>
class Scaler {
  public:
    Scaler(int width, int height, double factor, Row row, ChannelsOf channelsOf,
           std::optional<Element> paper, toolkit::Bitmap& result)
        : width_(width), factor_(factor), row_(row), channelsOf_(channelsOf),
          hasPaper_(paper.has_value()), result_(result),
          columns_(coverageOf(width, factor, result.width())),
          rows_(coverageOf(height, factor, result.height())), reach_(reachOf(columns_, width)) {
        paper_.fill(paper.value_or(Element{}));
    }

    // The output rows in as many parts as there are processors for.
    void run() {
        const int height = static_cast<int>(rows_.spans.size());
        const int parts = std::clamp(height / fewestRows, 1, processors());
        std::vector<Line> lines(static_cast<std::size_t>(parts), emptyLine());
        std::vector<std::jthread> others;
        for (int part = 1; part < parts; ++part)
            others.emplace_back([&, part] {
                runRows(height * part / parts, height * (part + 1) / parts,
                        lines[static_cast<std::size_t>(part)]);
            });
        runRows(0, height / parts, lines.front());
    }

  private:
    static constexpr Channels paperChannels{{255, 255, 255, 255}};

    // One row of averages; a block that isn't inked holds paper.
    struct Line {
        std::vector<Channels> averages;
        std::vector<char> inked;
    };

    [[nodiscard]] Line emptyLine() const {
        return {std::vector<Channels>(reach_.size() * blockWidth, paperChannels),
                std::vector<char>(reach_.size())};
    }

    // Full size has nothing to average.
    void runRows(int from, int to, Line& line) {
        for (int y = from; y < to; ++y) {
            const Span& rows = rows_.spans[static_cast<std::size_t>(y)];
            Pixel* output = result_.row(y);
            if (factor_ == 1) {
                copyInk(row_(rows.first), output);
            } else {
                averageRows(rows, line);
                averageInk(line, output);
            }
        }
    }

    void copyInk(const Element* first, Pixel* output) const {
        const int width = static_cast<int>(columns_.spans.size());
        for (int column = 0; column < width; column += blockWidth) {
            const int count = std::min(blockWidth, width - column);
            if (!isInked(first + column, 1, count)) continue;
            for (int x = column; x < column + count; ++x) output[x] = joined(channelsOf_(first[x]));
        }
    }

    [[nodiscard]] bool isInked(const Element* first, int rows, int count) const {
        if (!hasPaper_) return true;
        const auto size = static_cast<std::size_t>(count) * sizeof(Element);
        for (int i = 0; i < rows; ++i, first += width_)
            if (count == blockWidth ? std::memcmp(first, paper_.data(), sizeof(paper_)) != 0
                                    : std::memcmp(first, paper_.data(), size) != 0)
                return true;
        return false;
    }

    void averageRows(const Span& rows, Line& line) {
        const Element* first = row_(rows.first);
        for (std::size_t block = 0; block < reach_.size(); ++block) {
            const int column = static_cast<int>(block) * blockWidth;
            const int count = std::min(blockWidth, width_ - column);
            Channels* averages = &line.averages[block * blockWidth];
            const bool was = line.inked[block] != 0;
            const bool is = isInked(first + column, rows.count, count);
            line.inked[block] = is ? 1 : 0;
            if (is)
                averageBlock(first + column, rows, averages, count);
            else if (was)
                std::fill_n(averages, count, paperChannels);
        }
    }

    // All rows of a column at once, so that no sum is stored before it is whole.
    void averageBlock(const Element* first, const Span& rows, Channels* averages, int count) {
        const float* weights = &rows_.weights[rows.weights];
        for (int x = 0; x < count; ++x) {
            Channels sum;
            const Element* element = first + x;
            for (int i = 0; i < rows.count; ++i, element += width_)
                sum.add(channelsOf_(*element), weights[i]);
            averages[x] = sum;
        }
    }

    // Output pixels without ink below them are white already.
    void averageInk(const Line& line, Pixel* output) const {
        int done = 0;
        for (std::size_t block = 0; block < reach_.size(); ++block) {
            if (line.inked[block] == 0) continue;
            for (int x = std::max(done, reach_[block].first); x < reach_[block].end; ++x) {
                const Span& span = columns_.spans[static_cast<std::size_t>(x)];
                output[x] = averageColumns(&line.averages[static_cast<std::size_t>(span.first)],
                                           &columns_.weights[span.weights], span.count);
            }
            done = std::max(done, reach_[block].end);
        }
    }

    int width_;
    double factor_;
    Row row_;
    ChannelsOf channelsOf_;
    bool hasPaper_;
    std::array<Element, blockWidth> paper_{}; ///< a block without ink
    toolkit::Bitmap& result_;
    Coverage columns_;
    Coverage rows_;
    std::vector<Reach> reach_;
};

} // namespace

toolkit::Bitmap scaled(const toolkit::Bitmap& source, const ScaleRequest& request) {
    toolkit::Bitmap result(request.width, request.height);
    const auto row = [&](int y) { return source.row(y); };
    Scaler(source.width(), source.height(), request.factor, row, split,
           std::optional(toolkit::pixelOf(toolkit::white)), result)
        .run();
    return result;
}

toolkit::Bitmap scaled(const toolkit::IndexedPicture& source, const ScaleRequest& request) {
    toolkit::Bitmap result(request.width, request.height);
    const Palette palette = fullPalette(source);
    std::array<Channels, 256> channels;
    std::ranges::transform(palette, channels.begin(), split);
    const auto row = [&](int y) { return indexRow(source, y); };
    const auto channelsOf = [&](std::uint8_t index) -> const Channels& { return channels[index]; };
    Scaler(source.width, source.height, request.factor, row, channelsOf, paperOf(palette), result)
        .run();
    return result;
}

} // namespace zev
