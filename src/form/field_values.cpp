#include "form/field_values.h"

#include "form/zevlin.h"
#include "toolkit/base/number_text.h"

namespace zev {

using toolkit::numberText;

toolkit::Color fieldColor(const Zevlin& form, int colorCode) {
    if (colorCode == 2) return form.ColorRed;
    return colorCode == 3 ? form.ColorBlue : toolkit::black;
}

std::string readOut(int index, const toolkit::Label& field) {
    // Fractions of a twip say nothing to a reader.
    const auto twips = [](float value) { return numberText(toolkit::roundToInteger(value)); };
    return numberText(index) + ": (" + twips(field.Left) + "," + twips(field.Top) + ") - (" +
           twips(field.Left + field.Width) + "," + twips(field.Top + field.Height) + ")  [" +
           twips(field.Width) + "*" + twips(field.Height) + "]";
}

std::string placeText(const toolkit::Label& label) {
    return numberText(label.Left) + ", " + numberText(label.Top) + ", " + numberText(label.Width) +
           ", " + numberText(label.Height);
}

int ColorSchemeIndex(const Zevlin& form) {
    for (std::size_t i = 0; i < form.mcolorscheme.size(); ++i) {
        if (form.mcolorscheme[i].Checked) return static_cast<int>(i);
    }
    return 0;
}

} // namespace zev
