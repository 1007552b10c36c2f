#include "view/scale_picture.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <functional>
#include <future>
#include <optional>
#include <ranges>
#include <vector>

#include "view/coverage.h"

namespace zev {
namespace {

using Pixel = std::uint32_t;

constexpr Pixel whitePixel = toolkit::pixelOf(toolkit::white);

// A pixel's channels or their weighted sum, side by side so that one instruction takes all four.
// Single precision holds them to a ten-thousandth of a shade.
using Channels [[gnu::vector_size(16)]] = float;
using WholeChannels [[gnu::vector_size(16)]] = std::int32_t;
using ByteChannels [[gnu::vector_size(4)]] = std::uint8_t;

constexpr Channels paperChannels{255, 255, 255, 255};

Channels split(Pixel pixel) {
    return __builtin_convertvector(std::bit_cast<ByteChannels>(pixel), Channels);
}

Pixel join(Channels channels) {
    // The conversion cuts off the fraction, so a half more makes it round.
    const auto rounded = __builtin_convertvector(channels + 0.5F, WholeChannels);
    return std::bit_cast<Pixel>(__builtin_convertvector(rounded, ByteChannels));
}

/// Pixels or palette indices, row by row without padding.
template <typename Element>
struct Source {
    const Element* elements = nullptr;
    int width = 0;
    int height = 0;
    std::optional<Element> paper; ///< the white one, if there is one
};

// Most of a card is blank paper. Columns are done in blocks, and a block without ink is only looked
// at.
constexpr int blockWidth = 8;

template <typename Element, typename Split>
class Scaler {
  public:
    Scaler(const Source<Element>& source, Split splitElement, const ScaleRequest& request)
        : source_(source), split_(splitElement), factor_(request.factor),
          columns_(coverageOf(source.width, factor_, request.width)),
          rows_(
              coverageOf(source.height, factor_, std::min(request.height, request.contentHeight))),
          blocks_(static_cast<std::size_t>((source.width + blockWidth - 1) / blockWidth)),
          // An output pixel at the right edge may look at columns that don't count for it.
          line_(blocks_.size() * blockWidth + static_cast<std::size_t>(columns_.reach),
                paperChannels) {
        paperBlock_.fill(source.paper.value_or(Element{}));
    }

    [[nodiscard]] int rows() const { return rows_.size(); }

    /// Scales onto these rows of a white picture.
    void scaleTo(toolkit::Bitmap& result, int from, int past) {
        for (int y = from; y < past; ++y) {
            averageRows(y);
            auto end = blocks_.begin();
            while (true) {
                const auto first = std::find(end, blocks_.end(), Block::Inked);
                if (first == blocks_.end()) break;
                end = std::find(first, blocks_.end(), Block::Paper);
                averageColumns(columnOf(first), columnOf(end), result.row(y));
            }
        }
    }

  private:
    enum class Block : char { Paper, Inked };

    /// The line becomes the average of the rows below an output row.
    void averageRows(int y) {
        const int rows = rows_.countOf(y);
        const Element* first =
            source_.elements + static_cast<std::size_t>(rows_.firsts[static_cast<std::size_t>(y)]) *
                                   static_cast<std::size_t>(source_.width);
        const auto wholeBlocks = static_cast<std::size_t>(source_.width) / blockWidth;
        for (std::size_t block = 0; block < wholeBlocks; ++block)
            averageBlock(block, first, y, rows, std::integral_constant<std::size_t, blockWidth>());
        if (wholeBlocks < blocks_.size())
            averageBlock(wholeBlocks, first, y, rows,
                         static_cast<std::size_t>(source_.width) % blockWidth);
    }

    /// A whole block's width is known to the compiler.
    template <typename Width>
    void averageBlock(std::size_t block, const Element* row, int y, int rows, Width width) {
        Channels* averages = &line_[block * blockWidth];
        const Element* first = row + block * blockWidth;
        if (isInked(first, rows, width)) {
            // In registers until they are whole.
            std::array<Channels, blockWidth> sums{};
            const float* weights = rows_.weightsOf(y);
            for (int i = 0; i < rows; ++i, first += source_.width)
                for (std::size_t x = 0; x < width; ++x) sums[x] += split_(first[x]) * weights[i];
            for (std::size_t x = 0; x < width; ++x) averages[x] = sums[x];
            blocks_[block] = Block::Inked;
        } else if (blocks_[block] == Block::Inked) {
            std::fill_n(averages, std::size_t{width}, paperChannels);
            blocks_[block] = Block::Paper;
        }
    }

