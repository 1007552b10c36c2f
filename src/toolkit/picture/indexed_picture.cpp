#include "toolkit/picture/indexed_picture.h"

#include <algorithm>
#include <optional>

#include <QtCore/QByteArray>

#include "toolkit/base/error.h"

namespace toolkit {
namespace {

// The largest picture that is taken for one; the card has 2396 x 2473.
constexpr std::uint32_t longestSide = 16384;
constexpr std::uint32_t mostColors = 256;
constexpr std::uint32_t largestContent = 64 * 1024 * 1024;

// Takes values off the front of the data; none once the data is used up.
class Reader {
  public:
    explicit Reader(std::span<const std::byte> data) : data_(data) {}

    [[nodiscard]] std::optional<std::span<const std::byte>> take(std::size_t count) {
        if (data_.size() < count) return std::nullopt;
        const auto taken = data_.first(count);
        data_ = data_.subspan(count);
        return taken;
    }

    // As a picture file has them: the low byte first.
    [[nodiscard]] std::uint32_t takeNumber() {
        const std::uint32_t low = takeByte();
        return takeByte() << 8U | low;
    }

    [[nodiscard]] std::uint32_t takeByte() {
        const auto taken = take(1);
        if (!taken) throw RunTimeError(Failure::InvalidPicture);
        return std::to_integer<std::uint32_t>(taken->front());
    }

    [[nodiscard]] std::span<const std::byte> rest() const { return data_; }

  private:
    std::span<const std::byte> data_;
};

void require(bool condition) {
    if (!condition) throw RunTimeError(Failure::InvalidPicture);
}

// The length that the content claims (high byte first, as Qt writes it) is checked before memory is
// asked for it.
QByteArray uncompress(std::span<const std::byte> data) {
    Reader reader(data);
    std::uint32_t claimed = 0;
    for (int byte = 0; byte < 4; ++byte) claimed = claimed << 8U | reader.takeByte();
    require(claimed > 0 && claimed <= largestContent);
    QByteArray content = qUncompress(reinterpret_cast<const uchar*>(data.data()),
                                     static_cast<qsizetype>(data.size()));
    require(content.size() == static_cast<qsizetype>(claimed));
    return content;
}

std::uint32_t takeBounded(Reader& reader, std::uint32_t largest) {
    const std::uint32_t number = reader.takeNumber();
    require(number > 0 && number <= largest);
    return number;
}

std::uint32_t takeColor(Reader& reader) {
    std::uint32_t color = 0xFF;
    for (int channel = 0; channel < 3; ++channel) color = color << 8U | reader.takeByte();
    return color;
}

} // namespace

IndexedPicture decodePicture(std::span<const std::byte> data) {
    const QByteArray content = uncompress(data);
    Reader reader(
        std::as_bytes(std::span(content.constData(), static_cast<std::size_t>(content.size()))));
    const std::uint32_t width = takeBounded(reader, longestSide);
    const std::uint32_t height = takeBounded(reader, longestSide);
    const std::uint32_t colors = takeBounded(reader, mostColors);
    IndexedPicture picture;
    picture.width = static_cast<int>(width);
    picture.height = static_cast<int>(height);
    for (std::uint32_t color = 0; color < colors; ++color)
        picture.palette.push_back(takeColor(reader));
    const auto indices = reader.rest();
    require(indices.size() == std::size_t{width} * height);
    picture.indices.resize(indices.size());
    std::ranges::transform(indices, picture.indices.begin(), std::to_integer<std::uint8_t>);
    require(std::ranges::max(picture.indices) < colors);
    return picture;
}

} // namespace toolkit
