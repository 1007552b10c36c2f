// The image formats that the program can write.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/picture/bitmap.h"

namespace toolkit {

/// The identifier of a format's encoder.
using CodecId = std::array<std::uint8_t, 16>;

struct ImageEncoder {
    CodecId id{};
    std::string FilenameExtension; ///< patterns joined by ";", as in "*.JPG;*.JPEG"
};

/// Encoders of this system, never empty.
[[nodiscard]] std::vector<ImageEncoder> imageEncoders();

/// Writes the picture. Only JPEG has a quality, 0 to 100. PNG and BMP keep every colour; GIF takes
/// 256 and gives the others one that is near. An unknown identifier is failure 5, else
/// it fails as writeFile does.
void saveImage(const Bitmap& picture, const std::filesystem::path& path, const CodecId& encoder,
               std::optional<int> quality);

/// Writes a BMP file. Fails as writeFile does.
void savePicture(const Bitmap& picture, const std::filesystem::path& path);

} // namespace toolkit