    template <typename Width>
    [[nodiscard]] bool isInked(const Element* first, int rows, Width width) const {
        if (!source_.paper) return true;
        for (int i = 0; i < rows; ++i, first += source_.width)
            if (std::memcmp(first, paperBlock_.data(), width * sizeof(Element)) != 0) return true;
        return false;
    }

    [[nodiscard]] int columnOf(std::vector<Block>::const_iterator block) const {
        return static_cast<int>(block - blocks_.begin()) * blockWidth;
    }

    /// The output pixels that lie over these columns, be it in part.
    void averageColumns(int from, int past, Pixel* output) const {
        const int pastPixel = std::min(static_cast<int>(past * factor_) + 1, columns_.size());
        for (int x = static_cast<int>(from * factor_); x < pastPixel; ++x)
            output[x] = join(averageOf(x));
    }

    [[nodiscard]] Channels averageOf(int x) const {
        const Channels* average =
            &line_[static_cast<std::size_t>(columns_.firsts[static_cast<std::size_t>(x)])];
        const float* weights = columns_.weightsOf(x);
        // Above half the size a pixel covers at most three: nearly every step of the zoom.
        if (columns_.reach == 3)
            return average[0] * weights[0] + average[1] * weights[1] + average[2] * weights[2];
        Channels sum{};
        for (int i = 0; i < columns_.reach; ++i) sum += average[i] * weights[i];
        return sum;
    }

    Source<Element> source_;
    Split split_;
    double factor_;
    Coverage columns_;
    Coverage rows_;
    std::vector<Block> blocks_;
    std::vector<Channels> line_;
    std::array<Element, blockWidth> paperBlock_{};
};

/// Does the upper rows and, meanwhile, the lower ones. In one piece a zoom step took a tenth longer
/// until it was seen: 22 ms instead of 20.
template <typename Work>
void inHalves(int rows, Work work) {
    auto lower = std::async([rows, work]() mutable { work(rows / 2, rows); });
    work(0, rows / 2);
    lower.get();
}

template <typename Element, typename Split>
toolkit::Bitmap scaledBy(Split split, const Source<Element>& source, const ScaleRequest& request) {
    toolkit::Bitmap result(request.width, request.height);
    Scaler<Element, Split> scaler(source, split, request);
    inHalves(scaler.rows(),
             [&result, scaler](int from, int past) mutable { scaler.scaleTo(result, from, past); });
    return result;
}

/// At its full size, as in print and export, each pixel stays what it is.
template <typename Element, typename PixelOf>
toolkit::Bitmap copied(PixelOf pixelOf, const Source<Element>& source,
                       const ScaleRequest& request) {
    auto result = toolkit::Bitmap::unwritten(request.width, request.height);
    const int columns = std::min(source.width, request.width);
    const int rows = std::min({source.height, request.height, request.contentHeight});
    const auto fillRows = [&](int from, int past) {
        for (int y = from; y < past; ++y) {
            Pixel* output = result.row(y);
            Pixel* const end = output + request.width;
            if (y < rows) {
                const Element* row = source.elements + std::ptrdiff_t{y} * source.width;
                output = std::transform(row, row + columns, output, pixelOf);
            }
            std::fill(output, end, whitePixel);
        }
    };
    inHalves(request.height, fillRows);
    return result;
}

} // namespace

toolkit::Bitmap scaled(const toolkit::Bitmap& source, const ScaleRequest& request) {
    const Source<Pixel> pixels{source.row(0), source.width(), source.height(), whitePixel};
    if (request.factor == 1) return copied(std::identity(), pixels, request);
    return scaledBy(split, pixels, request);
}

toolkit::Bitmap scaled(const toolkit::IndexedPicture& source, const ScaleRequest& request) {
    // Every index has a colour, also one beyond the picture's palette.
    std::array<Pixel, 256> palette{};
    palette.fill(whitePixel);
    std::ranges::copy(source.palette | std::views::take(palette.size()), palette.begin());
    Source<std::uint8_t> indices{source.indices.data(), source.width, source.height, {}};
    if (request.factor == 1)
        return copied([&](std::uint8_t index) { return palette[index]; }, indices, request);
    const auto white = std::ranges::find(palette, whitePixel) - palette.begin();
    if (white < std::ssize(palette)) indices.paper = static_cast<std::uint8_t>(white);
    std::array<Channels, 256> channels{};
    std::ranges::transform(palette, channels.begin(), split);
    return scaledBy([&](std::uint8_t index) { return channels[index]; }, indices, request);
}

} // namespace zev
