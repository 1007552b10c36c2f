#include "toolkit/window/input/qt_key_dispatcher.h"

#include <utility>

#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QWidget>

#include "toolkit/base/key.h"
#include "toolkit/window/input/qt_key_input.h"
#include "toolkit/window/input/qt_mouse_input.h"

namespace toolkit {
namespace {

bool& repeating() {
    static bool repeats = false;
    return repeats;
}

/// Alt with a character opens a menu by its access key, Alt alone walks to the menu bar: both are
/// the menu bar's. Every other key is ours before any shortcut of the platform's.
bool belongsToMenuBar(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Alt) return true;
    const bool altOnly = (shiftOf(event.modifiers()) & ~shift::shift) == shift::alt;
    return altOnly && event.key() < Qt::Key_Escape;
}

/// Under Wayland the program repeats a held key itself, and a busy desktop gives strokes that are
/// apart the same time.
bool marksRepetitions() { return QGuiApplication::platformName().startsWith(u"wayland"); }

/// The place on the keyboard, as far as it is known: with Shift the same key has another name.
quint32 placeOf(const QKeyEvent& event) {
    return event.nativeScanCode() != 0 ? event.nativeScanCode() : static_cast<quint32>(event.key());
}

} // namespace

bool HeldKeys::press(const QKeyEvent& event) {
    const quint32 key = placeOf(event);
    const Release before = std::exchange(last_, {});
    const bool atItsRelease = !marksRepetitions() && before.time != 0 && before.key == key &&
                              before.time == event.timestamp();
    if (event.isAutoRepeat() || atItsRelease) return true;
    down_.insert(key);
    return false;
}

bool HeldKeys::release(const QKeyEvent& event) {
    last_ = {placeOf(event), event.timestamp()};
    return down_.erase(last_.key) == 0;
}

bool isKeyRepeat() { return repeating(); }

KeyDispatcher::KeyDispatcher(const WindowParts& parts, EventDispatcher& dispatcher,
                             Shortcuts shortcuts)
    : parts_(parts), dispatcher_(dispatcher), shortcuts_(std::move(shortcuts)) {}

void KeyDispatcher::watch(QWidget& widget) { widget.installEventFilter(this); }

void KeyDispatcher::watch(QWidget& widget, const Control& control, OwnHandling own) {
    own_[&control] = std::move(own);
    watch(widget);
}

/// Every key event is accepted, so that none climbs to the widget behind and comes a second time.
bool KeyDispatcher::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::ShortcutOverride: {
        const auto& keyEvent = *static_cast<QKeyEvent*>(event);
        if (belongsToMenuBar(keyEvent)) return QObject::eventFilter(watched, event);
        event->accept();
        return true;
    }
    case QEvent::KeyPress:
        press(*static_cast<QKeyEvent*>(event));
        break;
    case QEvent::KeyRelease:
        release(*static_cast<QKeyEvent*>(event));
        break;
    default:
        return QObject::eventFilter(watched, event);
    }
    event->accept();
    return true;
}

Control& KeyDispatcher::target() const {
    return parts_.form->ActiveControl != nullptr ? *parts_.form->ActiveControl : *parts_.card;
}

void KeyDispatcher::press(QKeyEvent& event) {
    const bool outer = std::exchange(repeating(), held_.press(event));
    Control& control = target();
    if (passes(parts_.form->KeyDown, event) && !shortcuts_(event) &&
        passes(control.KeyDown, event) && passesAsCharacter(control, event))
        handOver(control, event);
    repeating() = outer;
}

void KeyDispatcher::release(const QKeyEvent& event) {
    if (event.isAutoRepeat()) return;
    const bool outer = std::exchange(repeating(), held_.release(event));
    // Whether the handler takes the release matters to no one.
    (void)passes(target().KeyUp, event);
    repeating() = outer;
}

bool KeyDispatcher::passes(const std::function<void(KeyArguments&)>& slot, const QKeyEvent& event) {
    KeyArguments arguments{keyCodeOf(event), shiftOf(event.modifiers())};
    dispatcher_.run([&] {
        if (slot) slot(arguments);
    });
    return arguments.KeyCode != 0;
}

bool KeyDispatcher::passesAsCharacter(const Control& control, const QKeyEvent& event) {
    int character = characterOf(event);
    if (character == 0) return true;
    dispatcher_.run([&] {
        if (control.KeyPress) control.KeyPress(character);
    });
    return character != 0;
}

/// A handler may have moved the focus on; then the key isn't the old control's any more.
void KeyDispatcher::handOver(const Control& control, QKeyEvent& event) {
    const auto own = own_.find(&control);
    if (own == own_.end() || &target() != &control || !control.Visible || !control.Enabled) return;
    own->second(event);
}

} // namespace toolkit
