#include "help/menu_tooltips.h"

#include "form/trace.h"
#include "form/zevlin.h"
#include "help/description_place.h"
#include "help/menu_descriptions.h"
#include "toolkit/text/font.h"

namespace zev {
namespace {

/// Pixels.
constexpr float gap = 4;
constexpr float narrowest = 100;

/// Of the text box, as high as its text.
float heightAt(const toolkit::TextBox& box, float width, float pixel) {
    const float margins = 2 * static_cast<float>(box.Margin) * pixel;
    const auto lines = toolkit::wrappedLines(box.Font, box.Text, width - margins).size();
    return static_cast<float>(lines) * toolkit::textHeight(box.Font) + margins;
}

/// False if there is no room for it.
bool placePopHelp(Zevlin& form, const toolkit::MenuSelection& selection) {
    const auto pixel = static_cast<float>(form.TwipsPerPixel);
    const auto place = placeBeside(
        {selection.Left, selection.Top, selection.Width, selection.Height}, selection.RowTop,
        {.width = form.ScaleWidth(),
         .height = form.ScaleHeight(),
         .gap = gap * pixel,
         .narrowest = narrowest * pixel},
        [&](float width) { return heightAt(form.PopHelp, width, pixel); });
    if (place) form.PopHelp.Move(place->left, place->top, place->width, place->height);
    return place.has_value();
}

} // namespace

void InitMenuDescriptions(Zevlin& form) {
    procedure(form, "InitMenuDescriptions", [&] { form.Lmenus.List = menuDescriptions(); });
}

std::string Description(const Zevlin& form, std::string_view caption) {
    return descriptionIn(form.Lmenus.List, caption);
}

void showDescription(Zevlin& form, const toolkit::MenuSelection& selection) {
    form.PopHelp.Text.clear();
    form.PopHelp.Visible = false;
    if (selection.Caption.empty()) return;
    form.PopHelp.Text = Description(form, selection.Caption);
    form.PopHelp.Visible = !form.PopHelp.Text.empty() && placePopHelp(form, selection);
}

} // namespace zev
