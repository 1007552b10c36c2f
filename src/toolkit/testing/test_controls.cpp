#include "toolkit/testing/test_controls.h"

#include <stdexcept>

#include <QtGui/QHelpEvent>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QToolTip>

#include "toolkit/base/qt_geometry.h"
#include "toolkit/base/qt_text.h"
#include "toolkit/testing/qt_test_window.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/control/qt_list_view.h"
#include "toolkit/window/panel/qt_panel_widget.h"

namespace toolkit::test {
namespace {

QWidget& shownWidget(const Control& control) {
    updateWindow();
    QWidget* widget = window().widgetOf(&control);
    if (widget == nullptr || !widget->isVisible()) throw std::logic_error("a control isn't shown");
    return *widget;
}

/// Where the pointer goes in the control: a list has its rows on a widget of their own.
QWidget& widgetUnderPointer(const Control& control) {
    QWidget& shown = shownWidget(control);
    const auto* list = dynamic_cast<ListView*>(&shown);
    return list == nullptr ? shown : *list->viewport();
}

/// The middle of the row in the list's own widget.
QPoint middleOfRow(const ListBox& list, int row) {
    const auto& view = dynamic_cast<const ListView&>(shownWidget(list));
    const QPoint inViewport = view.visualRect(view.model()->index(row, 0)).center();
    return view.viewport()->mapTo(&view, inViewport);
}

Bitmap partOf(const Bitmap& whole, const QRect& part) {
    Bitmap copy(part.width(), part.height());
    for (int y = 0; y < part.height(); ++y)
        for (int x = 0; x < part.width(); ++x)
            copy.setPixel(x, y, whole.pixel(part.x() + x, part.y() + y).value_or(white));
    return copy;
}

ScreenArea areaOn(const QWidget& widget, const QRect& place) {
    const QPoint corner = widget.mapToGlobal(place.topLeft());
    return {corner.x(), corner.y(), place.width(), place.height()};
}

} // namespace

PointOnCard pointIn(const Control& control, float x, float y) {
    QWidget& widget = shownWidget(control);
    const QPoint global = widget.mapToGlobal(QPoint(pixelsFromTwips(x), pixelsFromTwips(y)));
    const QPoint place = window().card().mapFromGlobal(global);
    return {twipsFromPixels(place.x()), twipsFromPixels(place.y())};
}

PointOnCard pointOn(const Control& control) {
    return pointIn(control, control.Width / 2, control.Height / 2);
}

PointOnCard pointOn(const Panel& panel, const Label& label) {
    return pointIn(panel, label.Left + label.Width / 2, label.Top + label.Height / 2);
}

PointOnCard pointOnRow(const ListBox& list, int row) {
    const QPoint middle = middleOfRow(list, row);
    return pointIn(list, twipsFromPixels(middle.x()), twipsFromPixels(middle.y()));
}

std::string toolTipAt(const Control& control, PointOnCard point) {
    QWidget& widget = widgetUnderPointer(control);
    const QPoint onCard(pixelsFromTwips(point.x), pixelsFromTwips(point.y));
    const QPoint global = window().card().mapToGlobal(onCard);
    QHelpEvent event(QEvent::ToolTip, widget.mapFromGlobal(global), global);
    // A tip takes its time to go, so one that wasn't replaced tells that there is none.
    const QString former = QStringLiteral("former tip");
    QToolTip::showText(global, former, &widget);
    send(widget, event);
    return QToolTip::text() == former ? std::string() : ansiText(QToolTip::text());
}

ScreenArea caretArea(const TextBox& box) {
    QWidget& widget = shownWidget(box);
    // It scrolls its text when it is painted.
    widget.repaint();
    // The platform tells of some room beside it, too.
    const QRect caret = widget.inputMethodQuery(Qt::ImCursorRectangle).toRect();
    return areaOn(widget, {caret.center().x(), caret.y(), 1, caret.height()});
}

ScreenArea insideArea() {
    const FormArea& area = window().form().area();
    return areaOn(area, area.rect());
}

ScreenArea toolTipArea() {
    for (const QWidget* widget : QApplication::topLevelWidgets())
        if (widget->isVisible() && widget->windowType() == Qt::ToolTip)
            return areaOn(*widget, widget->rect());
    return {};
}

Bitmap grabControl(const Control& control) {
    const QWidget& widget = shownWidget(control);
    const QPoint corner = widget.mapTo(&window().form(), QPoint());
    return partOf(grabWindow(), QRect(corner, widget.size()));
}

Bitmap grabLabel(const Panel& panel, const Label& label) {
    const QRect place = PanelWidget::placeOf(label);
    return partOf(grabControl(panel), place);
}

void useDesktop(Desktop desktop) {
    static const QPalette light = QApplication::palette();
    const QColor dark(49, 54, 59);
    QApplication::setPalette(desktop == Desktop::Dark ? QPalette(dark, dark) : light);
}

void turnWheelOver(const Control& control, int rotation) {
    QWidget& widget = widgetUnderPointer(control);
    const QPointF place = QRectF(widget.rect()).center();
    QWheelEvent event(place, widget.mapToGlobal(place), QPoint(), QPoint(0, rotation), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    send(widget, event);
}

bool isGreyed(const Control& control) { return !shownWidget(control).isEnabled(); }

} // namespace toolkit::test
