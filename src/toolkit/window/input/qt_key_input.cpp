#include "toolkit/window/input/qt_key_input.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QtGui/QKeyEvent>

#include "toolkit/base/ansi.h"
#include "toolkit/base/key.h"
#include "toolkit/model/control.h"
#include "toolkit/text/typed_text.h"
#include "toolkit/window/input/qt_mouse_input.h"

namespace toolkit {
namespace {

constexpr int unknownKey = 255;
constexpr int keypadDigit0 = 96;
constexpr int backspaceCharacter = 8;

using KeyPair = std::pair<int, int>; // Qt's key, virtual key

constexpr std::array keypadKeys{KeyPair{Qt::Key_Plus, key::add},
                                KeyPair{Qt::Key_Minus, key::subtract}};

/// Those that handlers and edit boxes know; all others are unknown keys.
constexpr std::array namedKeys{
    KeyPair{Qt::Key_Backspace, key::backspace},
    KeyPair{Qt::Key_Tab, key::tab},
    KeyPair{Qt::Key_Backtab, key::tab},
    KeyPair{Qt::Key_Return, key::enter},
    KeyPair{Qt::Key_Enter, key::enter},
    KeyPair{Qt::Key_Escape, key::escape},
    KeyPair{Qt::Key_Space, key::space},
    KeyPair{Qt::Key_PageUp, key::pageUp},
    KeyPair{Qt::Key_PageDown, key::pageDown},
    KeyPair{Qt::Key_End, key::end},
    KeyPair{Qt::Key_Home, key::home},
    KeyPair{Qt::Key_Left, key::left},
    KeyPair{Qt::Key_Up, key::up},
    KeyPair{Qt::Key_Right, key::right},
    KeyPair{Qt::Key_Down, key::down},
    KeyPair{Qt::Key_Insert, key::insert},
    KeyPair{Qt::Key_Delete, key::deleteKey},
    KeyPair{Qt::Key_Menu, key::menu},
    KeyPair{Qt::Key_Plus, key::plus},
    KeyPair{Qt::Key_Equal, key::plus},
    KeyPair{Qt::Key_Minus, key::minus},
    KeyPair{Qt::Key_Underscore, key::minus},
};

template <std::size_t Size>
int lookUp(const std::array<KeyPair, Size>& keys, int qtKey) {
    const auto found = std::ranges::find(keys, qtKey, &KeyPair::first);
    return found == keys.end() ? unknownKey : found->second;
}

bool isLetter(int qtKey) { return qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z; }
bool isDigit(int qtKey) { return qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9; }

int keypadCodeOf(int qtKey) {
    if (isDigit(qtKey)) return keypadDigit0 + qtKey - Qt::Key_0;
    return lookUp(keypadKeys, qtKey);
}

/// On layouts where digits need Shift, the key of the zero brings a letter that has no code of its
/// own ("a" with grave, "e" with acute); it is the zero all the same.
bool isAtPlaceOfZero(const QKeyEvent& event) {
#ifdef Q_OS_WIN
    return event.nativeVirtualKey() == key::digit0;
#else
    constexpr quint32 placeOfZero = 19;
    return event.nativeScanCode() == placeOfZero;
#endif
}

/// Ctrl+letter gives 1 to 26, told by the key: the text of such a key differs by platform. 13 is
/// left to Enter alone, or Ctrl+M would close the field that is being edited.
int controlCharacterOf(int qtKey) {
    const int character = qtKey - Qt::Key_A + 1;
    return isLetter(qtKey) && character != key::enter ? character : 0;
}

} // namespace

int keyCodeOf(const QKeyEvent& event) {
    const int qtKey = event.key();
    if (event.modifiers().testFlag(Qt::KeypadModifier))
        if (const int code = keypadCodeOf(qtKey); code != unknownKey) return code;
    if (isLetter(qtKey) || isDigit(qtKey)) return qtKey;
    if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F24) return key::f1 + qtKey - Qt::Key_F1;
    const int code = lookUp(namedKeys, qtKey);
    return code == unknownKey && isAtPlaceOfZero(event) ? key::digit0 : code;
}

/// The control characters that TAB and Delete bring as their texts are no characters to type.
int characterOf(const QKeyEvent& event) {
    const int qtKey = event.key();
    switch (qtKey) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return key::enter;
    case Qt::Key_Escape:
        return key::escape;
    case Qt::Key_Backspace:
        return backspaceCharacter;
    default:
        break;
    }
    const int held = shiftOf(event.modifiers());
    if ((held & shift::ctrl) != 0 && (held & shift::alt) == 0) return controlCharacterOf(qtKey);
    if (!event.text().isEmpty() && event.text().front().category() == QChar::Other_Control)
        return 0;
    const std::string text = ansiFromTyped(event.text().toStdString());
    return text.empty() ? 0 : code(text.front());
}

KeyStroke keyStrokeOf(int keyCode, int shift) {
    const Qt::KeyboardModifiers modifiers = modifiersOf(shift);
    if (keyCode == key::tab)
        return {(shift & shift::shift) != 0 ? Qt::Key_Backtab : Qt::Key_Tab, modifiers};
    if (keyCode >= keypadDigit0 && keyCode < keypadDigit0 + 10)
        return {Qt::Key_0 + keyCode - keypadDigit0, modifiers | Qt::KeypadModifier};
    if (const auto found = std::ranges::find(keypadKeys, keyCode, &KeyPair::second);
        found != keypadKeys.end())
        return {found->first, modifiers | Qt::KeypadModifier};
    if (keyCode >= key::f1 && keyCode < key::f1 + 24)
        return {Qt::Key_F1 + keyCode - key::f1, modifiers};
    const auto found = std::ranges::find(namedKeys, keyCode, &KeyPair::second);
    return {found == namedKeys.end() ? keyCode : found->first, modifiers};
}

} // namespace toolkit
