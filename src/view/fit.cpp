#include "view/fit.h"

#include "form/time_stamp.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "view/rebuild.h"
#include "view/task_bar.h"
#include "view/zoom_run.h"

namespace zev {
namespace {

/// Pixels that a fit to the height keeps free.
constexpr float heightMargin = 8;

float widthScale(Zevlin& form) {
    const auto bar = GetTaskBarSize(form);
    const auto twips = static_cast<float>(form.TwipsPerPixel);
    const float sideBar = bar.Top > 0 || bar.Width > bar.Height ? 0 : bar.Width * twips;
    return (toolkit::screen().Width - sideBar - form.FrameWidth) /
           (static_cast<float>(form.PBase.width()) * twips);
}

float heightScale(Zevlin& form) {
    const auto bar = GetTaskBarSize(form);
    const auto twips = static_cast<float>(form.TwipsPerPixel);
    const float bottomBar = bar.Top > 0 ? bar.Height * twips : 0;
    return (toolkit::screen().Height - bottomBar - form.FrameHeight - heightMargin * twips) /
           (static_cast<float>(form.PBase.height()) * twips);
}

void rebuildUnlessInitializing(Zevlin& form) {
    if (!form.Initializing) RebuildScreenImage(form);
}

void toggle(Zevlin& form, toolkit::MenuItem& chosen, toolkit::MenuItem& other) {
    if (form.Initializing) return;
    chosen.Checked = !chosen.Checked;
    other.Checked = false;
}

void turnFitOff(Zevlin& form) {
    form.ZoomTable[0] = 0;
    rebuildUnlessInitializing(form);
}

void fitWidth(Zevlin& form) {
    toggle(form, form.MFitScreenWidth, form.MFitScreenHeight);
    if (!form.MFitScreenWidth.Checked) return turnFitOff(form);
    const float scale = widthScale(form);
    if (scale == form.ZoomTable[0]) return;
    form.ZoomTable[0] = scale;
    rebuildUnlessInitializing(form);
}

void fitHeight(Zevlin& form) {
    toggle(form, form.MFitScreenHeight, form.MFitScreenWidth);
    if (!form.MFitScreenHeight.Checked) return turnFitOff(form);
    form.ZoomTable[0] = heightScale(form);
    rebuildUnlessInitializing(form);
}

} // namespace

void MFitScreenWidth_Click(Zevlin& form) {
    Traceit(form, "MFitScreenWidth");
    trapped(form, "Error in MFitScreenWidth_Click: #", [&] {
        runZoom(form, [&] { fitWidth(form); });
        MakeTimeStamp(form);
    });
}

void MFitScreenHeight_Click(Zevlin& form) {
    procedure(form, "MFitScreenHeight_Click", [&] {
        runZoom(form, [&] { fitHeight(form); });
        MakeTimeStamp(form);
    });
}

} // namespace zev
