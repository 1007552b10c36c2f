// A list box on the form or on a panel. Internal to the toolkit's sources.
#pragma once

#include <QtGui/QAccessible>
#include <QtWidgets/QListView>

#include "toolkit/model/window_parts.h"
#include "toolkit/window/control/qt_control_looks.h"
#include "toolkit/window/control/qt_list_rows.h"

namespace toolkit {

class ListView : public QListView {
  public:
    ListView(QWidget& parent, Form& form, ListBox& list, EventDispatcher& dispatcher);
    ~ListView() override;

    void pull();
    void push();
    /// What the list does with a key that no handler has taken.
    void takeKey(QKeyEvent& event);
    /// Where a pop-up menu of the current row goes, among all screens.
    [[nodiscard]] QPoint placeBelowRow() const;

    // For screen readers.
    [[nodiscard]] bool isLink(int row) const { return list_.IsLink && list_.IsLink(row); }
    /// As a click on the row.
    void choose(int row);

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool focusNextPrevChild(bool /*next*/) override { return false; }

  private:
    void pushIndex();
    void pushTop();
    void tell(QAccessible::Event what, int row = -1);

    ListBox& list_;
    ControlMouse mouse_;
    ControlLooks looks_;
    ListRows rows_;
    ListRowPainter painter_;
    int knownIndex_ = -1;
    int knownTop_ = 0;
};

} // namespace toolkit
