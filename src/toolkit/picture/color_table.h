// The colours of a picture as a palette of at most 256.
#pragma once

#include <optional>

#include "toolkit/picture/bitmap.h"
#include "toolkit/picture/indexed_picture.h"

namespace toolkit {

/// The picture with exactly its own colours; none where they are more than 256.
[[nodiscard]] std::optional<IndexedPicture> exactlyIndexed(const Bitmap& picture);

/// The picture in at most 256 of its own colours: the frequent ones stay exactly as they are, the
/// others take one that is near. For formats that have no more.
[[nodiscard]] IndexedPicture nearlyIndexed(const Bitmap& picture);

} // namespace toolkit
