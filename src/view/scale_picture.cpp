#include "view/scale_picture.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <optional>
#include <utility>
#include <vector>

#include "view/coverage.h"

namespace zev {
namespace {

using Pixel = std::uint32_t;

// A pixel's channels or their weighted sum, side by side so that one instruction takes all four.
// Single precision holds them to a ten-thousandth of a shade.
using Lanes [[gnu::vector_size(16)]] = float;
struct Channels {
    Lanes shares{};
};

constexpr Channels split(Pixel pixel) {
    return {Lanes{static_cast<float>(pixel & 0xFFU), static_cast<float>(pixel >> 8U & 0xFFU),
                  static_cast<float>(pixel >> 16U & 0xFFU), 255}};
}

constexpr Channels paperChannels{{255, 255, 255, 255}};

// How many pixels are joined at once: the instructions that do it take several.
constexpr int joinedAtOnce = 16;

void join(const std::array<Channels, joinedAtOnce>& sums, Pixel* output, int count) {
    const auto shares = std::bit_cast<std::array<float, 4 * joinedAtOnce>>(sums);
    std::array<std::uint8_t, 4 * joinedAtOnce> bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<std::uint8_t>(static_cast<std::int32_t>(shares[i]));
    std::memcpy(output, bytes.data(), static_cast<std::size_t>(count) * sizeof(Pixel));
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

// What a scaler needs to know of a picture made of palette indices...
class IndexedSource {
  public:
    using Element = std::uint8_t;

    explicit IndexedSource(std::shared_ptr<const toolkit::IndexedPicture> picture)
        : picture_(std::move(picture)), palette_(fullPalette(*picture_)) {
        std::ranges::transform(palette_, channels_.begin(), split);
    }
    [[nodiscard]] int width() const { return picture_->width; }
    [[nodiscard]] int height() const { return picture_->height; }
    [[nodiscard]] const Element* row(int y) const {
        return picture_->indices.data() +
               static_cast<std::size_t>(y) * static_cast<std::size_t>(picture_->width);
    }
    [[nodiscard]] const Channels& channelsOf(Element index) const { return channels_[index]; }
    [[nodiscard]] Pixel pixelOf(Element index) const { return palette_[index]; }
    /// The element that is white, if there is one.
    [[nodiscard]] std::optional<Element> paper() const {
        const auto found = std::ranges::find(palette_, toolkit::pixelOf(toolkit::white));
        if (found == palette_.end()) return std::nullopt;
        return static_cast<Element>(found - palette_.begin());
    }

  private:
    std::shared_ptr<const toolkit::IndexedPicture> picture_;
    Palette palette_;
    std::array<Channels, 256> channels_;
};

// ... and of one made of pixels.
class BitmapSource {
  public:
    using Element = Pixel;

    explicit BitmapSource(std::shared_ptr<const toolkit::Bitmap> picture)
        : picture_(std::move(picture)) {}
    [[nodiscard]] int width() const { return picture_->width(); }
    [[nodiscard]] int height() const { return picture_->height(); }
    [[nodiscard]] const Element* row(int y) const { return picture_->row(y); }
    [[nodiscard]] static Channels channelsOf(Element pixel) { return split(pixel); }
    [[nodiscard]] static Pixel pixelOf(Element pixel) { return pixel; }
    [[nodiscard]] static std::optional<Element> paper() { return toolkit::pixelOf(toolkit::white); }

  private:
    std::shared_ptr<const toolkit::Bitmap> picture_;
};

// Most of a card is blank paper. Columns are done in blocks, and a block without ink is only looked
// at.
constexpr int blockWidth = 8;

// For each block of columns the output pixels that it contributes to.
std::vector<RowRange> outputsOf(const Coverage& columns, int width) {
    const auto blocks = static_cast<std::size_t>((width + blockWidth - 1) / blockWidth);
    std::vector<RowRange> outputs(blocks, {columns.size(), 0});
    for (int x = 0; x < columns.size(); ++x) {
        const int first = columns.firsts[static_cast<std::size_t>(x)];
        const int last = first + columns.countOf(x) - 1;
        for (int i = first / blockWidth; i <= last / blockWidth; ++i) {
            RowRange& block = outputs[static_cast<std::size_t>(i)];
            block = {std::min(block.from, x), std::max(block.to, x + 1)};
        }
    }
    return outputs;
}

template <typename Source>
class Scaler {
  public:
    Scaler(Source source, const ScaleRequest& request, std::shared_ptr<toolkit::Bitmap> result)
        : source_(std::move(source)), full_(request.factor == 1), result_(std::move(result)),
          columns_(coverageOf(source_.width(), request.factor, result_->width())),
          rows_(coverageOf(source_.height(), request.factor,
                           std::min(result_->height(), request.contentHeight))),
          outputs_(outputsOf(columns_, source_.width())),
          lines_(static_cast<std::size_t>(RowWork::hands(result_->height())), emptyLine()) {
        const auto paper = source_.paper();
        hasPaper_ = paper.has_value();
        paper_.fill(paper.value_or(Element{}));
    }

    void work(int hand, const RowWork::Next& next) {
        Line& line = lines_[static_cast<std::size_t>(hand)];
        while (const auto rows = next())
            for (int y = rows->from; y < rows->to; ++y) makeRow(y, line);
    }

  private:
    using Element = typename Source::Element;

    // One row of averages; a block that isn't inked holds paper.
    struct Line {
        std::vector<Channels> averages;
        std::vector<char> inked;
    };

    // An output pixel at the right edge may look at columns that don't count for it.
    [[nodiscard]] Line emptyLine() const {
        const std::size_t beyond = static_cast<std::size_t>(columns_.reach);
        return {std::vector<Channels>(outputs_.size() * blockWidth + beyond, paperChannels),
                std::vector<char>(outputs_.size())};
    }

    void makeRow(int y, Line& line) {
        Pixel* output = result_->row(y);
        std::fill_n(output, result_->width(), toolkit::pixelOf(toolkit::white));
        if (y >= rows_.size()) return;
        // Full size has nothing to average.
        if (full_) return copyInk(source_.row(rows_.firsts[static_cast<std::size_t>(y)]), output);
        averageRows(y, line);
        switch (columns_.reach) {
        case 3:
            return averageInk<3>(line, output);
        case 4:
            return averageInk<4>(line, output);
        default:
            return averageInk<0>(line, output);
        }
    }

    void copyInk(const Element* first, Pixel* output) const {
        const int width = columns_.size();
        for (int column = 0; column < width; column += blockWidth) {
            const int count = std::min(blockWidth, width - column);
            if (!isInked(first + column, 1, count)) continue;
            for (int x = column; x < column + count; ++x) output[x] = source_.pixelOf(first[x]);
        }
    }

    [[nodiscard]] bool isInked(const Element* first, int rows, int count) const {
        if (!hasPaper_) return true;
        const auto size = static_cast<std::size_t>(count) * sizeof(Element);
        for (int i = 0; i < rows; ++i, first += source_.width())
            if (count == blockWidth ? std::memcmp(first, paper_.data(), sizeof(paper_)) != 0
                                    : std::memcmp(first, paper_.data(), size) != 0)
                return true;
        return false;
    }

    void averageRows(int y, Line& line) {
        const Element* first = source_.row(rows_.firsts[static_cast<std::size_t>(y)]);
        const float* weights = rows_.weightsOf(y);
        const int rows = rows_.countOf(y);
        for (std::size_t block = 0; block < outputs_.size(); ++block) {
            const int column = static_cast<int>(block) * blockWidth;
            const int count = std::min(blockWidth, source_.width() - column);
            Channels* averages = &line.averages[block * blockWidth];
            const bool was = line.inked[block] != 0;
            const bool is = isInked(first + column, rows, count);
            line.inked[block] = is ? 1 : 0;
            if (is)
                averageBlock(first + column, weights, rows, averages, count);
            else if (was)
                std::fill_n(averages, count, paperChannels);
        }
    }

    void averageBlock(const Element* first, const float* weights, int rows, Channels* averages,
                      int count) {
        if (count == blockWidth) return averageWholeBlock(first, weights, rows, averages);
        for (int x = 0; x < count; ++x) {
            Channels sum;
            for (int i = 0; i < rows; ++i)
                sum.shares +=
                    source_.channelsOf(first[i * source_.width() + x]).shares * weights[i];
            averages[x] = sum;
        }
    }

    // All rows of its columns at once, so that no sum is stored before it is whole.
    void averageWholeBlock(const Element* first, const float* weights, int rows,
                           Channels* averages) {
        std::array<Channels, blockWidth> sums{};
        for (int i = 0; i < rows; ++i, first += source_.width())
            for (std::size_t x = 0; x < sums.size(); ++x)
                sums[x].shares += source_.channelsOf(first[x]).shares * weights[i];
        std::copy(sums.begin(), sums.end(), averages);
    }

    // Output pixels without ink below them are white already.
    template <int Reach>
    void averageInk(const Line& line, Pixel* output) const {
        const auto blocks = outputs_.size();
        for (std::size_t block = 0; block < blocks; ++block) {
            if (line.inked[block] == 0) continue;
            RowRange run = outputs_[block];
            // Blocks beyond the edge of a picture that is cut contribute nothing.
            for (; block + 1 < blocks && line.inked[block + 1] != 0; ++block)
                run.to = std::max(run.to, outputs_[block + 1].to);
            averageColumns<Reach>(line, output, run.from, run.to);
        }
    }

    template <int Reach>
    void averageColumns(const Line& line, Pixel* output, int from, int to) const {
        const int reach = Reach == 0 ? columns_.reach : Reach;
        std::array<Channels, joinedAtOnce> sums;
        for (int x = from; x < to; x += joinedAtOnce) {
            const int count = std::min(joinedAtOnce, to - x);
            const float* weights = columns_.weightsOf(x);
            for (int i = 0; i < count; ++i, weights += reach) {
                const int column = x + i;
                const int first = columns_.firsts[static_cast<std::size_t>(column)];
                const Channels* average = &line.averages[static_cast<std::size_t>(first)];
                // Joining cuts off the fraction, so half a shade more makes it round.
                Lanes sum{0.5F, 0.5F, 0.5F, 0.5F};
                for (int tap = 0; tap < reach; ++tap) sum += average[tap].shares * weights[tap];
                sums[static_cast<std::size_t>(i)].shares = sum;
            }
            join(sums, output + x, count);
        }
    }

    Source source_;
    bool full_;
    std::shared_ptr<toolkit::Bitmap> result_;
    Coverage columns_;
    Coverage rows_;
    std::vector<RowRange> outputs_; ///< of each block
    std::vector<Line> lines_;       ///< of each hand
    bool hasPaper_ = false;
    std::array<Element, blockWidth> paper_{}; ///< a block without ink
};

template <typename Source>
PictureInMaking startScaling(Source source, const ScaleRequest& request) {
    auto result = std::make_shared<toolkit::Bitmap>(
        toolkit::Bitmap::unpainted(request.width, request.height));
    auto scaler = std::make_shared<Scaler<Source>>(std::move(source), request, result);
    return {result, RowWork(result->height(), [scaler](int hand, const RowWork::Next& next) {
                scaler->work(hand, next);
            })};
}

} // namespace

PictureInMaking startScaled(const std::shared_ptr<const toolkit::Bitmap>& source,
                            const ScaleRequest& request) {
    return startScaling(BitmapSource(source), request);
}

PictureInMaking startScaled(const std::shared_ptr<const toolkit::IndexedPicture>& source,
                            const ScaleRequest& request) {
    return startScaling(IndexedSource(source), request);
}

} // namespace zev
