#include "toolkit/window/control/qt_edit_box.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <QtCore/QSignalBlocker>
#include <QtGui/QFontMetricsF>
#include <QtGui/QGuiApplication>
#include <QtGui/QInputMethod>
#include <QtGui/QInputMethodEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QWheelEvent>

#include "toolkit/base/qt_text.h"
#include "toolkit/base/twips.h"
#include "toolkit/text/typed_text.h"
#include "toolkit/window/input/qt_clipboard.h"
#include "toolkit/window/input/qt_mouse_input.h"

namespace toolkit {
namespace {

/// A line edit keeps its text this far from its sides; without it, it stands where the label's
/// does.
constexpr int ownMargin = 2;
/// And one pixel from its top.
constexpr int ownTopMargin = 1;

bool isTypeable(QChar character) {
    return character.unicode() >= U' ' && character.unicode() != 0x7F &&
           ansiOf(character.unicode()).has_value();
}

std::string typedText(const QString& text) { return ansiFromTyped(text.toStdString()); }

/// Pixels by which the widget is wider than its control, on each side.
int wideningOf(EditBox::Place place) { return place == EditBox::Place::Card ? ownMargin : 0; }

Qt::Alignment qAlignment(Alignment alignment) {
    switch (alignment) {
    case Alignment::Left:
        return Qt::AlignLeft;
    case Alignment::Right:
        return Qt::AlignRight;
    case Alignment::Center:
        return Qt::AlignHCenter;
    }
    return Qt::AlignLeft;
}

} // namespace

EditBox::EditBox(QWidget& parent, Form& form, TextBox& box, const Control& container,
                 EventDispatcher& dispatcher, Place place)
    : QLineEdit(&parent), box_(box), dispatcher_(dispatcher), place_(place),
      mouse_(form, dispatcher, box, &container, wideningOf(place)) {
    hide();
    if (place == Place::Card) {
        setFrame(false);
    } else {
        setTextMargins(ownMargin, 0, ownMargin, 0);
    }
    setMinimumSize(0, 0);
    // What is longer than the platform's own limit would be cut when the box is left.
    setMaxLength(std::numeric_limits<int>::max());
    setFocusPolicy(Qt::NoFocus);
    setContextMenuPolicy(Qt::NoContextMenu);
    setDragEnabled(false);
    setAcceptDrops(false);
    // Whatever the box itself doesn't set is the player's, by keys or through a screen reader.
    connect(this, &QLineEdit::textChanged, this, [this] { noteEdit(); });
}

EditBox::Selection EditBox::shownSelection() const {
    if (!hasSelectedText()) return {cursorPosition(), 0};
    return {selectionStart(), selectionLength()};
}

std::string EditBox::shownText() const {
    QString before = text();
    const QString after = before.mid(cursorPosition());
    before.truncate(cursorPosition());
    return ansiText(before) + typedText(composed_) + ansiText(after);
}

/// What an input method composes counts as typed: whoever leaves the box now would lose it.
void EditBox::pull() {
    if (isHidden()) return;
    if (std::string shown = shownText(); shown != knownText_)
        knownText_ = box_.Text = std::move(shown);
    if (const Selection shown = shownSelection(); shown != knownSelection_) {
        knownSelection_ = shown;
        box_.SelStart = shown.start;
        box_.SelLength = shown.length;
    }
}

/// What was composed has become a part of the text, or the program has another text for the box.
void EditBox::endComposition() {
    composed_.clear();
    QInputMethodEvent nothing;
    QLineEdit::inputMethodEvent(&nothing);
    if (hasFocus()) QGuiApplication::inputMethod()->reset();
}

void EditBox::push() {
    const bool isLeft = !box_.Visible || box_.Text != knownText_;
    if (!composed_.isEmpty() && isLeft) endComposition();
    if (box_.Visible && composed_.isEmpty()) {
        pushText();
        pushSelection();
    }
    const Qt::Alignment wanted =
        qAlignment(box_.Alignment) | (place_ == Place::Card ? Qt::AlignTop : Qt::AlignVCenter);
    if (wanted != alignment()) setAlignment(wanted);
    if (place_ == Place::Panel) return looks_.push(*this, box_, {});
    const int line = baseline();
    const int bottom = pixelsFromTwips(box_.Top + box_.Height);
    looks_.push(*this, box_, {ownMargin, 0, ownMargin, std::max(line - bottom, 0)});
    pushBaseLine(line);
}

/// The row of the card below the text's feet, as the label's.
int EditBox::baseline() const {
    const auto twips = static_cast<double>(twipsPerPixel());
    return static_cast<int>(
        std::nearbyint(static_cast<double>(box_.Top + textAscent(box_.Font)) / twips));
}

/// A line edit puts its text at its top by its own measures of the font; the label goes by the
/// exact ones, from its exact place.
void EditBox::pushBaseLine(int line) {
    const int own = y() + qRound(QFontMetricsF(font()).ascent()) + ownTopMargin;
    const QMargins wanted(0, line - own, 0, -ownTopMargin);
    if (wanted != textMargins()) setTextMargins(wanted);
}

void EditBox::pushText() {
    if (const QString wanted = qString(box_.Text); wanted != text()) setOwnText(wanted);
    knownText_ = box_.Text;
}

/// Only where it differs: setting the same selection again would move the caret to its other end.
void EditBox::pushSelection() {
    const int end = static_cast<int>(text().size());
    box_.SelStart = std::clamp(box_.SelStart, 0, end);
    box_.SelLength = std::clamp(box_.SelLength, 0, end - box_.SelStart);
    const Selection wanted{box_.SelStart, box_.SelLength};
    if (wanted != shownSelection()) {
        if (wanted.length > 0) {
            setSelection(wanted.start, wanted.length);
        } else {
            deselect();
            setCursorPosition(wanted.start);
        }
    }
    knownSelection_ = wanted;
}

void EditBox::setOwnText(const QString& text) {
    const QSignalBlocker silent(this);
    setText(text);
}

void EditBox::noteEdit() {
    convertTyped();
    dispatcher_.run([this] {
        if (box_.Change) box_.Change();
    });
}

void EditBox::convertTyped() {
    if (std::ranges::all_of(text(), isTypeable)) return;
    const QString shown = text();
    const std::string before = typedText(shown.left(cursorPosition()));
    setOwnText(qString(typedText(shown)));
    setCursorPosition(static_cast<int>(before.size()));
}

/// What goes out is not what the box holds, so the clipboard isn't left to the line edit.
void EditBox::copySelection(QClipboard::Mode mode) {
    if (hasSelectedText()) putText(ansiText(selectedText()), mode);
}

void EditBox::pasteFrom(QClipboard::Mode mode) {
    const std::string shown = ansiText(text());
    const Selection place = shownSelection();
    const auto start = static_cast<std::size_t>(place.start);
    const auto length = static_cast<std::size_t>(place.length);
    const std::string_view all = shown;
    const std::string pasted =
        takeText(mode, {.before = all.substr(0, start), .after = all.substr(start + length)});
    if (!pasted.empty()) insert(qString(pasted));
}

/// The box's own undo is never used: Ctrl+Z is the field's.
void EditBox::takeKey(QKeyEvent& event) {
    if (event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo)) return;
    if (event.matches(QKeySequence::Copy)) return copySelection(QClipboard::Clipboard);
    if (event.matches(QKeySequence::Paste)) return pasteFrom(QClipboard::Clipboard);
    if (event.matches(QKeySequence::Cut)) {
        copySelection(QClipboard::Clipboard);
        if (hasSelectedText()) insert({});
        return;
    }
    keyPressEvent(&event);
}

