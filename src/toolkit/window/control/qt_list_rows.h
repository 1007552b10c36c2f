// The rows of a list box. Internal to the toolkit's sources.
#pragma once

#include <string>
#include <vector>

#include <QtCore/QAbstractListModel>
#include <QtWidgets/QAbstractItemDelegate>

#include "toolkit/model/control.h"

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
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

  private:
    [[nodiscard]] int indent() const;
    /// The row as it is painted in a rectangle of this width, pixels.
    [[nodiscard]] std::string shownRow(int row, int width) const;
    [[nodiscard]] int rowWidth() const;

    const ListRows& rows_;
    const ListBox& list_;
};

} // namespace toolkit
