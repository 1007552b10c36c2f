#include "app/place_window.h"

#include <algorithm>

#include "form/zevlin.h"
#include "layout/initialize_run.h"
#include "view/task_bar.h"

namespace zev {
namespace {

/// The part of the screen that a window may take, in twips.
struct Available {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;
};

Available availableArea(Zevlin& form) {
    const auto screen = toolkit::screen();
    const auto bar = GetTaskBarSize(form);
    const auto twips = static_cast<float>(form.TwipsPerPixel);
    Available area{.left = 0, .top = 0, .width = screen.Width, .height = screen.Height};
    if (bar.Width > bar.Height) {
        area.height -= bar.Height * twips;
        if (bar.Top <= 0) area.top = bar.Height * twips;
    } else {
        area.width -= bar.Width * twips;
        if (bar.Left <= 0) area.left = bar.Width * twips;
    }
    return area;
}

void moveWindow(Zevlin& form, const Available& area, float width, float height) {
    form.Width = width;
    form.Height = height;
    form.Left = std::max(0.0F, area.left + (area.width - width) / 2);
    form.Top = std::max(form.Top, area.top);
}

} // namespace

void placeWindow(Zevlin& form, InitializeRun& run) {
    const Available area = availableArea(form);
    form.P1.Move(0, 0);
    const float width = std::min(area.width, form.P1.Width + form.FrameWidth);
    const float height = std::min(area.height, form.P1.Height + form.FrameHeight);
    run.step = 800;
    if (!form.Printing && !form.FillsScreen) moveWindow(form, area, width, height);
}

} // namespace zev
