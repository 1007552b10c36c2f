#include "toolkit/base/twips.h"

#include <cmath>

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

namespace toolkit {
namespace {

constexpr int twipsPerPixelAt96 = 15;

int overriddenTwipsPerPixel = 0;

/// Read once: the layout would tear if the figure changed under a running program.
int measuredTwipsPerPixel() {
    static int measured = 0;
    const QScreen* primary = QGuiApplication::primaryScreen();
    if (measured == 0 && primary != nullptr)
        measured = static_cast<int>(std::lround(twipsPerInch / primary->logicalDotsPerInchX()));
    return measured > 0 ? measured : twipsPerPixelAt96;
}

} // namespace

int twipsPerPixel() {
    return overriddenTwipsPerPixel > 0 ? overriddenTwipsPerPixel : measuredTwipsPerPixel();
}

int pixelsFromTwips(float twips) {
    return static_cast<int>(std::nearbyint(twips / static_cast<float>(twipsPerPixel())));
}

void overrideTwipsPerPixel(int twips) { overriddenTwipsPerPixel = twips; }

} // namespace toolkit
