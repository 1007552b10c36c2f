// The card's picture at full size, decoded only as far as a scale needs it.
#pragma once

#include <filesystem>
#include <future>
#include <memory>
#include <optional>

#include "toolkit/model/drawing.h"
#include "toolkit/picture/bitmap.h"
#include "view/scale_picture.h"

namespace zev {

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

    /// The picture at the request's factor (0.2 to 1) of its full size, made from the half picture
    /// where that is large enough.
    [[nodiscard]] toolkit::Bitmap scaled(const ScaleRequest& request) const;

    /// What the built-in picture is drawn of, at full size; none of a replacement.
    [[nodiscard]] std::shared_ptr<const toolkit::Drawing> artwork() const;

  private:
    struct Replacement {
        std::shared_ptr<const toolkit::Bitmap> full;
        std::shared_ptr<const toolkit::Bitmap> half;
    };
    std::optional<Replacement> replacement_;
};

/// A picture that another thread scales from before it is asked for. Its end waits for that thread.
struct PrefetchedPicture {
    ScaleRequest request;
    std::future<toolkit::Bitmap> picture;
};

} // namespace zev
