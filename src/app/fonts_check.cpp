#include "app/fonts_check.h"

#include <cstdlib>
#include <string>

#include "form/trace.h"
#include "form/zevlin.h"
#include "layout/initialize_run.h"
#include "toolkit/window/dialog.h"
#include "toolkit/window/program.h"

namespace zev {
namespace {

/// A line higher than this part of the card comes from a font that can't be right.
constexpr float defectiveHeight = 0.05F;

float smallTextPoints(const Zevlin& form) {
    if (form.mSmallerTextFont.Checked) return 9.5F;
    if (form.mLargerTextFont.Checked) return 12.5F;
    if (form.mBigTextFont.Checked) return 14;
    return 11;
}

void setSizes(Zevlin& form) {
    const float scale = form.CardScale;
    form.TextFontSize = {0, scale * smallTextPoints(form), scale * 14, scale * 18};
    form.MarkFontSize = {0, scale * 18, scale * 22, scale * 30};
}

/// Each size becomes the one that the font system really gives.
void snapSizes(Zevlin& form) {
    form.Testtext.SetFontName(form.TextFontName);
    for (std::size_t i = 1; i <= 3; ++i) {
        form.TextFontSize[i] = form.Testtext.SetFontSize(form.TextFontSize[i]);
    }
    form.Testtext.SetFontName(form.MarkFontName);
    for (std::size_t i = 1; i <= 3; ++i) {
        form.MarkFontSize[i] = form.Testtext.SetFontSize(form.MarkFontSize[i]);
    }
}

bool isDefective(const Zevlin& form) {
    return form.Testtext.TextHeight("|") / form.P1.Height > defectiveHeight;
}

void checkTextFont(Zevlin& form) {
    form.Testtext.Font = {};
    form.Testtext.SetFontName(form.TextFontName);
    form.Testtext.SetFontSize(form.TextFontSize[1]);
    if (!isDefective(form)) return;
    // Another size is no reason to take the program away from the card.
    if (form.Carried)
        return Traceit(form, "Error in Initialize step 1100: the text font is defective");
    toolkit::tell("The text font (" + form.TextFontName +
                      ") needed by ZEV is defective.  The program cannot run on this computer.",
                  toolkit::Icon::Exclamation);
    toolkit::endProgram(EXIT_FAILURE);
}

void chooseNarrowFont(Zevlin& form) {
    if (form.Testtext.SetFontName(form.NarrowFontName) == form.NarrowFontName) return;
    // The fallback alone never satisfies the second test: the text font is what remains.
    if (form.Testtext.SetFontName(form.FallbackFontName) == form.NarrowFontName) return;
    form.Testtext.SetFontName(form.TextFontName);
}

void checkNarrowFont(Zevlin& form) {
    form.Testtext.SetFontSize(form.TextFontSize[1]);
    if (!isDefective(form)) return;
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
    chooseNarrowFont(form);
    run.step = 1250;
    checkNarrowFont(form);
}

} // namespace zev
