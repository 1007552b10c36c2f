#include <QtGui/QPainter>

#include "toolkit/qt_label_scene.h"
#include "toolkit/qt_picture.h"
#include "toolkit/qt_window.h"
#include "toolkit/screen.h"

namespace toolkit {
namespace {

/// The picture at the card's size, with the card's colour where it doesn't reach.
Bitmap pictureOf(const PictureBox& card) {
    const int width = pixelsFromTwips(card.Width);
    const int height = pixelsFromTwips(card.Height);
    if (card.Picture && card.Picture->width() == width && card.Picture->height() == height)
        return *card.Picture;
    Bitmap bitmap(width, height, card.BackColor);
    if (!card.Picture || card.Picture->empty() || bitmap.empty()) return bitmap;
    QImage image = imageOver(bitmap);
    QPainter(&image).drawImage(0, 0, imageOver(*card.Picture));
    return bitmap;
}

} // namespace

Bitmap flattenedCard(const PictureBox& card) {
    Bitmap bitmap = pictureOf(card);
    const Window::Implementation* window = currentWindow();
    if (window == nullptr || bitmap.empty()) return bitmap;
    LabelScene scene;
    (void)scene.takeOver(window->parts());
    QImage image = imageOver(bitmap);
    QPainter painter(&image);
    scene.paint(painter, QRect(0, 0, bitmap.width(), bitmap.height()));
    return bitmap;
}

} // namespace toolkit
