#include "toolkit/window/qt_form_widget.h"

#include <memory>
#include <utility>

#include <QtCore/QMimeData>
#include <QtCore/QTimer>
#include <QtGui/QCloseEvent>
#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>

#include "toolkit/base/qt_text.h"
#include "toolkit/window/control/qt_pointer.h"
#include "toolkit/window/input/qt_file_drop.h"

namespace toolkit {
namespace {

/// To the platform a plain widget is no window, even if it is one, and a pop-up menu hangs nowhere.
class AccessibleForm : public QAccessibleWidget {
  public:
    explicit AccessibleForm(FormWidget& form)
        : QAccessibleWidget(&form, QAccessible::Window), form_(form) {}

    [[nodiscard]] int childCount() const override {
        return QAccessibleWidget::childCount() + static_cast<int>(popups().size());
    }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        const int own = QAccessibleWidget::childCount();
        if (index < own) return QAccessibleWidget::child(index);
        const QList<QMenu*> open = popups();
        return index - own < open.size()
                   ? QAccessible::queryAccessibleInterface(open.at(index - own))
                   : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        const auto popup = popups().indexOf(qobject_cast<QMenu*>(child->object()));
        return popup < 0 ? QAccessibleWidget::indexOfChild(child)
                         : QAccessibleWidget::childCount() + static_cast<int>(popup);
    }

  private:
    [[nodiscard]] QList<QMenu*> popups() const {
        auto menus = form_.findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly);
        menus.removeIf([](const QMenu* menu) { return !menu->isVisible(); });
        return menus;
    }

    FormWidget& form_;
};

/// What lies on it overlaps, and the platform would tell of the hindmost.
class AccessibleArea : public QAccessibleWidget {
  public:
    explicit AccessibleArea(FormArea& area) : QAccessibleWidget(&area) {}

    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
        for (int index = childCount() - 1; index >= 0; --index)
            if (QAccessibleInterface* part = child(index);
                !part->state().invisible && part->rect().contains(x, y))
                return part;
        return nullptr;
    }
};

QAccessibleInterface* makeFormPart(const QString& /*className*/, QObject* object) {
    if (auto* form = dynamic_cast<FormWidget*>(object))
        return std::make_unique<AccessibleForm>(*form).release();
    if (auto* area = dynamic_cast<FormArea*>(object))
        return std::make_unique<AccessibleArea>(*area).release();
    return nullptr;
}

} // namespace

void answerAboutForms() { QAccessible::installFactory(makeFormPart); }

FormWidget::FormWidget(const WindowParts& parts, EventDispatcher& dispatcher, Wheel& wheel)
    : form_(*parts.form), dispatcher_(dispatcher), menuBar_(*this, parts, dispatcher),
      area_(*this, *parts.form, wheel), place_(*parts.form, *this) {
    setFocusPolicy(Qt::NoFocus);
    setAcceptDrops(true);
}

/// A bar without entries takes no room.
int FormWidget::menuHeight() const {
    if (menuBar_.actions().isEmpty()) return 0;
    return std::max(menuBar_.sizeHint().height(), menuBar_.heightForWidth(width()));
}

void FormWidget::pull() { place_.pull(menuHeight()); }

void FormWidget::push() {
    if (const QString title = qString(form_.Caption); title != windowTitle()) setWindowTitle(title);
    menuBar_.push();
    place_.pull(menuHeight());
    place_.push();
    layOut();
    area_.push();
    if (pointer_ != form_.MousePointer) setPointer(*this, pointer_ = form_.MousePointer);
}

void FormWidget::pushVisible() {
    if (isHidden() == form_.Visible) setVisible(form_.Visible);
}

void FormWidget::layOut() {
    const int height = menuHeight();
    menuBar_.setGeometry(0, 0, width(), height);
    area_.setGeometry(0, height, width(), std::max(0, this->height() - height));
}

/// The form hears of it when whoever sets the size is done.
void FormWidget::resizeEvent(QResizeEvent* /*event*/) {
    layOut();
    if (!form_.Resize || std::exchange(resizeQueued_, true)) return;
    QTimer::singleShot(0, this, [this] {
        resizeQueued_ = false;
        dispatcher_.run([this] { form_.Resize(); });
    });
}

/// Whether the window goes away is for the program to decide.
void FormWidget::closeEvent(QCloseEvent* event) {
    event->ignore();
    dispatcher_.askToClose();
}

/// A box, an open menu or a procedure at work keeps files away, too.
bool FormWidget::takesFile() const {
    return dragged_ && form_.TakesFile && dispatcher_.isIdle() &&
           QApplication::activeModalWidget() == nullptr && form_.TakesFile();
}

void FormWidget::dragEnterEvent(QDragEnterEvent* event) {
    dragged_ = draggedFile(*event->mimeData());
    answerDrag(*event, takesFile());
}

void FormWidget::dragMoveEvent(QDragMoveEvent* event) { answerDrag(*event, takesFile()); }

/// What it leads to comes later: the program that the file comes from waits for the end of this
/// event, and the player may be asked.
void FormWidget::dropEvent(QDropEvent* event) {
    answerDrag(*event, takesFile());
    if (!event->isAccepted()) return;
    dispatcher_.runLater([this, file = *std::exchange(dragged_, std::nullopt)] {
        if (!form_.TakesFile()) return;
        activateWindow();
        form_.FileDropped(file);
    });
}

/// The frame shows its real size only with the first exposure, which no handler sees.
bool FormWidget::event(QEvent* event) {
    if (event->type() == QEvent::Paint)
        QTimer::singleShot(0, this, [this] {
            pull();
            place_.push();
        });
    return QWidget::event(event);
}

} // namespace toolkit
