#include "design/auto_adjust.h"

#include <array>
#include <string>

#include "design/design_field.h"
#include "form/field_values.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "layout/field.h"
#include "toolkit/base/number_text.h"
#include "toolkit/window/dialog.h"
#include "view/image_size.h"

namespace zev {
namespace {

/// The fonts alone tell: on the usual screen all circles are of the medium size.
std::size_t sizeOfMark(const Zevlin& form, const toolkit::Label& mark) {
    if (mark.Font.Size == form.MarkFontSize[3]) return 3;
    return mark.Font.Size == form.MarkFontSize[2] ? 2 : 1;
}

/// A full field of the card before may have left a smaller font behind, so the layout tells.
std::size_t sizeOfText(Zevlin& form, int index) {
    const auto size = cellOf(form.TextSizes, index);
    return size == 2 || size == 3 ? static_cast<std::size_t>(size) : 1;
}

void adjustCheck(Zevlin& form, const SearchedPicture& picture, toolkit::Label& mark) {
    const std::size_t size = sizeOfMark(form, mark);
    const auto& offsets = form.FontOffsets[ink_kind::check][size];
    float right = 0;
    const float down = FindHVAdj(form, picture,
                                 {.x = mark.Left + offsets[inkLeft],
                                  .width = mark.Width,
                                  .y = mark.Top + offsets[inkBottom],
                                  .size = static_cast<int>(size)},
                                 right);
    // It begins a pixel inside its box, two above the lower side.
    mark.Move(mark.Left + right + picture.pixels(1), mark.Top + down - picture.pixels(2));
}

void adjustCircle(Zevlin& form, SearchedPicture& picture, toolkit::Label& mark) {
    const std::size_t size = sizeOfMark(form, mark);
    const auto& offsets = form.FontOffsets[ink_kind::circle][size];
    const auto& others = form.CircleAdjust[size];
    const WayToInk way = FindCircleAdj(form, picture,
                                       {.left = mark.Left + offsets[inkLeft],
                                        .right = mark.Left + others[1],
                                        .top = mark.Top + others[2],
                                        .bottom = mark.Top + offsets[inkBottom]});
    mark.Move(mark.Left + way.right, mark.Top + way.down);
}

/// How far a text stands above its line, twips.
float heightAboveLine(const SearchedPicture& picture, std::size_t size) {
    // That of medium texts is in twips, as layouts rely on: a third of a pixel on most screens.
    if (size == 2) return 5;
    return picture.pixels(size == 3 ? 6 : 4);
}

void adjustText(Zevlin& form, const SearchedPicture& picture, int index) {
    toolkit::Label& text = form.AText[index];
    const std::size_t size = sizeOfText(form, index);
    float right = verticalOnly;
    const float down = FindHVAdj(form, picture,
                                 {.x = text.Left,
                                  .width = text.Width,
                                  .y = text.Top + form.FontOffsets[ink_kind::text][size][inkBottom],
                                  .size = static_cast<int>(size)},
                                 right);
    text.Top = picture.cutToPixels(text.Top) + down - heightAboveLine(picture, size);
}

/// The searches erase what they find, so they read a copy.
SearchedPicture copyOfCard(const Zevlin& form) {
    return {form.P1.Picture ? *form.P1.Picture : toolkit::Bitmap(), form.TwipsPerPixel,
            form.CardScale};
}

void adjustAll(Zevlin& form) {
    form.P1.Visible = false;
    form.MousePointer = toolkit::MousePointer::Hourglass;
    SearchedPicture picture = copyOfCard(form);
    forEachField(form.AMark, [&](int i) {
        toolkit::Label& mark = form.AMark[i];
        if (isCheck(mark)) return adjustCheck(form, picture, mark);
        adjustCircle(form, picture, mark);
    });
    forEachField(form.AText, [&](int i) { adjustText(form, picture, i); });
    RestoreBackgroundPicture(form, Rescale::Always);
    form.DesignDirty = true;
    form.P1.Visible = true;
    form.MousePointer = toolkit::MousePointer::Default;
}

} // namespace

void MAutoAdjust_Click(Zevlin& form) {
    Traceit(form, "MAutoAdjust_Click");
    try {
        adjustAll(form);
    } catch (const std::exception&) {
        const auto failure = toolkit::currentFailure();
        traceFailure(form, "Error in MAutoAdjust ", failure);
        toolkit::tell("MAutoAdjust: " + toolkit::numberText(failure.number()) + ", " +
                          failure.description(),
                      toolkit::Icon::None);
    }
}

float FindHVAdj(Zevlin& form, const SearchedPicture& picture, const LineSearch& search,
                float& HAdj) {
    Traceit(form, "FindHVAdj");
    float down = 0;
    trapped(form, "Error in FindHVAdj ", [&] { down = findLine(picture, search, HAdj); });
    return down;
}

WayToInk FindCircleAdj(Zevlin& form, SearchedPicture& picture, const CircleEdges& circle) {
    Traceit(form, "FindCircleAdj");
    int marker = 0;
    try {
        return findWord(picture, circle, marker);
    } catch (const std::exception&) {
        Traceit(form, "Error #" + toolkit::numberText(toolkit::currentFailure().number()) + " at " +
                          toolkit::numberText(marker) + " in FindCircleAdj");
    }
    return {};
}

} // namespace zev
