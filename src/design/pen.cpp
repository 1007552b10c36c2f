#include "design/pen.h"

#include <array>
#include <string_view>

#include "form/trace.h"
#include "form/zevlin.h"

namespace zev {
namespace {

using Group = std::array<toolkit::MenuItem*, 3>;

Group sizes(Zevlin& form) { return {&form.MSmall, &form.MMedium, &form.MLarge}; }
Group colors(Zevlin& form) { return {&form.MBlack, &form.MRed, &form.MBlue}; }
Group shapes(Zevlin& form) { return {&form.MCheck, &form.MCircle, &form.MText}; }

void choose(Zevlin& form, std::string_view name, const Group& group, std::size_t chosen) {
    Traceit(form, name);
    for (std::size_t i = 0; i < group.size(); ++i) group[i]->Checked = i == chosen;
}

/// An undo removes the last field of the checked shape, so it ends when another shape is chosen.
void chooseShape(Zevlin& form, std::string_view name, std::size_t chosen) {
    choose(form, name, shapes(form), chosen);
    form.UndoIndex = 0;
}

} // namespace

void MSmall_Click(Zevlin& form) { choose(form, "MSmall_Click", sizes(form), 0); }
void MMedium_Click(Zevlin& form) { choose(form, "MMedium_Click", sizes(form), 1); }
void MLarge_Click(Zevlin& form) { choose(form, "MLarge_Click", sizes(form), 2); }
void MBlack_Click(Zevlin& form) { choose(form, "MBlack_Click", colors(form), 0); }
void MRed_Click(Zevlin& form) { choose(form, "MRed_Click", colors(form), 1); }
void MBlue_Click(Zevlin& form) { choose(form, "MBlue_Click", colors(form), 2); }
void MCheck_Click(Zevlin& form) { chooseShape(form, "MCheck_Click", 0); }
void MCircle_Click(Zevlin& form) { chooseShape(form, "MCircle_Click", 1); }
void MText_Click(Zevlin& form) { chooseShape(form, "MText_Click", 2); }

} // namespace zev
