#include "marks/move_card.h"

#include <algorithm>
#include <optional>
#include <string>

#include "form/trace.h"
#include "form/zevlin.h"
#include "marks/visible_area.h"
#include "text/edit_box.h"
#include "toolkit/base/key.h"
#include "toolkit/base/number_text.h"
#include "toolkit/window/cursor.h"
#include "view/task_bar.h"
#include "view/zoom.h"

namespace zev {
namespace {

using toolkit::numberText;

struct Place {
    float left = 0;
    float top = 0;
};

float stepOf(const Zevlin& form) { return form.P1.Height / 10; }

float wholeTwips(float twips) { return static_cast<float>(toolkit::roundToInteger(twips)); }

/// The low limit is tested first, so a card smaller than the form goes to the right or bottom edge.
float clamped(float place, float room, float size) {
    if (room - size > place) return room - size;
    return std::min(place, 0.0F);
}

/// The corner that a key goes to.
std::optional<Place> cornerOf(const Zevlin& form, int keyCode) {
    const float right = form.ScaleWidth() - form.P1.Width;
    const float bottom = form.ScaleHeight() - form.P1.Height;
    switch (keyCode) {
    case toolkit::key::home:
        return Place{0, 0};
    case toolkit::key::end:
        return Place{0, bottom};
    case toolkit::key::pageUp:
        return Place{right, 0};
    case toolkit::key::pageDown:
        return Place{right, bottom};
    default:
        return {};
    }
}

/// The card's place after one step: the view moves with the arrow, so the card moves the other way.
std::optional<Place> stepped(const Zevlin& form, int keyCode) {
    const float step = stepOf(form);
    Place place{form.P1.Left, form.P1.Top};
    switch (keyCode) {
    case toolkit::key::left:
        place.left += step;
        break;
    case toolkit::key::right:
        place.left -= step;
        break;
    case toolkit::key::up:
        place.top += step;
        break;
    case toolkit::key::down:
        place.top -= step;
        break;
    default:
        return {};
    }
    return Place{clamped(place.left, form.ScaleWidth(), form.P1.Width),
                 clamped(place.top, form.ScaleHeight(), form.P1.Height)};
}

/// Whether the key belongs to the open edit box.
bool isForBox(const Zevlin& form, int keyCode) {
    if (!isEditing(form)) return false;
    return keyCode == toolkit::key::home || keyCode == toolkit::key::end ||
           keyCode == toolkit::key::left || keyCode == toolkit::key::right;
}

bool cursorCanFollow(Zevlin& form, float x, float y) {
    const auto screen = toolkit::screen();
    const auto bar = GetTaskBarSize(form);
    const auto twips = static_cast<float>(form.TwipsPerPixel);
    const float sideBar = bar.Top == 0 ? 0 : bar.Width * twips;
    const float lowerBar = bar.Top == 0 ? bar.Height * twips : 0;
    return x > 0 && x < screen.Width - sideBar && y > 0 && y < screen.Height - lowerBar;
}

/// After an arrow the cursor moves along with the mark of the TAB walk; where it can't, the walk
/// ends.
void followWithCursor(Zevlin& form, const Place& before) {
    if (!form.TabActive) return;
    const auto twips = static_cast<float>(form.TwipsPerPixel);
    const auto cursor = toolkit::cursorPosition();
    const float x = static_cast<float>(cursor.x) * twips - wholeTwips(before.left - form.P1.Left);
    const float y = static_cast<float>(cursor.y) * twips - wholeTwips(before.top - form.P1.Top);
    if (!cursorCanFollow(form, x, y)) {
        endRest(form);
        return;
    }
    form.TabCursorX = toolkit::roundToInteger(x / twips);
    form.TabCursorY = toolkit::roundToInteger(y / twips);
    toolkit::setCursorPosition({form.TabCursorX, form.TabCursorY});
}

/// An item's place on the card and the margin that it should have around it, twips.
struct ItemPlace {
    Place place;
    float marginX = 0;
    float marginY = 0;
};

const toolkit::Label& labelOf(const Zevlin& form, int item) {
    return item >= firstMarkItem ? form.AMark[item - firstMarkItem] : form.AText[item];
}

ItemPlace placeOfItem(const toolkit::Label& label, bool isMark) {
    if (!isMark) return {{label.Left, label.Top}, label.Width / 4, 2 * label.Height};
    return {{label.Left + label.Width / 3, label.Top + label.Height / 3},
            2 * label.Width,
            2 * label.Height};
}

Area allowedArea(const Zevlin& form, const toolkit::TaskBar& bar) {
    const auto screen = toolkit::screen();
    const auto twips = static_cast<float>(form.TwipsPerPixel);
    Area area{std::max(0.0F, form.Left), std::max(0.0F, form.Top), form.Left + form.Width,
              form.Top + form.Height};
    if (area.right > screen.Width) {
        area.right = screen.Width - (bar.Top <= 0 ? bar.Width * twips : 0);
    }
    if (area.bottom > screen.Height) {
        area.bottom = screen.Height - (bar.Top > 0 ? bar.Height * twips : 0);
    }
    return area;
}

void pullOnScreen(Zevlin& form, int item) {
    const auto bar = GetTaskBarSize(form);
    const Area area = allowedArea(form, bar);
    const Area visible = visibleArea(form, bar);
    const toolkit::Label& label = labelOf(form, item);
    const ItemPlace wanted = placeOfItem(label, item >= firstMarkItem);
    const float x = form.FrameWidth + form.Left + form.P1.Left + wanted.place.left;
    const float y = form.FrameHeight + form.Top + form.P1.Top + wanted.place.top;
    float left = form.P1.Left + pull(x, area.left, area.right, wanted.marginX);
    float top = form.P1.Top + pull(y, area.top, area.bottom, wanted.marginY);
    const float room = roomAroundField(form);
    left += pullWhole(left + label.Left, left + label.Left + label.Width, visible.left,
                      visible.right, room);
    top += pullWhole(top + label.Top, top + label.Top + label.Height, visible.top, visible.bottom,
                     room);
    if (left == form.P1.Left && top == form.P1.Top) return;
    Traceit(form, "  CheckOnScreen results: P1 was: " + numberText(form.P1.Left) + ", " +
                      numberText(form.P1.Top) + " ... is: " + numberText(left) + ", " +
                      numberText(top));
    form.P1.Move(left, top);
}

/// A card that has room in the form stays where the zoom has put it; a larger one leaves no gap.
float withoutGap(float wanted, float now, float room, float size) {
    return size <= room ? now : std::clamp(wanted, room - size, 0.0F);
}

/// The point of the card under the pointer, which is given in pixels of the screen, stays there.
void zoomAt(Zevlin& form, int rotation, int x, int y) {
    const auto twips = static_cast<float>(form.TwipsPerPixel);
    const auto across = [&] { return twips * static_cast<float>(x) - form.FrameWidth - form.Left; };
    const auto down = [&] { return twips * static_cast<float>(y) - form.FrameHeight - form.Top; };
    const toolkit::PictureBox& card = form.P1;
    const float width = card.Width;
    const float shareAcross = (across() - card.Left) / card.Width;
    const float shareDown = (down() - card.Top) / card.Height;
    if (rotation > 0)
        MZoomIn_Click(form);
    else
        MZoomOut_Click(form);
    if (card.Width == width) return;
    form.P1.Move(
        withoutGap(across() - shareAcross * card.Width, card.Left, form.ScaleWidth(), card.Width),
        withoutGap(down() - shareDown * card.Height, card.Top, form.ScaleHeight(), card.Height));
}

/// Whether less of the card can be seen than a pointer could catch.
bool isOutOfSight(const Zevlin& form) {
    constexpr float pixels = 20;
    const float least = pixels * static_cast<float>(form.TwipsPerPixel);
    const auto seen = [](float place, float size, float room) {
        return std::min(place + size, room) - std::max(place, 0.0F);
    };
    return seen(form.P1.Left, form.P1.Width, form.ScaleWidth()) < least ||
           seen(form.P1.Top, form.P1.Height, form.ScaleHeight()) < least;
}

} // namespace

void endRest(Zevlin& form) {
    form.TabActive = false;
    if (form.TabLast == form.TabCode) form.TabLast = 0;
}

void MouseWheel(Zevlin& form, int keys, int rotation, int x, int y) {
    if (!form.P1.Visible || !form.WheelHooked) return;
    if (keys == toolkit::shift::ctrl) return zoomAt(form, rotation, x, y);
    const float step = stepOf(form);
    form.P1.Top = rotation > 0 ? std::min(wholeTwips(form.P1.Top + step), form.ScaleHeight())
                               : std::max(wholeTwips(form.P1.Top - step), -form.P1.Height);
}

void showWayHome(Zevlin& form) {
    const bool isNeeded = form.P1.Visible && !form.THelp.Visible && isOutOfSight(form);
    form.Hint = !isNeeded         ? ""
                : isEditing(form) ? "Esc, then Home brings the card back"
                                  : "Home brings the card back";
}

void CheckOnScreen(Zevlin& form, int item) {
    procedure(form, "CheckOnScreen", numberText(item), [&] { pullOnScreen(form, item); });
}

bool moveCardByKey(Zevlin& form, int keyCode, int shift) {
    if (isForBox(form, keyCode)) return false;
    const Place before{wholeTwips(form.P1.Left), wholeTwips(form.P1.Top)};
    if (const auto corner = cornerOf(form, keyCode)) {
        form.P1.Move(corner->left, corner->top);
        return true;
    }
    const auto next = shift == 0 ? stepped(form, keyCode) : std::nullopt;
    if (!next) return false;
    form.P1.Move(next->left, next->top);
    followWithCursor(form, before);
    return true;
}

} // namespace zev
