#include "card_tool/picture_file.h"

#include "card_tool/failure.h"
#include "card_tool/output_file.h"

#include <QtCore/QByteArray>
#include <gif_lib.h>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>

namespace card {
namespace {

struct MapFree {
    void operator()(ColorMapObject* map) const { GifFreeMapObject(map); }
};
using ColourMap = std::unique_ptr<ColorMapObject, MapFree>;

struct GifClose {
    void operator()(GifFileType* file) const { EGifCloseFile(file, nullptr); }
};
using GifFile = std::unique_ptr<GifFileType, GifClose>;

int appendBytes(GifFileType* file, const GifByteType* bytes, int count) {
    static_cast<std::string*>(file->UserData)->append(bytes, bytes + count);
    return count;
}

constexpr int gifMapSize = 256;

ColourMap colourMap(const std::vector<Rgb>& palette) {
    std::vector<GifColorType> colours(gifMapSize, GifColorType{255, 255, 255});
    for (std::size_t at = 0; at < palette.size(); ++at)
        colours[at] = {palette[at].red, palette[at].green, palette[at].blue};
    int size = 2;
    while (size < static_cast<int>(palette.size())) size *= 2;
    return ColourMap(GifMakeMapObject(size, colours.data()));
}

void require(bool done, const std::filesystem::path& path) {
    if (!done) throw Failure("can't write " + path.string());
}

void append16(QByteArray& bytes, int value) {
    bytes.append(static_cast<char>(value & 0xFF)).append(static_cast<char>((value >> 8) & 0xFF));
}

} // namespace

void writeGif(const IndexedPicture& picture, const std::filesystem::path& path) {
    int error = 0;
    std::string bytes;
    GifFile file(EGifOpen(&bytes, appendBytes, &error));
    require(file != nullptr, path);
    const ColourMap map = colourMap(picture.palette);
    require(EGifPutScreenDesc(file.get(), picture.width, picture.height, map->BitsPerPixel, 0,
                              map.get()) == GIF_OK,
            path);
    require(EGifPutImageDesc(file.get(), 0, 0, picture.width, picture.height, false, nullptr) ==
                GIF_OK,
            path);
    std::vector<std::uint8_t> line(static_cast<std::size_t>(picture.width));
    for (int y = 0; y < picture.height; ++y) {
        const auto start =
            picture.pixels.begin() + static_cast<std::ptrdiff_t>(picture.index(0, y));
        std::copy_n(start, picture.width, line.begin());
        require(EGifPutLine(file.get(), line.data(), picture.width) == GIF_OK, path);
    }
    require(EGifCloseFile(file.release(), &error) == GIF_OK, path);
    writeBytes(path, bytes);
}

void writePacked(const IndexedPicture& picture, const std::filesystem::path& path) {
    QByteArray bytes;
    append16(bytes, picture.width);
    append16(bytes, picture.height);
    append16(bytes, static_cast<int>(picture.palette.size()));
    for (const Rgb colour : picture.palette)
        for (const std::uint8_t channel : {colour.red, colour.green, colour.blue})
            bytes.append(static_cast<char>(channel));
    for (const std::uint8_t pixel : picture.pixels) bytes.append(static_cast<char>(pixel));
    const QByteArray packed = qCompress(bytes, 9);
    writeBytes(path, std::string_view(packed.constData(), static_cast<std::size_t>(packed.size())));
}

} // namespace card
