#include "toolkit/window/drawn_card.h"

#include <QtGui/QPainter>

#include "toolkit/base/twips.h"
#include "toolkit/picture/qt_picture.h"
#include "toolkit/window/card/qt_drawing_painter.h"
#include "toolkit/window/card/qt_label_scene.h"
#include "toolkit/window/qt_window.h"

namespace toolkit {

CardRecording recorded(const PictureBox& card) {
    CardRecording recording{.width = pixelsFromTwips(card.Width),
                            .height = pixelsFromTwips(card.Height),
                            .paper = card.BackColor,
                            .picture = card.Picture,
                            .artwork = card.Artwork ? card.Artwork() : nullptr,
                            .labels = {}};
    if (const WindowImplementation* window = currentWindow()) {
        LabelScene scene;
        (void)scene.takeOver(window->parts());
        recording.labels = scene.visibleLabels();
    }
    return recording;
}

Bitmap painted(const Drawing& drawing, double factor, int width, int height) {
    Bitmap picture(width, height);
    if (picture.empty()) return picture;
    QImage image = imageOver(picture);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(factor, factor);
    paintDrawing(painter, drawing);
    return picture;
}

} // namespace toolkit
