#include "toolkit/window/control/qt_pointer.h"

#include <string>

#include <QtGui/QCursor>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

#include "toolkit/picture/embedded_file.h"

namespace toolkit {
namespace {

/// The hands are 24 logical pixels wide; there is a second picture for high-DPI screens.
constexpr int handSize = 24;
constexpr int palm = handSize / 2;

QCursor hand(Grip grip, double pixelRatio) {
    const int scale = pixelRatio > 1 ? 2 : 1;
    const std::string name = std::string("icons/") +
                             (grip == Grip::Open ? "open-hand-" : "closed-hand-") +
                             std::to_string(scale * handSize) + ".png";
    const auto file = embeddedFile(name.c_str());
    QPixmap picture;
    picture.loadFromData(reinterpret_cast<const uchar*>(file.data()),
                         static_cast<unsigned>(file.size()));
    picture.setDevicePixelRatio(scale);
    return QCursor(picture, palm, palm);
}

} // namespace

void setPointer(QWidget& widget, MousePointer pointer, Grip grip) {
    switch (pointer) {
    case MousePointer::Default:
        return widget.unsetCursor();
    case MousePointer::Arrow:
        return widget.setCursor(Qt::ArrowCursor);
    case MousePointer::IBeam:
        return widget.setCursor(Qt::IBeamCursor);
    case MousePointer::Hourglass:
        return widget.setCursor(Qt::WaitCursor);
    case MousePointer::Hand:
        return widget.setCursor(hand(grip, widget.devicePixelRatioF()));
    }
}

} // namespace toolkit
