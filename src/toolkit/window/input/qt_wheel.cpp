#include "toolkit/window/input/qt_wheel.h"

#include <QtGui/QWheelEvent>

#include "toolkit/base/qt_geometry.h"
#include "toolkit/window/input/qt_mouse_input.h"

namespace toolkit {
namespace {

constexpr int notch = 120;

} // namespace

void Wheel::turn(QWheelEvent& event) {
    event.accept();
    const int turned = event.angleDelta().y();
    // To the side, or where a touchpad begins and ends: no change of direction.
    if (turned == 0) return;
    if ((turned < 0) != (turned_ < 0)) turned_ = 0;
    turned_ += turned;
    const QPoint place = pixelAt(event.globalPosition());
    const int keys = shiftOf(event.modifiers());
    for (; turned_ <= -notch || turned_ >= notch; turned_ -= turned_ < 0 ? -notch : notch) {
        const int rotation = turned_ < 0 ? -notch : notch;
        dispatcher_.run([&] {
            if (form_.MouseWheel) form_.MouseWheel(keys, rotation, place.x(), place.y());
        });
    }
}

} // namespace toolkit
