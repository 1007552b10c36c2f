#include "toolkit/window/panel/qt_panel_widget.h"

#include <algorithm>
#include <utility>

#include <QtGui/QHelpEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QToolTip>

#include "toolkit/base/key.h"
#include "toolkit/base/qt_geometry.h"
#include "toolkit/base/qt_text.h"
#include "toolkit/window/card/qt_label_painter.h"
#include "toolkit/window/input/qt_mouse_input.h"
#include "toolkit/window/panel/qt_gradient.h"
#include "toolkit/window/panel/qt_panel_labels.h"

namespace toolkit {
namespace {

bool canHaveFocus(const PanelPart& part) { return part.control->Visible && part.control->Enabled; }

std::string toolTipOf(const PanelLabel& label) {
    const std::string text = paintedText(label.Caption);
    if (!label.Shortens || textWidth(label.Font, text) <= label.Width) return label.ToolTip;
    return label.ToolTip.empty() ? text : text + '\n' + label.ToolTip;
}

} // namespace

PanelWidget::PanelWidget(QWidget& area, Form& form, const PanelContents& panel,
                         EventDispatcher& dispatcher)
    : QWidget(&area), form_(form), panel_(panel), dispatcher_(dispatcher) {
    hide();
    setMouseTracking(true);
    setFocusPolicy(Qt::NoFocus);
    setContextMenuPolicy(Qt::PreventContextMenu);
    const PanelSite site{*this, form, *panel.box, dispatcher};
    for (const PanelControl& control : panel.controls) parts_.push_back(makePart(site, control));
}

void PanelWidget::pull() {
    if (isHidden()) return;
    for (const PanelPart& part : parts_) part.pull();
}

void PanelWidget::push() {
    const Panel& box = *panel_.box;
    if (box.Visible) {
        if (const QRect place = pixelRectangle(box); place != geometry()) setGeometry(place);
        for (const PanelPart& part : parts_) part.push();
        pushPixels();
    }
    if (isHidden() == box.Visible) setVisible(box.Visible);
}

int PanelWidget::labelCount() const {
    auto count = static_cast<int>(panel_.labels.size());
    for (const LabelGroup& group : panel_.groups) count += group.labels->UBound() + 1;
    return count;
}

PanelWidget::Ground PanelWidget::wantedGround() const {
    const Panel& box = *panel_.box;
    return {box.Fill,      box.CornerRadius, box.Framed,
            box.BackColor, form_.Background, parentWidget()->height()};
}

bool PanelWidget::showsAllLabels() const {
    const int count = labelCount();
    if (static_cast<int>(shown_.size()) != count) return false;
    for (int index = 0; index < count; ++index)
        if (shown_[static_cast<std::size_t>(index)] != labelAt(index)) return false;
    return true;
}

void PanelWidget::pushPixels() {
    Ground ground = wantedGround();
    if (ground_ == ground && showsAllLabels()) return;
    shown_.clear();
    for (int index = 0; index < labelCount(); ++index) shown_.push_back(labelAt(index));
    ground_ = std::move(ground);
    update();
}

void PanelWidget::watch(KeyDispatcher& keys) {
    for (const PanelPart& part : parts_)
        keys.watch(*part.widget, *part.control,
                   [this, &part](QKeyEvent& event) { takeKey(part, event); });
}

QWidget* PanelWidget::widgetOf(const Control* control) {
    if (control == panel_.box) return this;
    const auto found = std::ranges::find(parts_, control, &PanelPart::control);
    return found == parts_.end() ? nullptr : found->widget.get();
}

QRect PanelWidget::placeOf(const Label& label) { return pixelRectangle(label); }

/// The corners let the form behind show through; smooth edges, not a mask.
void PanelWidget::paintGround(QPainter& painter) const {
    const Panel& box = *panel_.box;
    const int formHeight = parentWidget()->height();
    const bool goesOn =
        box.Fill == PanelFill::FormGradient && form_.Background.backdrop == Backdrop::Gradient;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(goesOn ? gradientBrush(form_.Background, formHeight, y(), height())
                            : QBrush(qColor(box.BackColor)));
    painter.drawRoundedRect(rect(), box.CornerRadius, box.CornerRadius);
    if (box.Framed) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(frameColor(goesOn ? gradientColor(form_.Background, y(), formHeight)
                                         : qColor(box.BackColor)));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), box.CornerRadius,
                                box.CornerRadius);
    }
    painter.restore();
}

void PanelWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    paintGround(painter);
    for (const PanelLabel* label : panel_.labels) {
        if (!label->Visible) continue;
        if (label->BackStyle == BackStyle::Opaque)
            paintFramedLabel(painter, *label);
        else if (label->Wraps)
            paintWrappedLabel(painter, *label);
        else if (label->Shortens)
            paintShortenedLabel(painter, *label);
        else
            paintLabel(painter, *label);
    }
    for (const LabelGroup& group : panel_.groups)
        for (const Label& label : *group.labels)
            if (label.Visible) paintFramedLabel(painter, label);
}

