#include "design/move_marks.h"

#include "design/design_field.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "layout/field.h"
#include "toolkit/base/twips.h"

namespace zev {
namespace {

struct Step {
    float dX = 0;
    float dY = 0;
    int shift = 0;
};

float stretch(float direction) {
    if (direction == 0) return 1;
    return direction == 1 ? 1.001F : 0.999F;
}

void moveLabel(toolkit::Label& label, const Step& step) {
    const auto pixel = static_cast<float>(toolkit::twipsPerPixel());
    if (step.shift == toolkit::shift::shift) {
        label.Move(label.Left + step.dX * pixel, label.Top + step.dY * pixel);
    } else if (step.shift == toolkit::shift::ctrl) {
        label.Move(label.Left * stretch(step.dX), label.Top * stretch(step.dY));
    }
}

bool isAny(const toolkit::Label& /*field*/) { return true; }

void moveAll(toolkit::ControlArray<toolkit::Label>& fields, bool (*belongs)(const toolkit::Label&),
             const Step& step) {
    forEachField(fields, [&](int i) {
        if (belongs(fields[i])) moveLabel(fields[i], step);
    });
}

void moveKind(Zevlin& form, const Step& step) {
    if (!form.MCheck.Checked && !form.MCircle.Checked && !form.MText.Checked) return;
    form.DesignDirty = true;
    if (form.MCheck.Checked) {
        moveAll(form.AMark, isCheck, step);
    } else if (form.MCircle.Checked) {
        moveAll(form.AMark, isCircle, step);
    } else {
        moveAll(form.AText, isAny, step);
    }
}

} // namespace

void MoveMarks(Zevlin& form, float dX, float dY, int Shift) {
    Traceit(form, "MoveMarks");
    trapped(form, "Error in MoveMarks ", [&] { moveKind(form, {dX, dY, Shift}); });
}

} // namespace zev
