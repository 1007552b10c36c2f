#include "toolkit/window/panel/qt_accessible_panel.h"

#include <memory>
#include <utility>

#include "toolkit/base/qt_text.h"
#include "toolkit/window/panel/qt_panel_widget.h"

namespace toolkit {
namespace {

using Kind = PanelWidget::SpokenLabel::Kind;

QAccessibleInterface* makePanelPart(const QString& /*className*/, QObject* object) {
    auto* panel = dynamic_cast<PanelWidget*>(object);
    return panel == nullptr ? nullptr : std::make_unique<AccessiblePanel>(*panel).release();
}

} // namespace

void answerAboutPanels() { QAccessible::installFactory(makePanelPart); }

void tellScreenReaders(PanelWidget& panel) {
    if (!isHeard() || panel.isHidden()) return;
    auto* known = dynamic_cast<AccessiblePanel*>(QAccessible::queryAccessibleInterface(&panel));
    if (known != nullptr) known->tellChanges();
}

AccessiblePanel::AccessiblePanel(PanelWidget& panel)
    : QAccessibleWidget(&panel, QAccessible::Dialog), panel_(panel) {}

/// What it is for stands on it.
QString AccessiblePanel::text(QAccessible::Text kind) const {
    if (kind == QAccessible::Description)
        for (int index = 0; index < panel_.labelCount(); ++index)
            if (const auto label = panel_.spokenLabel(index); label.kind == Kind::Text)
                return qString(label.name);
    return QAccessibleWidget::text(kind);
}

int AccessiblePanel::childCount() const {
    labels_.resize(panel_.labelCount());
    if (told_.empty()) told_ = toTell();
    return labels_.size() + QAccessibleWidget::childCount();
}

QAccessibleInterface* AccessiblePanel::child(int index) const {
    if (index < 0 || index >= childCount()) return nullptr;
    if (index >= labels_.size()) return QAccessibleWidget::child(index - labels_.size());
    return labels_.at(
        index, [this, index] { return std::make_unique<AccessiblePanelLabel>(panel_, index); });
}

int AccessiblePanel::indexOfChild(const QAccessibleInterface* child) const {
    if (const int label = labels_.indexOf(child); label >= 0) return label;
    const int own = QAccessibleWidget::indexOfChild(child);
    return own < 0 ? own : own + panel_.labelCount();
}

QAccessibleInterface* AccessiblePanel::childAt(int x, int y) const {
    for (int index = childCount() - 1; index >= 0; --index) {
        QAccessibleInterface* part = child(index);
        if (!part->state().invisible && part->rect().contains(x, y)) return part;
    }
    return nullptr;
}

std::vector<AccessiblePanel::Told> AccessiblePanel::toTell() const {
    std::vector<Told> now;
    for (int index = 0; index < panel_.labelCount(); ++index) {
        const auto label = panel_.spokenLabel(index);
        now.push_back({.name = label.name, .isChosen = label.isChosen});
    }
    return now;
}

void AccessiblePanel::tellChanges() {
    if (told_.empty()) return;
    const std::vector<Told> before = std::exchange(told_, toTell());
    const std::vector<Told>& now = told_;
    if (before.size() != now.size()) {
        QAccessibleEvent event(&panel_, QAccessible::ObjectReorder);
        return tell(event);
    }
    for (std::size_t index = 0; index < now.size(); ++index) {
        QAccessibleInterface* part = child(static_cast<int>(index));
        if (before[index].name != now[index].name) {
            QAccessibleEvent event(part, QAccessible::NameChanged);
            tell(event);
        }
        if (before[index].isChosen == now[index].isChosen) continue;
        QAccessible::State changed;
        changed.checked = true;
        QAccessibleStateChangeEvent event(part, changed);
        tell(event);
    }
}

AccessiblePanelLabel::AccessiblePanelLabel(PanelWidget& panel, int index)
    : PressablePart(panel), panel_(panel), index_(index) {}

bool AccessiblePanelLabel::isValid() const { return index_ < panel_.labelCount(); }

QString AccessiblePanelLabel::text(QAccessible::Text kind) const {
    if (!isValid()) return {};
    const auto label = panel_.spokenLabel(index_);
    switch (kind) {
    case QAccessible::Name:
        return qString(label.name);
    case QAccessible::Description:
        return qString(label.description);
    default:
        return {};
    }
}

QRect AccessiblePanelLabel::rect() const {
    if (!isValid()) return {};
    const QRect place = PanelWidget::placeOf(*panel_.spokenLabel(index_).label);
    return {panel_.mapToGlobal(place.topLeft()), place.size()};
}

QAccessible::Role AccessiblePanelLabel::role() const {
    if (!isValid()) return QAccessible::StaticText;
    switch (panel_.spokenLabel(index_).kind) {
    case Kind::Text:
        return QAccessible::StaticText;
    case Kind::Button:
        return QAccessible::Button;
    case Kind::Choice:
        return QAccessible::RadioButton;
    }
    return QAccessible::StaticText;
}

QAccessible::State AccessiblePanelLabel::state() const {
    QAccessible::State state;
    state.invalid = !isValid();
    if (state.invalid) return state;
    const auto label = panel_.spokenLabel(index_);
    state.invisible = !panel_.isVisible() || !label.label->Visible;
    state.checkable = label.kind == Kind::Choice;
    state.checked = label.isChosen;
    return state;
}

bool AccessiblePanelLabel::canBePressed() const {
    return isValid() && panel_.spokenLabel(index_).kind != Kind::Text;
}

void AccessiblePanelLabel::press() { panel_.pressLabel(index_); }

} // namespace toolkit
