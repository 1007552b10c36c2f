#include "app/fonts_check.h"

#include <cstdlib>
#include <string>

#include "form/trace.h"
#include "form/zevlin.h"
#include "layout/initialize_run.h"
#include "layout/text_fields.h"
#include "toolkit/window/dialog.h"
#include "toolkit/window/program.h"

namespace zev {
namespace {

/// A font whose lines are higher than this part of the card is defective.
constexpr float defectiveHeight = 0.05F;

float smallTextPoints(const Zevlin& form) {
    if (form.mSmallerTextFont.Checked) return 9.5F;
    if (form.mLargerTextFont.Checked) return 12.5F;
    if (form.mBigTextFont.Checked) return 14;
    return usualTextPoints;
}

void setSizes(Zevlin& form) {
    const float scale = form.CardScale;
    form.TextFontSize = {0, scale * smallTextPoints(form), scale * 14, scale * 18};
    form.MarkFontSize = {0, scale * 18, scale * 22, scale * 30};
}

/// Each size becomes the one that the font system gives for it.
void snapSizes(Zevlin& form) {
    for (auto* sizes : {&form.TextFontSize, &form.MarkFontSize})
        for (std::size_t i = 1; i <= 3; ++i) (*sizes)[i] = toolkit::fontSizeGiven((*sizes)[i]);
}

bool isDefective(const Zevlin& form, const std::string& fontName) {
    const toolkit::FontSpec font{.Name = fontName, .Size = form.TextFontSize[1]};
    return toolkit::textHeight(font) / form.P1.Height > defectiveHeight;
}

void checkTextFont(Zevlin& form) {
    if (!isDefective(form, form.TextFontName)) return;
    // While a card is open, the program must not end over another size.
    if (form.Carried)
        return Traceit(form, "Error in Initialize step 1100: the text font is defective");
    toolkit::tell("The text font (" + form.TextFontName +
                      ") needed by ZEV is defective.  The program cannot run on this computer.",
                  toolkit::Icon::Exclamation);
    toolkit::endProgram(EXIT_FAILURE);
}

/// The name of the font to test in place of the narrow one.
std::string narrowFontFound(const Zevlin& form) {
    if (toolkit::fontNameGiven(form.NarrowFontName) == form.NarrowFontName)
        return form.NarrowFontName;
    // True only where the fallback's name is the narrow font's: as a rule the text font is what
    // remains.
    if (toolkit::fontNameGiven(form.FallbackFontName) == form.NarrowFontName)
        return form.FallbackFontName;
    return form.TextFontName;
}

void checkNarrowFont(Zevlin& form, const std::string& fontName) {
    if (!isDefective(form, fontName)) return;
    Traceit(form, "Error in Initialize step 1250: the narrow text font is defective, using the "
                  "normal text font instead");
    form.NarrowFontName = form.TextFontName;
}

} // namespace

void checkFonts(Zevlin& form, InitializeRun& run) {
    run.step = 900;
    setSizes(form);
    run.step = 1000;
    snapSizes(form);
    run.step = 1100;
    checkTextFont(form);
    run.step = 1200;
    const std::string narrow = narrowFontFound(form);
    run.step = 1250;
    checkNarrowFont(form, narrow);
}

} // namespace zev
