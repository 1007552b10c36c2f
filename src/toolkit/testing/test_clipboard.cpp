#include "toolkit/testing/test_clipboard.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QImage>

namespace toolkit::test {

void fillClipboard(std::string_view utf8) {
    QGuiApplication::clipboard()->setText(
        QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())));
}

std::string clipboardText() { return QGuiApplication::clipboard()->text().toStdString(); }

Bitmap clipboardPicture() {
    const QImage image = QGuiApplication::clipboard()->image();
    Bitmap bitmap(image.width(), image.height());
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) bitmap.row(y)[x] = image.pixel(x, y);
    return bitmap;
}

} // namespace toolkit::test
