// The card's picture at full size, decoded only as far as a scale needs it.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include "toolkit/picture/bitmap.h"

namespace zev {

struct PictureInMaking;
struct ScaleRequest;

/// The built-in picture or one that the player put in its place. Copies share the pixels.
class CardPicture {
  public:
    CardPicture() = default;
    /// Holds any other picture that is to be scaled.
    explicit CardPicture(const std::shared_ptr<const toolkit::Bitmap>& picture);

    /// Takes a picture file instead of the built-in card. Failure 481 if it is none.
    void load(const std::filesystem::path& path);

    /// The size of the full picture, in pixels.
    [[nodiscard]] int width() const;
    [[nodiscard]] int height() const;

    /// Begins to make the picture at the request's factor (0.2 to 1) of its full size, from the
    /// half picture where that is large enough.
    [[nodiscard]] PictureInMaking startScaled(const ScaleRequest& request) const;

  private:
    struct Replacement {
        std::shared_ptr<const toolkit::Bitmap> full;
        std::shared_ptr<const toolkit::Bitmap> half;
    };
    std::optional<Replacement> replacement_;
};

} // namespace zev
