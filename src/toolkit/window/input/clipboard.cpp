#include "toolkit/window/input/clipboard.h"

#include <memory>

#include <QtCore/QCoreApplication>
#include <QtCore/QMimeData>
#include <QtGui/QGuiApplication>

#include "toolkit/base/qt_text.h"
#include "toolkit/picture/qt_picture.h"
#include "toolkit/window/input/qt_clipboard.h"

namespace toolkit {
namespace {

/// The text with its escapes as they were typed, for the program's own boxes.
QString textFormat() { return QStringLiteral("application/x-zevlin-text"); }
/// Tells a copy that was asked for from all others, also from those of another running program.
QString copyFormat() { return QStringLiteral("application/x-zevlin-copy"); }

QByteArray& lastCopy() {
    static QByteArray mark;
    return mark;
}

QByteArray newCopyMark() {
    static int copies = 0;
    return QByteArray::number(QCoreApplication::applicationPid()) + '-' +
           QByteArray::number(++copies);
}

std::unique_ptr<QMimeData> dataOf(std::string_view text) {
    auto data = std::make_unique<QMimeData>();
    data->setText(QString::fromStdString(utf8ForOthers(text)));
    data->setData(textFormat(), QByteArray::fromStdString(utf8FromAnsi(text)));
    return data;
}

const QMimeData* dataOn(QClipboard::Mode mode) {
    return QGuiApplication::clipboard()->mimeData(mode);
}

} // namespace

void setClipboardPicture(const Bitmap& picture) {
    // A copy, since the clipboard keeps it.
    QGuiApplication::clipboard()->setImage(imageOver(picture).copy());
}

void setClipboardText(std::string_view text) {
    auto data = dataOf(text);
    lastCopy() = newCopyMark();
    data->setData(copyFormat(), lastCopy());
    QGuiApplication::clipboard()->setMimeData(data.release());
}

bool holdsClipboardText() {
    const QMimeData* data = dataOn(QClipboard::Clipboard);
    return data != nullptr && !lastCopy().isEmpty() && data->data(copyFormat()) == lastCopy();
}

bool hasClipboardText() {
    const QMimeData* data = dataOn(QClipboard::Clipboard);
    return data != nullptr && data->hasText() && !data->text().isEmpty();
}

std::string clipboardText(const TextAround& around) {
    return takeText(QClipboard::Clipboard, around);
}

void putText(std::string_view text, QClipboard::Mode mode) {
    QGuiApplication::clipboard()->setMimeData(dataOf(text).release(), mode);
}

std::string takeText(QClipboard::Mode mode, const TextAround& around) {
    const QMimeData* data = dataOn(mode);
    if (data == nullptr) return {};
    if (data->hasFormat(textFormat())) return ansiFromUtf8(data->data(textFormat()).toStdString());
    return ansiFromTyped(data->text().toStdString(), around);
}

} // namespace toolkit
