#include "toolkit/window/qt_task_bar.h"

#include <algorithm>

namespace toolkit {

QRect barBeside(const QRect& whole, const QRect& free) {
    const int atLeft = free.left() - whole.left();
    const int atTop = free.top() - whole.top();
    const int atRight = whole.right() - free.right();
    const int atBottom = whole.bottom() - free.bottom();
    const int thickest = std::max({atLeft, atTop, atRight, atBottom});
    if (thickest <= 0) return {};
    if (thickest == atBottom) return {whole.left(), free.bottom() + 1, whole.width(), atBottom};
    if (thickest == atTop) return {whole.left(), whole.top(), whole.width(), atTop};
    if (thickest == atLeft) return {whole.left(), whole.top(), atLeft, whole.height()};
    return {free.right() + 1, whole.top(), atRight, whole.height()};
}

} // namespace toolkit
