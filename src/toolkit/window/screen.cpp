#include "toolkit/window/screen.h"

#include "toolkit/base/twips.h"
#include "toolkit/window/qt_screen.h"
#include "toolkit/window/qt_task_bar.h"

namespace toolkit {
namespace {

ScreenOverrides& overridesInForce() {
    static ScreenOverrides overrides;
    return overrides;
}

TaskBar barOf(const QRect& found) {
    const QRect bar = found.translated(-screenOrigin());
    return {static_cast<float>(bar.left()), static_cast<float>(bar.top()),
            static_cast<float>(bar.width()), static_cast<float>(bar.height())};
}

} // namespace

bool pointerStays() { return overridesInForce().pointerStays; }

Screen screen() {
    const ScreenOverrides& overrides = overridesInForce();
    const auto twips = static_cast<float>(twipsPerPixel());
    Screen found{.TwipsPerPixelX = twips, .TwipsPerPixelY = twips};
    if (const QScreen* present = presentScreen(); present != nullptr) {
        found.Width = static_cast<float>(present->geometry().width()) * twips;
        found.Height = static_cast<float>(present->geometry().height()) * twips;
    }
    if (overrides.width > 0) found.Width = overrides.width;
    if (overrides.height > 0) found.Height = overrides.height;
    return found;
}

TaskBar taskBar() {
    if (overridesInForce().hasTaskBar) return overridesInForce().taskBar;
    const QScreen* present = presentScreen();
    if (present == nullptr) return {};
    const QRect bar = barBeside(present->geometry(), present->availableGeometry());
    if (bar.isEmpty()) return {};
    return barOf(bar);
}

void overrideScreen(const ScreenOverrides& overrides) {
    overridesInForce() = overrides;
    overrideTwipsPerPixel(overrides.twipsPerPixel);
}

} // namespace toolkit
