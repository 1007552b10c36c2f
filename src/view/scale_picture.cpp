#include "view/scale_picture.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <optional>
#include <ranges>
#include <vector>

#include "view/coverage.h"

namespace zev {
namespace {

using Pixel = std::uint32_t;

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

    /// Scales onto a white picture.
    void scaleTo(toolkit::Bitmap& result) {
        for (int y = 0; y < rows_.size(); ++y) {
            averageRows(y);
            for (std::size_t block = 0; block < blocks_.size(); ++block)
                if (blocks_[block] == Block::Inked)
                    averageColumns(static_cast<int>(block) * blockWidth, result.row(y));
        }
    }

  private:
    enum class Block : char { Paper, Inked };

    [[nodiscard]] bool isInked(const Element* first, int rows, std::size_t count) const {
        if (!source_.paper) return true;
        for (int i = 0; i < rows; ++i, first += source_.width)
            if (std::memcmp(first, paperBlock_.data(), count * sizeof(Element)) != 0) return true;
        return false;
    }

    /// The line becomes the average of the rows below an output row.
    void averageRows(int y) {
        const int rows = rows_.countOf(y);
        const Element* first =
            source_.elements + static_cast<std::size_t>(rows_.firsts[static_cast<std::size_t>(y)]) *
                                   static_cast<std::size_t>(source_.width);
        for (std::size_t block = 0; block < blocks_.size(); ++block, first += blockWidth) {
            Channels* averages = &line_[block * blockWidth];
            const auto count = std::min<std::size_t>(
                blockWidth, static_cast<std::size_t>(source_.width) - block * blockWidth);
            if (isInked(first, rows, count)) {
                averageBlock(first, rows_.weightsOf(y), rows, averages, count);
                blocks_[block] = Block::Inked;
            } else if (blocks_[block] == Block::Inked) {
                std::fill_n(averages, count, paperChannels);
                blocks_[block] = Block::Paper;
            }
        }
    }

    void averageBlock(const Element* first, const float* weights, int rows, Channels* averages,
                      std::size_t count) const {
        for (std::size_t x = 0; x < count; ++x) {
            const Element* element = first + x;
            Channels sum{};
            for (int i = 0; i < rows; ++i, element += source_.width)
                sum += split_(*element) * weights[i];
            averages[x] = sum;
        }
    }

    /// The output pixels that lie over a block, be it in part.
    void averageColumns(int column, Pixel* output) const {
        const int from = static_cast<int>(column * factor_);
        const int past =
            std::min(static_cast<int>((column + blockWidth) * factor_) + 1, columns_.size());
        for (int x = from; x < past; ++x) {
            const Channels* average =
                &line_[static_cast<std::size_t>(columns_.firsts[static_cast<std::size_t>(x)])];
            const float* weights = columns_.weightsOf(x);
            Channels sum{};
            for (int i = 0; i < columns_.reach; ++i) sum += average[i] * weights[i];
            output[x] = join(sum);
        }
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

template <typename Element, typename Split>
toolkit::Bitmap scaledBy(Split split, const Source<Element>& source, const ScaleRequest& request) {
    toolkit::Bitmap result(request.width, request.height);
    Scaler<Element, Split>(source, split, request).scaleTo(result);
    return result;
}

constexpr Pixel whitePixel = toolkit::pixelOf(toolkit::white);

} // namespace

toolkit::Bitmap scaled(const toolkit::Bitmap& source, const ScaleRequest& request) {
    return scaledBy(
        split, Source<Pixel>{source.row(0), source.width(), source.height(), whitePixel}, request);
}

toolkit::Bitmap scaled(const toolkit::IndexedPicture& source, const ScaleRequest& request) {
    // Every index has a colour, also one beyond the picture's palette.
    std::array<Channels, 256> palette{};
    palette.fill(paperChannels);
    std::ranges::transform(source.palette | std::views::take(palette.size()), palette.begin(),
                           split);
    const auto white = std::ranges::find(source.palette, whitePixel) - source.palette.begin();
    Source<std::uint8_t> indices{source.indices.data(), source.width, source.height, {}};
    if (white < std::ssize(palette)) indices.paper = static_cast<std::uint8_t>(white);
    return scaledBy([&palette](std::uint8_t index) { return palette[index]; }, indices, request);
}

} // namespace zev
