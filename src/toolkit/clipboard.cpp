#include "toolkit/clipboard.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

#include "toolkit/qt_picture.h"

namespace toolkit {

void setClipboardPicture(const Bitmap& picture) {
    // A copy, since the clipboard keeps it.
    QGuiApplication::clipboard()->setImage(imageOver(picture).copy());
}

} // namespace toolkit
