#include "toolkit/screen.h"

#include <cmath>

#include <QtGui/QGuiApplication>

#include "toolkit/qt_screen.h"
#include "toolkit/qt_task_bar.h"
#include "toolkit/qt_window.h"

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

TaskBar barOf(const QRect& found) {
    const QRect bar = found.translated(-screenOrigin());
    return {static_cast<float>(bar.left()), static_cast<float>(bar.top()),
            static_cast<float>(bar.width()), static_cast<float>(bar.height())};
}

} // namespace

const QScreen* presentScreen() {
    if (currentWindow() == nullptr) return QGuiApplication::primaryScreen();
    const QWidget& form = currentWindow()->form();
    const QScreen* underCentre =
        form.isVisible() ? QGuiApplication::screenAt(form.frameGeometry().center()) : nullptr;
    return underCentre == nullptr ? form.screen() : underCentre;
}

QPoint screenOrigin() {
    const QScreen* present = presentScreen();
    return present == nullptr ? QPoint() : present->geometry().topLeft();
}

bool pointerStays() { return overridesInForce().pointerStays; }

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

void overrideScreen(const ScreenOverrides& overrides) { overridesInForce() = overrides; }

} // namespace toolkit
