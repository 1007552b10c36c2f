// What the mouse does on a panel beside its controls.
#include <algorithm>
#include <utility>

#include <QtGui/QHelpEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QToolTip>

#include "toolkit/qt_geometry.h"
#include "toolkit/qt_input.h"
#include "toolkit/qt_panel_widget.h"
#include "toolkit/qt_text.h"

namespace toolkit {

std::optional<PanelWidget::Target> PanelWidget::groupTargetAt(QPoint place) const {
    for (const LabelGroup& group : panel_.groups) {
        for (int index = group.labels->UBound(); index >= 0; --index) {
            const Label& label = (*group.labels)[index];
            if (!label.Visible || !placeOf(label).contains(place)) continue;
            Target target{.label = &label};
            if (group.MouseDown)
                target.MouseDown = [&group, index](MouseArguments& mouse) {
                    group.MouseDown(index, mouse);
                };
            if (group.Click) target.Click = [&group, index] { group.Click(index); };
            return target;
        }
    }
    return std::nullopt;
}

std::optional<PanelWidget::Target> PanelWidget::targetAt(QPoint place) const {
    const auto found = std::ranges::find_if(panel_.labels, [place](const PanelLabel* label) {
        return label->Visible && placeOf(*label).contains(place);
    });
    if (found == panel_.labels.end()) return groupTargetAt(place);
    const PanelLabel& label = **found;
    return Target{&label, label.MouseDown, label.Click, label.ToolTip};
}

void PanelWidget::mousePressEvent(QMouseEvent* event) {
    event->accept();
    const QPoint place = pixelUnder(*event, *this);
    const auto target = targetAt(place);
    pressed_ = target && event->button() == Qt::LeftButton ? target->label : nullptr;
    if (!target || !target->MouseDown || buttonOf(event->button()) == 0) return;
    const QPoint inside = place - placeOf(*target->label).topLeft();
    MouseArguments arguments{buttonOf(event->button()), shiftOf(event->modifiers()),
                             twipsFromPixels(inside.x()), twipsFromPixels(inside.y())};
    delivery_.run([&] { target->MouseDown(arguments); });
}

void PanelWidget::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() != Qt::LeftButton) return;
    const auto target = targetAt(pixelUnder(*event, *this));
    const Label* pressed = std::exchange(pressed_, nullptr);
    if (target && target->label == pressed && target->Click) delivery_.run(target->Click);
}

/// A label that does something shows a hand.
void PanelWidget::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    const auto target = targetAt(pixelUnder(*event, *this));
    if (target && (target->Click || !target->ToolTip.empty())) {
        setCursor(Qt::PointingHandCursor);
    } else {
        unsetCursor();
    }
}

/// The wheel stays on the panel, or what lies behind it would move.
void PanelWidget::wheelEvent(QWheelEvent* event) { event->accept(); }

bool PanelWidget::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto& help = *static_cast<QHelpEvent*>(event);
    const auto target = targetAt(help.pos());
    if (target && !target->ToolTip.empty())
        QToolTip::showText(help.globalPos(), qString(target->ToolTip), this,
                           placeOf(*target->label));
    else
        QToolTip::hideText();
    return true;
}

} // namespace toolkit