void EditBox::mousePressEvent(QMouseEvent* event) {
    if (mouse_.press(*this, *event) == ControlMouse::Own::Handle) QLineEdit::mousePressEvent(event);
    event->accept();
}

void EditBox::mouseDoubleClickEvent(QMouseEvent* event) {
    if (mouse_.press(*this, *event) == ControlMouse::Own::Handle) {
        QLineEdit::mouseDoubleClickEvent(event);
        mouse_.send(&Control::DblClick);
    }
    event->accept();
}

void EditBox::mouseMoveEvent(QMouseEvent* event) {
    if (mouse_.isEnabled()) QLineEdit::mouseMoveEvent(event);
    event->accept();
}

void EditBox::mouseReleaseEvent(QMouseEvent* event) {
    if (mouse_.isEnabled()) releaseOwn(*event);
    mouse_.release(*this, *event);
    if (rect().contains(pixelUnder(*event, *this))) mouse_.send(&Control::Click);
    event->accept();
}

/// Where the system has a selection beside the clipboard, the middle button pastes it.
void EditBox::releaseOwn(QMouseEvent& event) {
    const bool hasSelection = QGuiApplication::clipboard()->supportsSelection();
    if (event.button() == Qt::MiddleButton) {
        deselect();
        if (hasSelection) pasteFrom(QClipboard::Selection);
    } else if (event.button() != Qt::RightButton) {
        QLineEdit::mouseReleaseEvent(&event);
        if (hasSelection) copySelection(QClipboard::Selection);
    }
}

void EditBox::inputMethodEvent(QInputMethodEvent* event) {
    composed_ = event->preeditString();
    QLineEdit::inputMethodEvent(event);
}

/// The wheel of who types into a box is the box's, or the card would move away below it.
void EditBox::wheelEvent(QWheelEvent* event) { event->accept(); }

} // namespace toolkit
