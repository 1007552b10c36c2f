#include "toolkit/window/control/qt_list_view.h"

#include <QtCore/QItemSelectionModel>
#include <QtCore/QTimer>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>

#include "toolkit/base/qt_text.h"
#include "toolkit/window/control/qt_painted_part.h"

namespace toolkit {

ListView::ListView(QWidget& parent, Form& form, ListBox& list, EventDispatcher& dispatcher)
    : QListView(&parent), list_(list), mouse_(form, dispatcher, list, nullptr, 0),
      painter_(rows_, list) {
    hide();
    setFrameStyle(QFrame::Box | QFrame::Plain);
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, Qt::gray);
    setPalette(colors);
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setHorizontalScrollBarPolicy(list.ScrollsAcross ? Qt::ScrollBarAsNeeded
                                                    : Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setFocusPolicy(Qt::NoFocus);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setItemDelegate(&painter_);
    setModel(&rows_);
}

ListView::~ListView() { setModel(nullptr); }

void ListView::pull() {
    if (isHidden()) return;
    if (const int top = verticalScrollBar()->value(); top != knownTop_)
        knownTop_ = list_.TopIndex = top;
    if (currentIndex().row() == knownIndex_) return;
    knownIndex_ = list_.ListIndex = currentIndex().row();
}

/// A hidden list keeps its old rows: comparing thousands of them after each event would cost.
void ListView::push() {
    if (list_.Visible) {
        // Setting no current row keeps the view from choosing one when it gets the focus.
        if (rows_.replace(list_.List)) {
            setCurrentIndex({});
            tell(QAccessible::ObjectReorder);
        }
        pushIndex();
        pushTop();
        if (const QString tip = qString(list_.ToolTip); tip != toolTip()) setToolTip(tip);
    }
    looks_.push(*this, list_, {});
}

void ListView::pushIndex() {
    knownIndex_ = list_.ListIndex;
    if (currentIndex().row() != list_.ListIndex) setCurrentIndex(rows_.index(list_.ListIndex));
}

/// Rows scroll as wholes, so the bar's value is a row.
void ListView::pushTop() {
    if (list_.TopIndex == knownTop_) return;
    verticalScrollBar()->setValue(list_.TopIndex);
    knownTop_ = list_.TopIndex = verticalScrollBar()->value();
}

void ListView::takeKey(QKeyEvent& event) {
    if (list_.ScrollsAcross && (event.key() == Qt::Key_Left || event.key() == Qt::Key_Right))
        return horizontalScrollBar()->triggerAction(event.key() == Qt::Key_Left
                                                        ? QAbstractSlider::SliderSingleStepSub
                                                        : QAbstractSlider::SliderSingleStepAdd);
    const int before = currentIndex().row();
    keyPressEvent(&event);
    if (list_.ClicksByKey && currentIndex().row() != before) mouse_.send(&Control::Click);
}

void ListView::choose(int row) {
    if (!isVisible() || QApplication::activeModalWidget() != nullptr) return;
    mouse_.takeFocus();
    list_.PointedIndex = row;
    setCurrentIndex(rows_.index(row));
    mouse_.send(&Control::Click);
}

/// The platform tells of the list alone, and it does so last.
void ListView::focusInEvent(QFocusEvent* event) {
    QListView::focusInEvent(event);
    QTimer::singleShot(0, this, [this] {
        if (hasFocus() && currentIndex().isValid()) tell(QAccessible::Focus, currentIndex().row());
    });
}

void ListView::tell(QAccessible::Event what, int row) {
    if (!isHeard()) return;
    QAccessibleEvent event(this, what);
    event.setChild(row);
    toolkit::tell(event);
}

QPoint ListView::placeBelowRow() const {
    const QRect row = visualRect(currentIndex());
    return viewport()->mapToGlobal(row.bottomLeft() + QPoint(row.height(), 1));
}

void ListView::mousePressEvent(QMouseEvent* event) {
    list_.PointedIndex = indexAt(event->position().toPoint()).row();
    if (mouse_.press(*this, *event) == ControlMouse::Own::Handle) QListView::mousePressEvent(event);
    event->accept();
}

void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
    if (event->button() == Qt::LeftButton && list_.PointedIndex >= 0)
        mouse_.send(&Control::DblClick);
}

void ListView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::RightButton) QListView::mouseReleaseEvent(event);
    mouse_.release(*this, *event);
    if (event->button() == Qt::LeftButton && list_.PointedIndex >= 0) mouse_.send(&Control::Click);
    event->accept();
}

/// At its ends, too, the list keeps the wheel to itself, or the card behind it would move.
void ListView::wheelEvent(QWheelEvent* event) {
    QListView::wheelEvent(event);
    event->accept();
}

} // namespace toolkit
