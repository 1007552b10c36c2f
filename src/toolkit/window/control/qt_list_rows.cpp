#include "toolkit/window/control/qt_list_rows.h"

#include <cmath>

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOptionViewItem>

#include "toolkit/base/qt_geometry.h"
#include "toolkit/base/qt_text.h"
#include "toolkit/text/text_painter.h"

namespace toolkit {
namespace {

constexpr int leftMargin = 2;

} // namespace

int ListRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

const std::string& ListRows::row(int index) const { return rows_[static_cast<std::size_t>(index)]; }

QVariant ListRows::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole || index.row() >= rowCount()) return {};
    return qString(row(index.row()));
}

bool ListRows::replace(const std::vector<std::string>& rows) {
    if (rows_ == rows) return false;
    beginResetModel();
    rows_ = rows;
    endResetModel();
    return true;
}

void ListRowPainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    if (selected) painter->fillRect(option.rect, option.palette.brush(QPalette::Highlight));
    const QColor highlighted = option.palette.color(QPalette::HighlightedText);
    const Color color = selected ? rgb(highlighted.red(), highlighted.green(), highlighted.blue())
                                 : list_.ForeColor;
    const int gap = list_.RowGap / 2;
    const QPointF origin(option.rect.left() + leftMargin + gap,
                         option.rect.top() + gap + pixelsFromTwips(textAscent(list_.Font)));
    drawRun(*painter, origin, list_.Font, 1.0 / twipsPerPixel(), color, rows_.row(index.row()));
}

QSize ListRowPainter::sizeHint(const QStyleOptionViewItem& /*option*/,
                               const QModelIndex& /*index*/) const {
    const float height = textHeight(list_.Font) / static_cast<float>(twipsPerPixel());
    return {1, std::max(1, static_cast<int>(std::floor(height))) + list_.RowGap};
}

} // namespace toolkit
