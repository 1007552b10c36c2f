// The card, set: ink and fields.
#pragma once

#include <string>
#include <vector>

#include <QtCore/QRectF>
#include <QtGui/QPainterPath>

#include "card_tool/item.h"
#include "toolkit/model/drawing.h"

namespace card_tool {

/// A filled outline, in full pixels.
struct InkShape {
    Ink ink = Ink::Black;
    QPainterPath path;
    QRectF bounds;
};

enum class MarkKind { Check, Circle };

/// Where a mark belongs: the middle of its printed box or letter, in full pixels.
struct MarkPlace {
    std::string id;
    MarkKind kind = MarkKind::Check;
    Ink ink = Ink::Black;
    double centreX = 0;
    double centreY = 0;
};

/// Where a text belongs: over its printed rule, in full pixels. All lengths are even.
struct TextPlace {
    std::string id;
    AreaSize size = AreaSize::Small;
    Ink ink = Ink::Black;
    int left = 0;
    int width = 0;
    int ruleTop = 0;
    int ruleWidth = 2;
};

enum class FieldKind { Mark, Text };

/// A field by its number, which counts from 1 and separately for marks and texts.
struct FieldNumber {
    FieldKind kind = FieldKind::Text;
    int number = 0;

    friend bool operator==(const FieldNumber&, const FieldNumber&) = default;
};

/// The card, set and ready to be printed: shapes from back to front, and the fields. Checkmarks
/// come before circles in the list of marks.
struct Sheet {
    std::vector<InkShape> shapes;
    /// The same as rectangles and words, in full pixels.
    toolkit::Drawing artwork;
    std::vector<MarkPlace> marks;
    std::vector<TextPlace> texts;
    /// The fields in the order in which TAB visits them: texts and checkmarks as they stand, then
    /// the circles. The last one leads to the first.
    std::vector<FieldNumber> walk;
};

} // namespace card_tool
