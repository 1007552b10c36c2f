// A list and its rows for screen readers. Internal to the toolkit's sources.
#pragma once

#include <QtWidgets/QAccessibleWidget>

#include "toolkit/window/control/qt_painted_part.h"

namespace toolkit {

class ListView;

/// Tells the platform how to ask about lists.
void answerAboutLists();

/// Its parts are its rows and nothing else. The platform's own ones can't be chosen.
class AccessibleList : public QAccessibleWidget {
  public:
    explicit AccessibleList(ListView& list);

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface* focusChild() const override;

  private:
    ListView& list_;
    mutable PaintedParts rows_; // made at the first question, and the platform asks through const
};

class AccessibleListRow : public PressablePart {
  public:
    AccessibleListRow(ListView& list, int row);

    [[nodiscard]] bool isValid() const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;

  protected:
    [[nodiscard]] bool canBePressed() const override { return isValid(); }
    void press() override;

  private:
    ListView& list_;
    int row_;
};

} // namespace toolkit
