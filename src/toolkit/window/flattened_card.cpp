#include "toolkit/window/flattened_card.h"

#include <memory>
#include <utility>

#include <QtGui/QPainter>

#include "toolkit/base/twips.h"
#include "toolkit/picture/qt_picture.h"
#include "toolkit/window/card/qt_label_scene.h"
#include "toolkit/window/qt_window.h"

namespace toolkit {
namespace {

using Picture = std::shared_ptr<Bitmap>;

bool hasCardSize(const PictureBox& card, int width, int height) {
    return card.Picture && card.Picture->width() == width && card.Picture->height() == height;
}

/// The picture at the card's size, with the card's colour where it doesn't reach.
Picture extended(const PictureBox& card, int width, int height) {
    auto bitmap = std::make_shared<Bitmap>(width, height, card.BackColor);
    if (!card.Picture || card.Picture->empty() || bitmap->empty()) return bitmap;
    QImage image = imageOver(*bitmap);
    QPainter(&image).drawImage(0, 0, imageOver(*card.Picture));
    return bitmap;
}

/// A picture to draw on: the card's own where nobody else has it, since the largest ones are worth
/// no copy.
Picture takePicture(PictureBox& card) {
    const int width = pixelsFromTwips(card.Width);
    const int height = pixelsFromTwips(card.Height);
    card.Sharp = {};
    card.Artwork = {};
    if (!hasCardSize(card, width, height)) return extended(card, width, height);
    if (card.Picture.use_count() > 1) return std::make_shared<Bitmap>(*card.Picture);
    return std::const_pointer_cast<Bitmap>(std::exchange(card.Picture, nullptr));
}

} // namespace

void flatten(PictureBox& card) {
    const Picture picture = takePicture(card);
    card.Picture = picture;
    const WindowImplementation* window = currentWindow();
    if (window == nullptr || picture->empty()) return;
    LabelScene scene;
    (void)scene.takeOver(window->parts());
    QImage image = imageOver(*picture);
    QPainter painter(&image);
    scene.paint(painter, QRect(0, 0, picture->width(), picture->height()));
}

} // namespace toolkit
