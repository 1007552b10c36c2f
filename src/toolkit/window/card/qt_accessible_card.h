// The card and its fields for screen readers. Internal to the toolkit's sources.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QtGui/QAccessible>
#include <QtWidgets/QAccessibleWidget>

#include "toolkit/model/window_parts.h"
#include "toolkit/window/input/qt_event_dispatcher.h"

namespace toolkit {

class CardWidget;

/// Tells the platform how to ask about cards.
void answerAboutCards();

/// Says what has changed on the card, if anybody listens.
void tellScreenReaders(CardWidget& card);

/// The card's widget: its sections, and then the boxes that lie over it.
class AccessibleCardWidget : public QAccessibleWidget {
  public:
    explicit AccessibleCardWidget(CardWidget& card);
    ~AccessibleCardWidget() override;

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface* focusChild() const override;

    /// Says what has changed since the last time, to whoever has asked before.
    void tellChanges();

  private:
    /// What was said of a field last.
    struct Told {
        FieldId field;
        QAccessible::Id id = 0;
        bool isSet = false;
        std::string text{};
    };

    void build() const;
    void forget() const;
    [[nodiscard]] QAccessibleInterface* interfaceOf(FieldId field) const;
    void tellField(Told& told);
    void tellFocus();

    CardWidget& card_;
    // Built at the first question, and the platform asks through const functions.
    mutable int fieldCount_ = -1; ///< none built yet
    mutable std::vector<QAccessible::Id> sections_;
    mutable std::vector<Told> fields_;
    mutable std::optional<FieldId> focused_;
};

} // namespace toolkit
