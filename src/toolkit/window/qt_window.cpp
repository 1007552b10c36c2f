#include "toolkit/window/qt_window.h"

#include <algorithm>
#include <utility>

#include <QtCore/QCoreApplication>

#include "toolkit/base/qt_text.h"
#include "toolkit/window/card/qt_accessible_card.h"
#include "toolkit/window/control/qt_painted_part.h"
#include "toolkit/window/panel/qt_accessible_panel.h"
#include "toolkit/window/qt_screen.h"

namespace toolkit {
namespace {

WindowImplementation*& theWindow() {
    static WindowImplementation* window = nullptr;
    return window;
}

bool quitUnlessRefused(const std::function<bool()>& refuses) {
    if (refuses && refuses()) return false;
    QCoreApplication::exit();
    return true;
}

} // namespace

WindowImplementation* currentWindow() { return theWindow(); }

void updateWindow() {
    if (theWindow() == nullptr) return;
    theWindow()->pull();
    theWindow()->push();
}

WindowImplementation::WindowImplementation(WindowParts shown)
    : parts_(std::move(shown)),
      dispatcher_({[this] { pull(); },
                   [this] {
                       if (parts_.form->Settled) parts_.form->Settled();
                   },
                   [this] { push(); },
                   [this](const RunTimeError& failure) {
                       if (parts_.form->Unhandled) parts_.form->Unhandled(failure);
                   },
                   [this] { quitUnlessRefused(parts_.form->QueryClose); },
                   [this] { return quitUnlessRefused(parts_.form->QueryEnd); }}),
      wheel_(*parts_.form, dispatcher_), form_(parts_, dispatcher_, wheel_),
      card_(form_.area(), parts_, dispatcher_, wheel_),
      keys_(parts_, dispatcher_,
            [this](const QKeyEvent& event) { return form_.menuBar().runShortcut(event); }) {
    for (TextBox* box : parts_.cardTextBoxes)
        boxes_.push_back(std::make_unique<EditBox>(card_, *parts_.form, *box, *parts_.card,
                                                   dispatcher_, EditBox::Place::Card));
    for (ListBox* list : parts_.lists)
        lists_.push_back(
            std::make_unique<ListView>(form_.area(), *parts_.form, *list, dispatcher_));
    for (const PanelContents& panel : parts_.panels)
        panels_.push_back(
            std::make_unique<PanelWidget>(form_.area(), *parts_.form, panel, dispatcher_));
    for (TextBox* overlay : parts_.overlays)
        overlays_.push_back(std::make_unique<Overlay>(form_.area(), *overlay));
    watchKeys();
    nameControls();
    theWindow() = this;
    reckonByScreenOf(&form_);
    // The bar's height belongs to the frame, by which the program sizes the form before its first
    // event.
    form_.menuBar().push();
    form_.pull();
}

WindowImplementation::~WindowImplementation() {
    form_.menuBar().stopTelling();
    reckonByScreenOf(nullptr);
    theWindow() = nullptr;
}

void WindowImplementation::watchKeys() {
    keys_.watch(form_);
    keys_.watch(card_);
    for (std::size_t index = 0; index < boxes_.size(); ++index) {
        EditBox& box = *boxes_[index];
        keys_.watch(box, *parts_.cardTextBoxes[index],
                    [&box](QKeyEvent& event) { box.takeKey(event); });
    }
    for (std::size_t index = 0; index < lists_.size(); ++index) {
        ListView& list = *lists_[index];
        keys_.watch(list, *parts_.lists[index], [&list](QKeyEvent& event) { list.takeKey(event); });
    }
    for (const auto& panel : panels_) panel->watch(keys_);
}

void WindowImplementation::nameControls() {
    const auto name = [this](const Control& control) {
        if (QWidget* widget = widgetOf(&control);
            widget != nullptr && !control.AccessibleName.empty())
            widget->setAccessibleName(qString(control.AccessibleName));
    };
    for (const ListBox* list : parts_.lists) name(*list);
    for (const PanelContents& panel : parts_.panels) {
        name(*panel.box);
        for (const PanelControl& control : panel.controls)
            std::visit([&](const auto* shown) { name(*shown); }, control);
    }
}

/// The box over a text bears the text's name.
void WindowImplementation::nameOpenBox() {
    if (!isHeard() || !parts_.accessible.focused) return;
    const auto focused = parts_.accessible.focused();
    if (!focused || focused->kind != FieldId::Kind::Text) return;
    const QString name = qString(parts_.accessible.name(*focused));
    for (const auto& box : boxes_)
        if (!box->isHidden() && box->accessibleName() != name) box->setAccessibleName(name);
}

void WindowImplementation::pushNote() {
    if (parts_.note == nullptr) return;
    if (note_ == nullptr && parts_.note->Visible)
        note_ = std::make_unique<NoteView>(form_.area(), *parts_.note, dispatcher_);
    if (note_ != nullptr) note_->push();
}

void WindowImplementation::pull() {
    if (pushing_) return;
    form_.pull();
    for (const auto& box : boxes_) box->pull();
    for (const auto& list : lists_) list->pull();
    for (const auto& panel : panels_) panel->pull();
}

void WindowImplementation::push() {
    if (std::exchange(pushing_, true)) return;
    form_.push();
    card_.push();
    for (const auto& box : boxes_) box->push();
    for (const auto& list : lists_) list->push();
    for (const auto& panel : panels_) panel->push();
    pushStacking();
    for (const auto& overlay : overlays_) overlay->push();
    pushNote();
    nameOpenBox();
    pushFocus();
    form_.pushVisible();
    tellScreenReaders(card_);
    for (const auto& panel : panels_) tellScreenReaders(*panel);
    pushing_ = false;
}

QWidget* WindowImplementation::widgetOf(const Control* control) {
    if (control == parts_.card) return &card_;
    for (std::size_t index = 0; index < boxes_.size(); ++index)
        if (parts_.cardTextBoxes[index] == control) return boxes_[index].get();
    for (std::size_t index = 0; index < lists_.size(); ++index)
        if (parts_.lists[index] == control) return lists_[index].get();
    for (const auto& panel : panels_)
        if (QWidget* widget = panel->widgetOf(control)) return widget;
    return nullptr;
}

bool WindowImplementation::isShown(const Control& control) {
    if (!control.Visible) return false;
    return std::ranges::all_of(panels_, [&control](const auto& panel) {
        return panel->widgetOf(&control) == nullptr || panel->box().Visible;
    });
}

/// Where the keys go is the form's to say; the platform's focus follows it, so nothing that the
/// platform does to its own focus (menus, boxes, other programs) is an event of the form's.
void WindowImplementation::pushFocus() {
    Control*& active = parts_.form->ActiveControl;
    QWidget* widget = widgetOf(active);
    if (widget != nullptr && !isShown(*active)) {
        active = parts_.card;
        widget = &card_;
    }
    if (widget == nullptr) widget = &card_;
    if (widget->isHidden()) widget = &form_;
    if (form_.focusWidget() != widget) widget->setFocus(Qt::OtherFocusReason);
}

void WindowImplementation::pushStacking() {
    std::vector<const Control*> order{parts_.card};
    order.insert(order.end(), parts_.lists.begin(), parts_.lists.end());
    for (const PanelContents& panel : parts_.panels) order.push_back(panel.box);
    std::ranges::stable_sort(order, {}, &Control::Stack);
    if (order == stacked_) return;
    for (const Control* control : order) widgetOf(control)->raise();
    stacked_ = std::move(order);
}

} // namespace toolkit
