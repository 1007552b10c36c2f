#include "layout/layout_text.h"

#include <algorithm>

#include "form/zevlin.h"
#include "layout/field.h"
#include "layout/layout_file.h"
#include "layout/pixels.h"
#include "layout/text_fields.h"
#include "layout/write_layout.h"
#include "toolkit/base/ansi.h"
#include "toolkit/window/screen.h"

namespace zev {
namespace {

using Labels = toolkit::ControlArray<toolkit::Label>;
using Colors = std::vector<toolkit::Color>;

/// The field's own colour, whatever a colour scheme paints it in.
toolkit::Color ownColor(const Labels& labels, const Colors& colors, int index) {
    const auto cell = static_cast<std::size_t>(index);
    return cell < colors.size() ? colors[cell] : labels[index].ForeColor;
}

int colorCode(const Zevlin& form, toolkit::Color color) {
    if (color == form.ColorRed) return 2;
    if (color == form.ColorBlue) return 3;
    return 1;
}

int sizeOf(const std::vector<std::int16_t>& sizes, int index) {
    const auto cell = static_cast<std::size_t>(index);
    return cell < sizes.size() ? sizes[cell] : 1;
}

FieldRecord recordOf(const Zevlin& form, const toolkit::Label& label, int index, float scale) {
    const auto pixels = [&](float twips) { return px(twips / scale, form.TwipsPerPixel); };
    FieldRecord record;
    record.number = index;
    record.left = pixels(label.Left);
    record.top = pixels(label.Top);
    record.width = pixels(label.Width);
    record.height = pixels(label.Height);
    return record;
}

std::vector<FieldRecord> markRecords(const Zevlin& form) {
    std::vector<FieldRecord> records;
    for (int i = 1; i <= form.AMark.UBound(); ++i) {
        FieldRecord record = recordOf(form, form.AMark[i], i, form.MarkScale);
        record.color = colorCode(form, ownColor(form.AMark, form.MarkColors, i));
        record.size = sizeOf(form.MarkSizes, i);
        // A hole, left by a deleted field, has no caption.
        const std::string& caption = form.AMark[i].Caption;
        record.symbol = caption.empty() ? 0 : toolkit::code(caption.front());
        records.push_back(record);
    }
    return records;
}

std::vector<FieldRecord> textRecords(const Zevlin& form) {
    std::vector<FieldRecord> records;
    for (int i = 1; i <= form.AText.UBound(); ++i) {
        const int size = sizeOf(form.TextSizes, i);
        toolkit::Label text = form.AText[i];
        if (isField(text)) text.Top += riseOf(form, size);
        FieldRecord record = recordOf(form, text, i, form.TextScale);
        record.color = colorCode(form, ownColor(form.AText, form.TextColors, i));
        record.size = size;
        records.push_back(record);
    }
    return records;
}

NamedSizes designSizes(const std::string& name, const std::array<float, 4>& sizes, float scale) {
    return {name, {sizes[1] / scale, sizes[2] / scale, sizes[3] / scale}};
}

FileOffsets pixelOffsets(const Zevlin& form) {
    FileOffsets offsets{};
    std::size_t cell = 0;
    for (std::size_t kind = 1; kind <= 3; ++kind) {
        for (std::size_t size = 1; size <= 3; ++size) {
            for (std::size_t side = 1; side <= 2; ++side) {
                const bool rises = kind == ink_kind::text && side == inkBottom;
                const float rise = rises ? riseOf(form, static_cast<int>(size)) : 0;
                offsets[cell++] = px(form.FontOffsets[kind][size][side] - rise, form.TwipsPerPixel);
            }
        }
    }
    return offsets;
}

LayoutDocument documentOf(const Zevlin& form) {
    LayoutDocument document;
    document.programVersion = form.ProgramVersion;
    document.twips = form.TwipsPerPixel;
    document.screenWidth = toolkit::screen().Width;
    document.textFont = designSizes(form.TextFontName, form.TextFontSize, form.CardScale);
    document.markFont = designSizes(form.MarkFontName, form.MarkFontSize, form.CardScale);
    document.suitFontName = form.SuitFontName;
    document.offsets = pixelOffsets(form);
    document.marks = markRecords(form);
    document.texts = textRecords(form);
    document.tabTable = &form.TabTable;
    return document;
}

} // namespace

std::string layoutText(const Zevlin& form) { return writeLayout(documentOf(form)); }

} // namespace zev
