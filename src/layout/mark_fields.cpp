#include "layout/mark_fields.h"

#include <algorithm>
#include <string>

#include "form/field_values.h"
#include "form/zevlin.h"
#include "layout/calibration.h"
#include "layout/field.h"
#include "layout/initialize_run.h"
#include "layout/layout_file.h"
#include "layout/version.h"
#include "toolkit/base/ansi.h"

namespace zev {
namespace {

constexpr int checkCode = toolkit::code(mark_symbol::check);
constexpr int squareCode = toolkit::code(mark_symbol::square);
constexpr int circleCode = toolkit::code(mark_symbol::circle);

/// How large a mark is drawn, and which corrections go with it.
struct MarkDress {
    float points = 1;
    float correctionLeft = 0;
    float correctionTop = 0;
};

MarkDress dressOfSize(const Zevlin& form, const InitializeRun& run, int kind, std::size_t size) {
    const auto& correction = run.corrections[static_cast<std::size_t>(kind)][size];
    return {form.MarkFontSize[size], correction[inkLeft], correction[inkBottom]};
}

MarkDress dressOf(Zevlin& form, const InitializeRun& run, const FieldRecord& record, int symbol,
                  int index) {
    const int kind =
        symbol == checkCode || symbol == squareCode ? ink_kind::check : ink_kind::circle;
    // On the usual screen every circle is drawn at the medium size.
    if (record.size == 2 || (symbol == circleCode && form.TwipsPerPixel == 15)) {
        return dressOfSize(form, run, kind, 2);
    }
    if (record.size == 3) {
        if (form.FirstLargeMark == 0) form.FirstLargeMark = static_cast<std::int16_t>(index);
        return dressOfSize(form, run, kind, 3);
    }
    if (record.size == 1) return dressOfSize(form, run, kind, 1);
    return {static_cast<float>(std::max(1, record.size)), 0, 0};
}

std::string symbolText(int symbol) {
    if (symbol == 0) return {};
    if (symbol < 0 || symbol > 255) {
        throw toolkit::RunTimeError(toolkit::Failure::InvalidProcedureCall);
    }
    return std::string(1, static_cast<char>(static_cast<unsigned char>(symbol)));
}

void fillMark(Zevlin& form, const FieldRecord& record, int symbol, const MarkDress& dress) {
    toolkit::Label& mark = form.AMark[record.number];
    mark.Font = {.Name = form.MarkFontName,
                 .Size = dress.points,
                 .Bold = symbol == checkCode,
                 .Italic = false};
    mark.Caption = symbolText(symbol);
    mark.ForeColor = fieldColor(form, record.color);
    mark.BackColor = toolkit::white;
    mark.Clips = false;
    const float scale = form.MarkScale * static_cast<float>(form.TwipsPerPixel);
    mark.Move(record.left * scale + dress.correctionLeft, record.top * scale + dress.correctionTop,
              toolkit::textWidth(mark.Font, mark.Caption), toolkit::textHeight(mark.Font));
}

void buildMark(Zevlin& form, const InitializeRun& run, LayoutReader& layout, int index) {
    if (!form.AMark.exists(index)) form.AMark.Load(index);
    growTo(form.MarkSizes, index);
    growTo(form.MarkDefaultColors, index);
    const FieldRecord record = layout.readMark(!isBelow(form.VersionSeen, switchesVersion));
    const int symbol = repairedSymbol(record.symbol, form.mFillIn.Checked);
    cellOf(form.MarkSizes, record.number) = static_cast<std::int16_t>(record.size);
    const MarkDress dress = dressOf(form, run, record, symbol, index);
    // A record out of sequence leaves a hole: the other fields keep their numbers.
    if (record.number == index) {
        fillMark(form, record, symbol, dress);
    } else {
        makeHole(form.AMark, index);
    }
    const toolkit::Label& mark = form.AMark[index];
    if (index == form.FirstLargeMark) {
        form.LargeMarkBottom = mark.Top + mark.Height - 8 * static_cast<float>(form.TwipsPerPixel);
    }
    form.P1Stack.bringToFront(form.AMark[index]);
    cellOf(form.MarkDefaultColors, index) = mark.ForeColor;
}

} // namespace

void buildMarks(Zevlin& form, InitializeRun& run, LayoutReader& layout) {
    run.step = 1900;
    const int count = layout.readCount();
    form.FirstLargeMark = 0;
    form.LargeMarkBottom = 0;
    form.AMark.UnloadAbove(count);
    form.MarkSizes.resize(1);
    form.MarkDefaultColors.resize(1);
    form.MarkColors.clear();
    run.step = 2000;
    for (int i = 1; i <= count; ++i) buildMark(form, run, layout, i);
}

} // namespace zev
