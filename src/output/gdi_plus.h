// Image files by their names' extensions, with the statuses and texts that the program tells.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/picture/image_codecs.h"

namespace zev {

/// Looks encoders up by file pattern and writes pictures with them. A failure raises the event with
/// a text and a status; nothing is thrown.
class cGdiPlus {
  public:
    using Failed = std::function<void(std::string_view text, int status)>;

    explicit cGdiPlus(Failed failed = {}, const std::vector<toolkit::ImageEncoder>& encoders =
                                              toolkit::imageEncoders());

    /// The picture in a file, none after a failure.
    [[nodiscard]] std::optional<toolkit::Bitmap>
    FilenameToIPicture(const std::filesystem::path& file) const;

    /// Saves in the format of the file's extension; only JPEG files take the quality, 0 to 100.
    /// False after a failure, and silently for an extension that no encoder has.
    bool PictureBoxToFile(const toolkit::Bitmap& picture, const std::filesystem::path& file,
                          int quality) const;

    /// The encoder for a file's extension; none where no encoder has it.
    [[nodiscard]] std::optional<toolkit::CodecId>
    encoderOf(const std::filesystem::path& file) const;

    [[nodiscard]] static std::string_view GdiErrorString(int status);

  private:
    void addPatterns(const toolkit::ImageEncoder& encoder, int index);
    [[nodiscard]] int encoderFor(std::string_view extension) const;
    void raise(int status) const;

    Failed failed_;
    std::vector<toolkit::CodecId> encoderIds_;
    int encoderCount_ = 0;
    std::map<std::string, int, std::less<>> encoderIndexes_; ///< by pattern in lower case
};

} // namespace zev
