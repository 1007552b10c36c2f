// A panel and its labels for screen readers. Internal to the toolkit's sources.
#pragma once

#include <string>
#include <vector>

#include <QtWidgets/QAccessibleWidget>

#include "toolkit/window/control/qt_painted_part.h"

namespace toolkit {

class PanelWidget;

/// Tells the platform how to ask about panels.
void answerAboutPanels();

/// Says what has changed among a panel's labels, if anybody listens.
void tellScreenReaders(PanelWidget& panel);

/// Its labels, and then its controls.
class AccessiblePanel : public QAccessibleWidget {
  public:
    explicit AccessiblePanel(PanelWidget& panel);

    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;

    /// Says what has changed since the last time.
    void tellChanges();

  private:
    /// What was said of a label last.
    struct Told {
        std::string name{};
        bool isChosen = false;
        friend bool operator==(const Told&, const Told&) = default;
    };

    [[nodiscard]] std::vector<Told> toTell() const;

    PanelWidget& panel_;
    // Made at the first question, and the platform asks through const functions.
    mutable PaintedParts labels_;
    mutable std::vector<Told> told_;
};

class AccessiblePanelLabel : public PressablePart {
  public:
    AccessiblePanelLabel(PanelWidget& panel, int index);

    [[nodiscard]] bool isValid() const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;

  protected:
    [[nodiscard]] bool canBePressed() const override;
    void press() override;

  private:
    PanelWidget& panel_;
    int index_;
};

} // namespace toolkit
