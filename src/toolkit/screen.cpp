#include "toolkit/screen.h"

#include <cmath>

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

namespace toolkit {
namespace {

constexpr double twipsPerInch = 1440;
constexpr int twipsPerPixelAt96 = 15;

ScreenOverrides& overridesInForce() {
    static ScreenOverrides overrides;
    return overrides;
}

/// Read once: the layout would tear if the figure changed under a running program.
int measuredTwipsPerPixel() {
    static int measured = 0;
    const QScreen* primary = QGuiApplication::primaryScreen();
    if (measured == 0 && primary != nullptr)
        measured = static_cast<int>(std::lround(twipsPerInch / primary->logicalDotsPerInchX()));
    return measured > 0 ? measured : twipsPerPixelAt96;
}

TaskBar barOf(const QRect& rectangle) {
    return {static_cast<float>(rectangle.left()), static_cast<float>(rectangle.top()),
            static_cast<float>(rectangle.width()), static_cast<float>(rectangle.height())};
}

} // namespace

int twipsPerPixel() {
    const int overridden = overridesInForce().twipsPerPixel;
    return overridden > 0 ? overridden : measuredTwipsPerPixel();
}

int pixelsFromTwips(float twips) {
    return static_cast<int>(std::nearbyint(twips / static_cast<float>(twipsPerPixel())));
}

Screen screen() {
    const ScreenOverrides& overrides = overridesInForce();
    const auto twips = static_cast<float>(twipsPerPixel());
    Screen found{.TwipsPerPixelX = twips, .TwipsPerPixelY = twips};
    if (const QScreen* primary = QGuiApplication::primaryScreen(); primary != nullptr) {
        found.Width = static_cast<float>(primary->geometry().width()) * twips;
        found.Height = static_cast<float>(primary->geometry().height()) * twips;
    }
    if (overrides.width > 0) found.Width = overrides.width;
    if (overrides.height > 0) found.Height = overrides.height;
    return found;
}

/// Desktops tell only what is left free of the screen; the widest strip outside is the bar.
TaskBar taskBar() {
    if (overridesInForce().hasTaskBar) return overridesInForce().taskBar;
    const QScreen* primary = QGuiApplication::primaryScreen();
    if (primary == nullptr) return {};
    const QRect whole = primary->geometry();
    const QRect free = primary->availableGeometry();
    const int atLeft = free.left() - whole.left();
    const int atTop = free.top() - whole.top();
    const int atRight = whole.right() - free.right();
    const int atBottom = whole.bottom() - free.bottom();
    const int thickest = std::max({atLeft, atTop, atRight, atBottom});
    if (thickest <= 0) return {};
    if (thickest == atBottom)
        return barOf({whole.left(), free.bottom() + 1, whole.width(), atBottom});
    if (thickest == atTop) return barOf({whole.left(), whole.top(), whole.width(), atTop});
    if (thickest == atLeft) return barOf({whole.left(), whole.top(), atLeft, whole.height()});
    return barOf({free.right() + 1, whole.top(), atRight, whole.height()});
}

void overrideScreen(const ScreenOverrides& overrides) { overridesInForce() = overrides; }

} // namespace toolkit
