// Scaled pictures with all their rows finished, for tests.
#pragma once

#include <memory>

#include "view/card_picture.h"
#include "view/scale_picture.h"

namespace zev::test {

template <typename Picture>
toolkit::Bitmap scaled(const Picture& source, const ScaleRequest& request) {
    return *startScaled(std::make_shared<const Picture>(source), request).finished();
}

inline toolkit::Bitmap scaled(const CardPicture& source, const ScaleRequest& request) {
    return *source.startScaled(request).finished();
}

} // namespace zev::test
