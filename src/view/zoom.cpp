#include "view/zoom.h"

#include <optional>

#include "form/trace.h"
#include "form/zevlin.h"
#include "toolkit/window/program.h"
#include "view/rebuild.h"
#include "view/zoom_run.h"

namespace zev {
namespace {

using FindStep = std::optional<std::int16_t> (*)(const ZoomLadder&, std::int16_t);

/// Ends a fit on the step of the ladder beside it, from which one more step in the wanted direction
/// passes the fit.
void leaveFit(Zevlin& form, FindStep findStep) {
    if (form.ZoomTable[0] == 0) return;
    if (const auto step = findStep(form.ZoomTable, form.ZoomLevels)) form.ZoomLevel = *step;
    form.ZoomTable[0] = 0;
    form.MFitScreenWidth.Checked = false;
    form.MFitScreenHeight.Checked = false;
}

void goTo(Zevlin& form, int step) {
    if (step < 1 || step > form.ZoomLevels) return toolkit::beep();
    form.ZoomLevel = static_cast<std::int16_t>(step);
    RebuildScreenImage(form);
}

} // namespace

void MZoomIn_Click(Zevlin& form) {
    procedure(form, "MZoomIn_Click", [&] {
        runZoom(form, [&] {
            leaveFit(form, stepBelowFit);
            goTo(form, form.ZoomLevel + 1);
        });
    });
}

void MZoomOut_Click(Zevlin& form) {
    procedure(form, "MZoomOut_Click", [&] {
        runZoom(form, [&] {
            leaveFit(form, stepAboveFit);
            goTo(form, form.ZoomLevel - 1);
        });
    });
}

} // namespace zev
