#include "layout/text_fields.h"

#include <algorithm>
#include <string>

#include "form/field_values.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "layout/field.h"
#include "layout/initialize_run.h"
#include "layout/layout_file.h"
#include "toolkit/base/number_text.h"

namespace zev {
namespace {

constexpr toolkit::Color highlightYellow = toolkit::rgb(255, 255, 0);
/// Height in twips that the names line may take on the full-size card.
constexpr float namesLineHeight = 900;

struct TextDress {
    float points = 0;
    float correctionLeft = 0;
    float correctionTop = 0;
};

TextDress dressOf(Zevlin& form, const InitializeRun& run, int size, int index) {
    if (size == 3 && form.FirstBigText == 0) form.FirstBigText = static_cast<std::int16_t>(index);
    const std::size_t cell = size == 2 || size == 3 ? static_cast<std::size_t>(size) : 1;
    const auto& correction = run.corrections[ink_kind::text][cell];
    return {form.TextFontSize[cell], correction[inkLeft], correction[inkBottom]};
}

toolkit::FontSpec narrowed(const Zevlin& form, toolkit::FontSpec font) {
    font.Name = form.NarrowFontName;
    return font;
}

/// The height of a line, which must hold the normal and the narrow font.
float lineHeight(const Zevlin& form, const toolkit::FontSpec& font) {
    return std::max(toolkit::textHeight(font), toolkit::textHeight(narrowed(form, font)));
}

float fieldHeight(const Zevlin& form, const toolkit::FontSpec& font, int index) {
    const float height = lineHeight(form, font);
    if (index != form.FirstBigText) return height;
    const float fullWidth =
        static_cast<float>(form.PBase.width()) * static_cast<float>(form.TwipsPerPixel);
    return std::min(height, form.P1.Width / fullWidth * namesLineHeight);
}

std::string joinedValues(std::initializer_list<float> values, std::string_view separator) {
    std::string text;
    for (const float value : values) {
        if (!text.empty()) text += separator;
        text += toolkit::numberText(value);
    }
    return text;
}

std::string fontText(const toolkit::FontSpec& font) {
    return font.Name + ", " + toolkit::numberText(font.Size) + ", " +
           std::string(truthText(font.Bold));
}

void traceSpecs(Zevlin& form, const toolkit::Label& text) {
    const auto& card = form.P1;
    // The text's own font is the normal one here.
    const toolkit::FontSpec narrow = narrowed(form, text.Font);
    const auto& symbols = form.AMark.exists(1) ? form.AMark[1].Font : form.AMark[0].Font;
    Traceit(form, "    Init specs - p1 dims, mode:           " +
                      joinedValues({card.Left, card.Top, card.Width, card.Height}, " ") + ", " +
                      toolkit::numberText(toolkit::PictureBox::ScaleMode));
    Traceit(form, "    Init specs - AText dims:              " +
                      joinedValues({text.Left, text.Top, text.Width, text.Height}, " "));
    Traceit(form, "    Init specs - AText font,size,bold:    " + fontText(text.Font));
    Traceit(form,
            "    Init specs - font height norm,nar:    " +
                joinedValues({toolkit::textHeight(text.Font), toolkit::textHeight(narrow)}, ", "));
    Traceit(form, "    Init specs - testtext font,sz,bld,ht: " + fontText(narrow) + ", " +
                      toolkit::numberText(toolkit::textHeight(narrow)));
    Traceit(form, "    Init specs - symfont font,sz,bld,ht:  " + fontText(symbols) + ", " +
                      toolkit::numberText(toolkit::textHeight(symbols)));
    Traceit(
        form,
        "    Init specs - small,med,lg font sizes: " +
            joinedValues({form.TextFontSize[1], form.TextFontSize[2], form.TextFontSize[3]}, ", "));
}

/// Corrections, where there are any, are made for the present letters.
float riseAtReading(const Zevlin& form, int size) {
    return form.TwipsPerPixel == form.OriginalTwips ? riseOf(form, size) : 0;
}

void fillText(Zevlin& form, const FieldRecord& record, const TextDress& dress) {
    const int index = record.number;
    toolkit::Label& text = form.AText[index];
    text.ForeColor = fieldColor(form, record.color);
    text.BackColor = toolkit::white;
    text.Font = {.Name = form.TextFontName,
                 .Size = dress.points,
                 .Bold = form.mBold.Checked || dress.points > form.TextFontSize[1] + 2,
                 .Italic = false};
    text.Alignment = toolkit::Alignment::Center;
    text.Height = fieldHeight(form, text.Font, index);
    if (takeSpecsTurn(form)) traceSpecs(form, text);
    const float scale = form.TextScale * static_cast<float>(form.TwipsPerPixel);
    const float left = record.left * scale + dress.correctionLeft;
    const float top = record.top * scale + dress.correctionTop - riseAtReading(form, record.size);
    text.Move(left, top, record.width * scale, text.Height);
    placeHighlight(form, index);
    text.Visible = true;
    form.P1Stack.sendToBack(text);
    cellOf(form.TextDefaultColors, index) = text.ForeColor;
}

void buildText(Zevlin& form, const InitializeRun& run, LayoutReader& layout, int index) {
    if (!form.AText.exists(index)) {
        form.AText.Load(index);
        form.Highlight.Load(index);
    }
    const FieldRecord record = layout.readText();
    cellOf(form.TextSizes, record.number) = static_cast<std::int16_t>(record.size);
    const TextDress dress = dressOf(form, run, record.size, index);
    // A record out of sequence leaves a hole: the other fields keep their numbers.
    if (record.number == index) return fillText(form, record, dress);
    makeHole(form.AText, index);
    makeHole(form.Highlight, index);
}

/// From the back: highlights, texts, marks, so that a set mark wins over a text area.
void sendHighlightsToBack(Zevlin& form) {
    for (int i = 1; i <= form.Highlight.UBound(); ++i) form.P1Stack.sendToBack(form.Highlight[i]);
}

} // namespace

void buildTexts(Zevlin& form, InitializeRun& run, LayoutReader& layout) {
    run.step = 2100;
    const int count = layout.readCount();
    form.FirstBigText = 0;
    form.AText.UnloadAbove(count);
    form.Highlight.UnloadAbove(count);
    form.TextSizes.resize(1);
    form.TextDefaultColors.resize(1);
    growTo(form.TextSizes, std::max(0, count));
    growTo(form.TextDefaultColors, std::max(0, count));
    form.TextColors.clear();
    run.step = 2200;
    for (int i = 1; i <= count; ++i) buildText(form, run, layout, i);
    sendHighlightsToBack(form);
    // The names line needs a field: after a record out of sequence the number may be a hole's.
    const bool live = form.FirstBigText > 0 && isField(form.AText[form.FirstBigText]);
    form.NamesField = live ? form.FirstBigText : std::int16_t{0};
}

float riseOf(const Zevlin& form, int size) {
    if (size == 2 || size == 3) return 0;
    const toolkit::FontSpec present{.Name = form.TextFontName, .Size = form.TextFontSize[1]};
    toolkit::FontSpec usual = present;
    usual.Size = toolkit::fontSizeGiven(form.CardScale * usualTextPoints);
    return std::max(0.0F, toolkit::textAscent(present) - toolkit::textAscent(usual));
}

void placeHighlight(Zevlin& form, int index) {
    const toolkit::Label& text = form.AText[index];
    toolkit::Label& highlight = form.Highlight[index];
    const auto twips = static_cast<float>(form.TwipsPerPixel);
    highlight.Caption = "    ";
    highlight.Font = text.Font;
    highlight.Font.Size = text.Font.Size / 2;
    highlight.BackColor = highlightYellow;
    highlight.BackStyle = toolkit::BackStyle::Opaque;
    highlight.Move(text.Left + 2 * twips, text.Top + twips, text.Width - 4 * twips,
                   0.67F * text.Height);
}

} // namespace zev
