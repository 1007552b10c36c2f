#include "toolkit/qt_panel_widget.h"

#include <algorithm>

#include <QtGui/QPainter>

#include "toolkit/qt_geometry.h"
#include "toolkit/qt_gradient.h"
#include "toolkit/qt_label_painter.h"
#include "toolkit/qt_panel_labels.h"

namespace toolkit {

PanelWidget::PanelWidget(QWidget& area, Form& form, const PanelContents& panel, Delivery& delivery)
    : QWidget(&area), form_(form), panel_(panel), delivery_(delivery) {
    hide();
    setMouseTracking(true);
    setFocusPolicy(Qt::NoFocus);
    setContextMenuPolicy(Qt::PreventContextMenu);
    const PanelSite site{*this, form, *panel.box, delivery};
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

std::vector<const Label*> PanelWidget::labels() const {
    std::vector<const Label*> all(panel_.labels.begin(), panel_.labels.end());
    for (const LabelGroup& group : panel_.groups)
        for (const Label& label : *group.labels) all.push_back(&label);
    return all;
}

PanelWidget::Ground PanelWidget::wantedGround() const {
    const Panel& box = *panel_.box;
    return {box.Fill,      box.CornerRadius, box.Framed,
            box.BackColor, form_.Background, parentWidget()->height()};
}

void PanelWidget::pushPixels() {
    std::vector<Label> wanted;
    for (const Label* label : labels()) wanted.push_back(*label);
    Ground ground = wantedGround();
    if (wanted == shown_ && ground_ == ground) return;
    shown_ = std::move(wanted);
    ground_ = std::move(ground);
    update();
}

void PanelWidget::watch(KeyDelivery& keys) {
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
        else
            paintLabel(painter, *label);
    }
    for (const LabelGroup& group : panel_.groups)
        for (const Label& label : *group.labels)
            if (label.Visible) paintFramedLabel(painter, label);
}

} // namespace toolkit
