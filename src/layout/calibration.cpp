#include "layout/calibration.h"

#include <cmath>

#include "form/trace.h"
#include "form/zevlin.h"
#include "layout/ink.h"
#include "layout/layout_file.h"
#include "toolkit/picture/bitmap.h"
#include "toolkit/text/draw_text.h"

namespace zev {
namespace {

/// A picture as large as the caption, with the caption printed in its top left corner.
toolkit::Bitmap printedCaption(const toolkit::Label& label, int twipsPerPixel) {
    const auto pixels = [&](float twips) {
        return static_cast<int>(std::ceil(twips / static_cast<float>(twipsPerPixel)));
    };
    toolkit::Bitmap picture(pixels(toolkit::textWidth(label.Font, label.Caption)),
                            pixels(toolkit::textHeight(label.Font)));
    toolkit::drawText(picture, 0, 0, label.Font, label.ForeColor, label.Caption);
    return picture;
}

char checkCharacter(const Zevlin& form) {
    return form.mFillIn.Checked ? mark_symbol::square : mark_symbol::check;
}

void measureMark(Zevlin& form, int kind, int size, char symbol) {
    toolkit::Label& mark = form.AMark[0];
    mark.Caption = symbol;
    mark.Font.Bold = symbol == mark_symbol::check;
    const auto cell = static_cast<std::size_t>(size);
    mark.Font.Size = form.MarkFontSize[cell];
    auto& offsets = form.FontOffsets[static_cast<std::size_t>(kind)][cell];
    InkMeasure measure{.left = offsets[inkLeft], .bottom = offsets[inkBottom]};
    if (kind == ink_kind::circle) measure.right = measure.top = -1;
    if (Calibrate(form, mark, measure)) {
        offsets[inkLeft] = measure.left;
        offsets[inkBottom] = measure.bottom;
    }
    if (kind != ink_kind::circle) return;
    // Without ink both stay -1: unmeasured.
    form.CircleAdjust[cell][1] = measure.right;
    form.CircleAdjust[cell][2] = measure.top;
}

void measureText(Zevlin& form, int size) {
    toolkit::Label& text = form.AText[0];
    const auto cell = static_cast<std::size_t>(size);
    text.Font.Size = form.TextFontSize[cell];
    auto& offsets = form.FontOffsets[ink_kind::text][cell];
    InkMeasure measure{.left = offsets[inkLeft], .bottom = offsets[inkBottom]};
    if (!Calibrate(form, text, measure)) return;
    offsets[inkLeft] = measure.left;
    offsets[inkBottom] = measure.bottom;
}

void measureAll(Zevlin& form) {
    form.AMark[0].Font.Name = form.MarkFontName;
    const char check = checkCharacter(form);
    measureMark(form, ink_kind::check, 1, check);
    measureMark(form, ink_kind::circle, 1, mark_symbol::circle);
    measureMark(form, ink_kind::circle, 2, mark_symbol::circle);
    measureMark(form, ink_kind::check, 2, check);
    measureMark(form, ink_kind::check, 3, check);
    measureMark(form, ink_kind::circle, 3, mark_symbol::circle);
    form.AMark[0].Caption.clear();
    form.AText[0].Font.Name = form.TextFontName;
    form.AText[0].Caption = "[";
    for (int size = 1; size <= 3; ++size) measureText(form, size);
    form.AText[0].Caption.clear();
}

} // namespace

bool Calibrate(Zevlin& form, const toolkit::Label& label, InkMeasure& measure) {
    bool found = false;
    Traceit(form, "Calibrate");
    trapped(form, "Error in Calibrate ", [&] {
        const auto ink = findInk(printedCaption(label, form.TwipsPerPixel), toolkit::white);
        if (!ink) return;
        const auto twips = [&](int pixels) {
            return static_cast<float>(pixels * form.TwipsPerPixel);
        };
        measure.left = twips(ink->left);
        measure.bottom = twips(ink->bottom);
        if (measure.right < 0) measure.right = twips(ink->right);
        if (measure.top < 0) measure.top = twips(ink->top);
        found = true;
    });
    return found;
}

void GetOffsets(Zevlin& form) {
    Traceit(form, "GetOffsets");
    trapped(form, "Error in GetOffsets ", [&] { measureAll(form); });
}

} // namespace zev
