// A list box on the form or on a panel. Internal to the toolkit's sources.
#pragma once

#include <QtCore/QAbstractListModel>
#include <QtWidgets/QAbstractItemDelegate>
#include <QtWidgets/QListView>

#include "toolkit/qt_control_looks.h"
#include "toolkit/window_parts.h"

namespace toolkit {

/// The rows as the program set them last; each becomes Unicode only when it is asked for.
class ListRows : public QAbstractListModel {
  public:
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] const std::string& row(int index) const;
    /// Whether the rows were others before.
    bool replace(const std::vector<std::string>& rows);

  private:
    std::vector<std::string> rows_;
};

/// Paints a row as labels are painted, no higher than its line, so that a list that was sized by
/// its lines needs no scroll bar.
class ListRowPainter : public QAbstractItemDelegate {
  public:
    ListRowPainter(const ListRows& rows, const ListBox& list) : rows_(rows), list_(list) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;

  private:
    const ListRows& rows_;
    const ListBox& list_;
};

class ListView : public QListView {
  public:
    ListView(QWidget& parent, Form& form, ListBox& list, Delivery& delivery);
    ~ListView() override;

    void pull();
    void push();
    /// What the list does with a key that no handler has taken.
    void takeKey(QKeyEvent& event);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool focusNextPrevChild(bool /*next*/) override { return false; }

  private:
    void pushIndex();

    ListBox& list_;
    ControlMouse mouse_;
    ControlLooks looks_;
    ListRows rows_;
    ListRowPainter painter_;
    int knownIndex_ = -1;
};

} // namespace toolkit
