#include "toolkit/testing/test_keys.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QInputMethodEvent>
#include <QtGui/QKeyEvent>

#include "toolkit/base/key.h"
#include "toolkit/testing/qt_test_window.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/input/qt_key_input.h"
#include "toolkit/window/input/qt_mouse_input.h"

namespace toolkit::test {
namespace {

QWidget& focusWidget() {
    updateWindow();
    QWidget* widget = window().form().focusWidget();
    return widget == nullptr ? window().form() : *widget;
}

void sendKey(QEvent::Type type, KeyStroke stroke, const QString& text, unsigned time = 0) {
    QWidget& widget = focusWidget();
    if (type == QEvent::KeyPress) {
        QKeyEvent before(QEvent::ShortcutOverride, stroke.key, stroke.modifiers, text);
        send(widget, before);
    }
    QKeyEvent event(type, stroke.key, stroke.modifiers, text, stroke.repeated);
    event.setTimestamp(time);
    send(widget, event);
}

/// The text that a platform sends with the key.
QString textOf(int keyCode, int shift) {
    if (keyCode == key::enter) return QStringLiteral("\r");
    if (keyCode == key::escape) return QStringLiteral("\x1b");
    if (keyCode == key::backspace) return QStringLiteral("\b");
    if (keyCode == key::tab) return QStringLiteral("\t");
    const bool letter = keyCode >= 'A' && keyCode <= 'Z';
    const bool digit = keyCode >= '0' && keyCode <= '9';
    if ((shift & shift::alt) != 0 || (!letter && !digit && keyCode != key::space)) return {};
    if ((shift & shift::ctrl) != 0) return letter ? QString(QChar(keyCode - 'A' + 1)) : QString();
    const QString text(QChar{static_cast<char16_t>(keyCode)});
    return (shift & shift::shift) != 0 ? text : text.toLower();
}

QString fromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString givenText(int keyCode, int shift, std::string_view text) {
    return text.empty() ? textOf(keyCode, shift) : fromUtf8(text);
}

} // namespace

void pressKey(int keyCode, int shift, std::string_view text) {
    sendKey(QEvent::KeyPress, keyStrokeOf(keyCode, shift), givenText(keyCode, shift, text));
}

void pressAtPlaceOfZero(std::string_view character, int shift) {
    constexpr quint32 scanCode = 19;
    const QString text = fromUtf8(character);
    QKeyEvent event(QEvent::KeyPress, static_cast<int>(text.toUpper().front().unicode()),
                    modifiersOf(shift), scanCode, key::digit0, 0, text);
    send(focusWidget(), event);
}

void repeatKey(int keyCode, int shift) {
    KeyStroke stroke = keyStrokeOf(keyCode, shift);
    stroke.repeated = true;
    sendKey(QEvent::KeyRelease, stroke, {});
    sendKey(QEvent::KeyPress, stroke, textOf(keyCode, shift));
}

void pressKeyAt(unsigned time, int keyCode, int shift) {
    sendKey(QEvent::KeyPress, keyStrokeOf(keyCode, shift), textOf(keyCode, shift), time);
}

void releaseKeyAt(unsigned time, int keyCode, int shift) {
    sendKey(QEvent::KeyRelease, keyStrokeOf(keyCode, shift), {}, time);
}

bool isClaimed(int keyCode, int shift) {
    const KeyStroke stroke = keyStrokeOf(keyCode, shift);
    QKeyEvent event(QEvent::ShortcutOverride, stroke.key, stroke.modifiers, textOf(keyCode, shift));
    event.ignore();
    send(focusWidget(), event);
    return event.isAccepted();
}

void releaseKey(int keyCode, int shift) {
    sendKey(QEvent::KeyRelease, keyStrokeOf(keyCode, shift), {});
}

void typeKey(int keyCode, int shift, std::string_view text) {
    pressKey(keyCode, shift, text);
    releaseKey(keyCode, shift);
}

void typeText(std::string_view utf8) {
    for (const char32_t character : fromUtf8(utf8).toStdU32String()) {
        const QString one = QString::fromUcs4(&character, 1);
        const bool upper = one != one.toLower();
        const KeyStroke stroke{static_cast<int>(one.toUpper().toUcs4().front()),
                               upper ? Qt::ShiftModifier : Qt::NoModifier};
        sendKey(QEvent::KeyPress, stroke, one);
        sendKey(QEvent::KeyRelease, stroke, {});
    }
}

void compose(std::string_view preedit, std::string_view committed) {
    QInputMethodEvent event(fromUtf8(preedit), {});
    event.setCommitString(fromUtf8(committed));
    send(focusWidget(), event);
    settle();
}

} // namespace toolkit::test
