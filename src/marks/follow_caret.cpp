#include "marks/follow_caret.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "form/zevlin.h"
#include "marks/visible_area.h"
#include "text/edit_box.h"
#include "toolkit/text/font.h"

namespace zev {
namespace {

/// Twips from the card's left edge. The box scrolls a text that is longer than itself.
float caretOnCard(const toolkit::TextBox& box) {
    const std::string_view text = box.Text;
    const float spare = box.Width - toolkit::textWidth(box.Font, text);
    const float start = box.Alignment == toolkit::Alignment::Center ? spare / 2 : 0;
    const auto place = std::min(static_cast<std::size_t>(box.SelStart), text.size());
    const float caret = start + toolkit::textWidth(box.Font, text.substr(0, place));
    return box.Left + std::clamp(caret, 0.0F, box.Width);
}

/// Nothing where the caret is in sight. A field that has room comes whole; of a longer one so much
/// that the next letters needn't move the card again.
float pullAcross(const Zevlin& form, const toolkit::TextBox& box, const Area& visible) {
    const float caret = form.P1.Left + caretOnCard(box);
    if (caret >= visible.left && caret <= visible.right) return 0;
    const float room = visible.right - visible.left;
    const float left = form.P1.Left + box.Left;
    const float margin = roomAroundField(form);
    if (box.Width + 2 * margin <= room)
        return pullWhole(left, left + box.Width, visible.left, visible.right, margin);
    return pull(caret, visible.left, visible.right, room / 4);
}

} // namespace

void followCaret(Zevlin& form) {
    if (!isEditing(form)) {
        form.FollowedCaret = {};
        return;
    }
    const toolkit::TextBox& box = openBox(form);
    TextCaret caret{.field = form.TIndex, .place = box.SelStart, .text = box.Text};
    if (caret == form.FollowedCaret) return;
    form.FollowedCaret = std::move(caret);
    // A selection's moving end isn't known.
    if (box.SelLength > 0) return;
    const Area visible = visibleArea(form, toolkit::taskBar());
    if (visible.right <= visible.left || visible.bottom <= visible.top) return;
    const float across = pullAcross(form, box, visible);
    const float top = form.P1.Top + box.Top;
    const float down =
        pullWhole(top, top + box.Height, visible.top, visible.bottom, roomAroundField(form));
    if (across != 0 || down != 0) form.P1.Move(form.P1.Left + across, form.P1.Top + down);
}

} // namespace zev
