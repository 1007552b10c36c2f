// Events on the card itself: marks, texts and the keyboard.
#include <algorithm>
#include <array>
#include <cstdlib>

#include "marks/hit_test.h"
#include "monkey/monkey.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_clipboard.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/window/cursor.h"
#include "toolkit/window/input/clipboard.h"

namespace zev::test {
namespace {

using namespace toolkit; // keys and shifts

constexpr auto texts = std::to_array<std::string_view>(
    {"x", "2^s", "3^C & ^h", "&&", "&", "a\"b", "Joe 12345", " ", "^", "^^d",
     "long enough to be shrunk a little", "\xC3\xA9t\xC3\xA9", "5"});

template <typename Point, typename Shown>
bool lies(Point point, const Shown& shown) {
    return point.x >= shown.Left && point.x <= shown.Left + shown.Width && point.y >= shown.Top &&
           point.y <= shown.Top + shown.Height;
}

/// A pointer goes by whole pixels.
template <typename Point, typename Shown>
bool isWideEnough(Point point, const Shown& shown) {
    const Point before{point.x - pixel, point.y - pixel};
    const Point behind{point.x + pixel, point.y + pixel};
    return lies(before, shown) && lies(behind, shown);
}

std::string ansi(std::string_view utf8) {
    std::string text(utf8);
    for (auto at = text.find("\xC3\xA9"); at != std::string::npos; at = text.find("\xC3\xA9"))
        text.replace(at, 2, "\xE9");
    return text;
}

} // namespace

TextBox* Monkey::box() {
    if (zevlin().LText.Visible) return &zevlin().LText;
    return zevlin().CText.Visible ? &zevlin().CText : nullptr;
}

bool Monkey::isInBox() {
    window->update();
    return box() != nullptr && zevlin().ActiveControl == box() && account_.open;
}

/// Whether the point is on the wanted field and on nothing else.
bool Monkey::isCleanHit(CardPoint point, const Label* wanted) {
    const float x = zevlin().P1.Left + point.x;
    const float y = zevlin().P1.Top + point.y;
    // A pointer goes by whole pixels: the last one may lie behind the edge.
    const float right = zevlin().ScaleWidth() - pixel;
    const float bottom = zevlin().ScaleHeight() - pixel;
    if (x < 0 || y < 0 || x > right || y > bottom) return false;
    for (const TextBox* over : {&zevlin().CText, &zevlin().LText})
        if (over->Visible && lies(point, *over)) return false;
    for (const Label* over : {&zevlin().Timestamp, &zevlin().CreditLabel})
        if (over->Visible && lies(point, *over)) return false;
    for (const Label& mark : zevlin().AMark)
        if (&mark != wanted && lies(point, mark)) return false;
    // One that begins within the pointer's pixel takes the whole pixel.
    const auto liesNear = [&point](const Label& text) {
        return lies(CardPoint{point.x - pixel, point.y - pixel}, text) ||
               lies(CardPoint{point.x + pixel, point.y + pixel}, text) || lies(point, text);
    };
    for (const Label& text : zevlin().AText)
        if (&text != wanted && &text != &zevlin().AText[0] && liesNear(text)) return false;
    return std::ranges::none_of(zevlin().SText, [&point](const Label& symbol) {
        return symbol.Visible && lies(point, symbol);
    });
}

/// A changed text has a star. A field with suits has one with the first key released in it, and so
/// may others: what the player told counts.
void Monkey::noteEdited() {
    account_.star = account_.star || account_.isTyping() || zevlin().CardModified;
}

void Monkey::clickAMark() {
    const auto mark = static_cast<int>(1 + pick(static_cast<std::size_t>(baseMarks_)));
    if (!zevlin().AMark.exists(mark)) return;
    const Label& label = zevlin().AMark[mark];
    const CardPoint point{label.Left + label.Width / 3, label.Top + label.Height / 2};
    // The pointer moves by whole pixels.
    for (const float off : {-pixel, pixel})
        if (!hitsMark(label, point.x + off, point.y + off, zevlin().TwipsPerPixel)) return;
    if (!isCleanHit(point, &label)) return;
    doing_ = "click mark " + std::to_string(mark);
    toolkit::test::click(point.x, point.y);
    account_.commit();
    account_.toggleMark(mark);
}

void Monkey::clickAText() {
    const auto field = static_cast<int>(1 + pick(static_cast<std::size_t>(baseTexts_)));
    if (!zevlin().AText.exists(field)) return;
    const Label& label = zevlin().AText[field];
    const CardPoint point{label.Left + label.Width / 2, label.Top + label.Height / 2};
    if (!isWideEnough(point, label) || !isCleanHit(point, &label)) return;
    doing_ = "click text " + std::to_string(field);
    toolkit::test::click(point.x, point.y);
    EXPECT_EQ(box() != nullptr && zevlin().TIndex == field, true) << "it didn't open";
}

void Monkey::typeSome() {
    const std::string_view text = oneOf(texts);
    doing_ = "type " + std::string(text);
    std::string& typed = account_.open->typed;
    const auto start = static_cast<std::size_t>(box()->SelStart);
    const auto length = static_cast<std::size_t>(box()->SelLength);
    typed.replace(start, length, ansi(text));
    toolkit::test::typeText(text);
    noteEdited();
}

void Monkey::editByKey() {
    constexpr auto keys = std::to_array<int>(
        {key::left, key::right, key::home, key::end, key::backspace, key::deleteKey, 'A', 'X'});
    const int keyCode = oneOf(keys);
    const bool isLetter = keyCode == 'A' || keyCode == 'X';
    const bool selects = keyCode != key::backspace && keyCode != key::deleteKey && chance(40);
    const int held = isLetter ? shift::ctrl : selects ? shift::shift : 0;
    doing_ = "edit key " + std::to_string(keyCode) + " with " + std::to_string(held);
    std::string& typed = account_.open->typed;
    auto start = static_cast<std::size_t>(box()->SelStart);
    auto length = static_cast<std::size_t>(box()->SelLength);
    if (keyCode == 'X' && length > 0) elsewhere_ = typed.substr(start, length);
    if (keyCode == key::backspace && length == 0 && start > 0) {
        --start;
        length = 1;
    }
    if (keyCode == key::deleteKey && length == 0) length = 1;
    const bool erases = keyCode == key::backspace || keyCode == key::deleteKey || keyCode == 'X';
    if (erases && start < typed.size()) typed.erase(start, length);
    toolkit::test::typeKey(keyCode, held);
    noteEdited();
}

void Monkey::typeSuit() {
    const auto suit = pick(4);
    doing_ = "suit " + std::to_string(suit);
    account_.open->typed.insert(static_cast<std::size_t>(box()->SelStart),
                                {'^', std::string_view("cdhs")[suit]});
    toolkit::test::typeKey(key::f5 + static_cast<int>(suit));
    noteEdited();
}

void Monkey::leaveField() {
    constexpr auto keys = std::to_array<int>({key::escape, key::enter, key::tab, key::f2});
    const int keyCode = oneOf(keys);
    const int held = keyCode != key::f2 && chance(30) ? shift::shift : 0;
    doing_ = "leave by " + std::to_string(keyCode);
    toolkit::test::typeKey(keyCode, held);
    account_.commit();
    if (box() != nullptr) noteEdited();
}

void Monkey::noteStyle(int keyCode) {
    const int field = account_.open ? account_.open->field : 0;
    if (field == 0) return;
    switch (keyCode) {
    case 2:
        if (zevlin().mpopBold.Enabled) account_.toggle(field, text_switch::bold);
        break;
    case 9:
        account_.toggle(field, text_switch::italic);
        break;
    case 12:
        account_.toggle(field, text_switch::left);
        break;
    case 7:
        account_.toggle(field, text_switch::highlight);
        break;
    case 26:
        if (zevlin().mpopUndo.Enabled) account_.undo(zevlin().mBold.Checked);
        break;
    case 3:
        noteCopy();
        break;
    case 22:
        notePaste();
        break;
    default:
        break;
    }
}

/// A copy takes the selection, or else everything; an empty text doesn't replace the clipboard's.
void Monkey::noteCopy() {
    const std::string& typed = account_.open->typed;
    const auto start = static_cast<std::size_t>(box()->SelStart);
    const auto length = static_cast<std::size_t>(box()->SelLength);
    const std::string copied = length > 0 ? typed.substr(start, length) : typed;
    if (!copied.empty()) elsewhere_ = copied;
}

/// The program's own copy replaces the whole field; another program's text goes to the caret.
void Monkey::notePaste() {
    const bool isOwn =
        zevlin().mpopPaste.Enabled && !zevlin().ClipText.empty() && toolkit::holdsClipboardText();
    // A run of ampersands becomes one.
    if (isOwn) return account_.pasteWhole(typedText(zevlin().ClipText));
    if (elsewhere_.empty()) return;
    account_.open->typed.replace(static_cast<std::size_t>(box()->SelStart),
                                 static_cast<std::size_t>(box()->SelLength), elsewhere_);
}

void Monkey::styleByKey() {
    constexpr auto letters = std::to_array<char>({'B', 'I', 'L', 'G'});
    const char letter = oneOf(letters);
    doing_ = std::string("style key ") + letter;
    noteStyle(letter - 'A' + 1);
    toolkit::test::typeKey(letter, shift::ctrl);
    noteEdited();
}

void Monkey::styleByPopup() {
    const auto field = static_cast<int>(1 + pick(static_cast<std::size_t>(baseTexts_)));
    if (!zevlin().AText.exists(field)) return;
    const Label& label = zevlin().AText[field];
    const CardPoint point{label.Left + label.Width / 2, label.Top + label.Height / 2};
    if (!isWideEnough(point, label) || !isCleanHit(point, &label)) return;
    popupRow_ = static_cast<int>(pick(9));
    doing_ = "pop-up of " + std::to_string(field) + " row " + std::to_string(popupRow_);
    toolkit::test::click(point.x, point.y, button::right);
    noteEdited();
}

void Monkey::undoTyping() {
    doing_ = "undo";
    noteStyle('Z' - 'A' + 1);
    toolkit::test::typeKey('Z', shift::ctrl);
    noteEdited();
}

void Monkey::copySome() {
    doing_ = "copy";
    noteStyle('C' - 'A' + 1);
    toolkit::test::typeKey('C', shift::ctrl);
    noteEdited();
}

void Monkey::pasteSome() {
    doing_ = "paste";
    noteStyle('V' - 'A' + 1);
    toolkit::test::typeKey('V', shift::ctrl);
    noteEdited();
}

void Monkey::copyElsewhere() {
    constexpr auto copied = std::to_array<std::string_view>({"beta", "Kim & Pat", "1 2"});
    elsewhere_ = oneOf(copied);
    doing_ = "copy in another program: " + elsewhere_;
    toolkit::test::fillClipboard(elsewhere_);
}

void Monkey::walkByKey() {
    if (box() != nullptr) return;
    const bool begins = chance(20);
    doing_ = begins ? "go to the first field" : "TAB";
    toolkit::test::typeKey(begins ? key::f2 : key::tab, !begins && chance(30) ? shift::shift : 0);
    if (box() != nullptr) noteEdited();
}

/// SPACE acts if the TAB walk has stopped on a mark and the pointer hasn't moved.
void Monkey::spaceOnCard() {
    if (box() != nullptr) return;
    doing_ = "SPACE";
    const auto cursor = cursorPosition();
    const bool still = std::abs(cursor.x - zevlin().TabCursorX) < 5 &&
                       std::abs(cursor.y - zevlin().TabCursorY) < 5;
    const int mark = zevlin().TabCode - firstMarkItem;
    const bool isOnMark = zevlin().TabActive && still && zevlin().AMark.exists(mark);
    toolkit::test::typeKey(key::space);
    if (isOnMark) account_.toggleMark(mark);
}

} // namespace zev::test
