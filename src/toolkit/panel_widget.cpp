#include "toolkit/qt_panel_widget.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

#include "toolkit/qt_geometry.h"
#include "toolkit/qt_gradient.h"

namespace toolkit {

PanelWidget::PanelWidget(QWidget& container, const Form& form, const Panel& panel)
    : QWidget(&container), form_(form), panel_(panel) {
    setFocusPolicy(Qt::NoFocus);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setVisible(panel.Visible);
}

PanelWidget::Painted PanelWidget::wanted() const {
    return {panel_.Fill, panel_.CornerRadius, panel_.BackColor, form_.Background,
            parentWidget()->height()};
}

void PanelWidget::push() {
    looks_.push(*this, panel_, 0);
    if (Painted now = wanted(); painted_ != now) {
        painted_ = std::move(now);
        update();
    }
}

/// The corners let the form behind show through; smooth edges, not a mask.
void PanelWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const bool goesOn =
        panel_.Fill == PanelFill::FormGradient && form_.Background.backdrop == Backdrop::Gradient;
    painter.setBrush(goesOn
                         ? gradientBrush(form_.Background, parentWidget()->height(), y(), height())
                         : QBrush(qColor(panel_.BackColor)));
    painter.drawRoundedRect(rect(), panel_.CornerRadius, panel_.CornerRadius);
}

/// A press beside the panel's controls is no press on the form behind.
void PanelWidget::mousePressEvent(QMouseEvent* event) { event->accept(); }

} // namespace toolkit
