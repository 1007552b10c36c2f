#include "toolkit/picture/gif_file.h"

#include <gif_lib.h>

#include <algorithm>
#include <memory>

#include "toolkit/base/error.h"

namespace toolkit {
namespace {

constexpr int channelBits = 8;

int append(GifFileType* gif, const GifByteType* bytes, int count) {
    static_cast<std::string*>(gif->UserData)
        ->append(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(count));
    return count;
}

struct Closer {
    void operator()(GifFileType* gif) const { EGifCloseFile(gif, nullptr); }
};
struct MapFreer {
    void operator()(ColorMapObject* map) const { GifFreeMapObject(map); }
};
using ColorMap = std::unique_ptr<ColorMapObject, MapFreer>;

/// The format wants a power of two of at least two colours.
ColorMap colorMapOf(const IndexedPicture& picture) {
    int size = 2;
    while (static_cast<std::size_t>(size) < picture.palette.size()) size *= 2;
    ColorMap map(GifMakeMapObject(size, nullptr));
    if (!map) throw RunTimeError(Failure::OutOfMemory);
    std::transform(picture.palette.begin(), picture.palette.end(), map->Colors,
                   [](std::uint32_t color) -> GifColorType {
                       return {.Red = static_cast<GifByteType>(color >> 16U & 0xFFU),
                               .Green = static_cast<GifByteType>(color >> 8U & 0xFFU),
                               .Blue = static_cast<GifByteType>(color & 0xFFU)};
                   });
    return map;
}

bool putPicture(GifFileType* gif, const IndexedPicture& picture) {
    const ColorMap map = colorMapOf(picture);
    if (EGifPutScreenDesc(gif, picture.width, picture.height, channelBits, 0, map.get()) !=
            GIF_OK ||
        EGifPutImageDesc(gif, 0, 0, picture.width, picture.height, false, nullptr) != GIF_OK)
        return false;
    std::vector<GifByteType> row(static_cast<std::size_t>(picture.width));
    auto next = picture.indices.begin();
    for (int y = 0; y < picture.height; ++y, next += picture.width) {
        std::copy_n(next, picture.width, row.begin());
        if (EGifPutLine(gif, row.data(), picture.width) != GIF_OK) return false;
    }
    return true;
}

} // namespace

std::string gifFile(const IndexedPicture& picture) {
    std::string bytes;
    int error = 0;
    std::unique_ptr<GifFileType, Closer> gif(EGifOpen(&bytes, append, &error));
    if (!gif) throw RunTimeError(Failure::OutOfMemory);
    constexpr int mostPixels = 65535;
    const bool fits = std::max(picture.width, picture.height) <= mostPixels &&
                      std::min(picture.width, picture.height) > 0;
    if (!fits || !putPicture(gif.get(), picture)) throw RunTimeError(Failure::InvalidPicture);
    gif.reset(); // the end of the file is written by closing it
    return bytes;
}

} // namespace toolkit
