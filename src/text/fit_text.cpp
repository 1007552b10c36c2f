#include "text/fit_text.h"

#include "form/trace.h"
#include "form/zevlin.h"
#include "text/fit.h"
#include "toolkit/base/number_text.h"

namespace zev {
namespace {

float fullSize(const Zevlin& form, int index) {
    const auto cell = static_cast<std::size_t>(index);
    const int size = cell < form.TextSizes.size() ? form.TextSizes[cell] : 1;
    return form.TextFontSize[size == 2 || size == 3 ? static_cast<std::size_t>(size) : 1];
}

void fit(Zevlin& form, int index) {
    toolkit::Label& label = form.AText[index];
    toolkit::FontSpec regular = label.Font;
    regular.Name = form.TextFontName;
    regular.Size = fullSize(form, index);
    label.Font = form.Testtext.Font = fittedFont({.regular = regular,
                                                  .narrowFontName = form.NarrowFontName,
                                                  .smallSize = form.TextFontSize[1],
                                                  .width = label.Width,
                                                  .text = label.Caption},
                                                 toolkit::textWidth);
}

} // namespace

void FitText(Zevlin& form, const toolkit::TextBox& /*box*/, int index) {
    trapped(
        form, "Error in FitText: ", [&] { fit(form, index); },
        ", index=" + toolkit::numberText(index));
}

} // namespace zev
