// A picture as what it is drawn of, which every device paints as sharply as it can.
#pragma once

#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "toolkit/base/color.h"
#include "toolkit/model/label.h"
#include "toolkit/picture/bitmap.h"

namespace toolkit {

/// Places and sizes in pixels of the picture, on a page in points.
struct FilledRectangle {
    Color color = black;
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    friend bool operator==(const FilledRectangle&, const FilledRectangle&) = default;
};

/// Characters of the code page side by side, unkerned. Em and place in pixels of the picture, on a
/// page in points.
struct Words {
    Color color = black;
    std::string fontName;
    bool bold = false;
    double em = 0;
    double left = 0;
    double baseline = 0;
    std::string text;
    /// To which the text is fitted where its font has other measures; 0 leaves it as it is.
    double width = 0;

    friend bool operator==(const Words&, const Words&) = default;
};

using DrawnItem = std::variant<FilledRectangle, Words>;

/// On white paper, from back to front.
struct Drawing {
    int width = 0;
    int height = 0;
    std::vector<DrawnItem> items;
};

/// The card as it stands: its picture, the artwork that the picture shows if it is known, and the
/// labels over it. Sizes in pixels.
struct CardRecording {
    int width = 0;
    int height = 0;
    Color paper = white;
    std::shared_ptr<const Bitmap> picture{};  ///< at (0, 0), pixel by pixel
    std::shared_ptr<const Drawing> artwork{}; ///< as wide as the picture
    std::vector<Label> labels{};              ///< the visible ones, from back to front; in twips
};

} // namespace toolkit