void PanelWidget::takeKey(const PanelPart& part, QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Tab:
        return walk(part, 1);
    case Qt::Key_Backtab:
        return walk(part, -1);
    case Qt::Key_Escape:
        return clickWhere(&CommandButton::Cancel);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return part.button != nullptr ? click(*part.button) : clickWhere(&CommandButton::Default);
    case Qt::Key_Space:
        if (part.button != nullptr) return click(*part.button);
        break;
    default:
        break;
    }
    part.takeKey(event);
}

/// From the first such step on, the platform shows where the focus is.
void PanelWidget::walk(const PanelPart& from, int step) {
    window()->setAttribute(Qt::WA_KeyboardFocusChange);
    const auto count = static_cast<int>(parts_.size());
    const auto start = static_cast<int>(&from - parts_.data());
    for (int i = 1; i < count; ++i) {
        const PanelPart& next =
            parts_[static_cast<std::size_t>((start + i * step + i * count) % count)];
        if (canHaveFocus(next)) return dispatcher_.run([&] { form_.SetFocus(*next.control); });
    }
}

/// A key that is held down presses a button once.
void PanelWidget::click(const CommandButton& button) {
    if (!button.Visible || !button.Enabled || isKeyRepeat()) return;
    dispatcher_.run([&] {
        if (button.Click) button.Click();
    });
}

void PanelWidget::clickWhere(bool CommandButton::*role) {
    const auto found = std::ranges::find_if(parts_, [role](const PanelPart& part) {
        return part.button != nullptr && part.button->*role;
    });
    if (found != parts_.end()) click(*found->button);
}

PanelWidget::Place PanelWidget::placeAmong(int index) const {
    const auto single = static_cast<int>(panel_.labels.size());
    if (index < single) return {.label = panel_.labels[static_cast<std::size_t>(index)]};
    index -= single;
    for (const LabelGroup& group : panel_.groups) {
        const int count = group.labels->UBound() + 1;
        if (index < count) return {.group = &group, .index = index};
        index -= count;
    }
    return {};
}

const Label& PanelWidget::labelAt(int index) const {
    const Place place = placeAmong(index);
    if (place.label != nullptr) return *place.label;
    return (*place.group->labels)[place.index];
}

PanelWidget::Target PanelWidget::targetOf(int index) const {
    const Place place = placeAmong(index);
    if (const PanelLabel* label = place.label)
        return {label, label->MouseDown, label->Click, toolTipOf(*label)};
    const LabelGroup& group = *place.group;
    Target target{.label = &(*group.labels)[place.index]};
    if (group.MouseDown)
        target.MouseDown = [&group, index = place.index](MouseArguments& mouse) {
            group.MouseDown(index, mouse);
        };
    if (group.Click) target.Click = [&group, index = place.index] { group.Click(index); };
    return target;
}

std::optional<PanelWidget::Target> PanelWidget::targetAt(QPoint place) const {
    for (int index = 0; index < labelCount(); ++index)
        if (const Label& label = labelAt(index); label.Visible && placeOf(label).contains(place))
            return targetOf(index);
    return std::nullopt;
}

/// One that does something is a button; so its pointer is a hand.
PanelWidget::SpokenLabel PanelWidget::spokenLabel(int index) const {
    const Place place = placeAmong(index);
    if (const PanelLabel* label = place.label) {
        const bool acts = label->Click || !label->ToolTip.empty();
        return {.kind = acts ? SpokenLabel::Kind::Button : SpokenLabel::Kind::Text,
                .label = label,
                .name = label->AccessibleName.empty() ? paintedText(label->Caption)
                                                      : label->AccessibleName,
                .description = label->ToolTip};
    }
    const LabelGroup& group = *place.group;
    const Label& label = (*group.labels)[place.index];
    return {.kind = group.IsChosen ? SpokenLabel::Kind::Choice : SpokenLabel::Kind::Button,
            .label = &label,
            .name = group.AccessibleName ? group.AccessibleName(place.index)
                                         : paintedText(label.Caption),
            .isChosen = group.IsChosen && group.IsChosen(place.index)};
}

void PanelWidget::pressLabel(int index) {
    const Target target = targetOf(index);
    if (!isVisible() || !target.label->Visible || QApplication::activeModalWidget() != nullptr)
        return;
    if (target.MouseDown) press(target, {.Button = button::left});
    if (target.Click) dispatcher_.run(target.Click);
}

void PanelWidget::press(const Target& target, MouseArguments arguments) {
    dispatcher_.run([&] { target.MouseDown(arguments); });
}

void PanelWidget::mousePressEvent(QMouseEvent* event) {
    event->accept();
    const QPoint place = pixelUnder(*event, *this);
    const auto target = targetAt(place);
    pressed_ = target && event->button() == Qt::LeftButton ? target->label : nullptr;
    if (!target || !target->MouseDown || buttonOf(event->button()) == 0) return;
    const QPoint inside = place - placeOf(*target->label).topLeft();
    press(*target, {buttonOf(event->button()), shiftOf(event->modifiers()),
                    twipsFromPixels(inside.x()), twipsFromPixels(inside.y())});
}

void PanelWidget::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() != Qt::LeftButton) return;
    const auto target = targetAt(pixelUnder(*event, *this));
    const Label* pressed = std::exchange(pressed_, nullptr);
    if (target && target->label == pressed && target->Click) dispatcher_.run(target->Click);
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
