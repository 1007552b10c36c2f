#include "toolkit/clipboard.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

#include "toolkit/qt_picture.h"
#include "toolkit/qt_text.h"

namespace toolkit {

void setClipboardPicture(const Bitmap& picture) {
    // A copy, since the clipboard keeps it.
    QGuiApplication::clipboard()->setImage(imageOver(picture).copy());
}

void setClipboardText(std::string_view text) {
    QGuiApplication::clipboard()->setText(qString(text));
}

} // namespace toolkit
