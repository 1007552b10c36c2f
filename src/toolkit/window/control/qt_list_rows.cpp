#include "toolkit/window/control/qt_list_rows.h"

#include <cmath>
#include <string>

#include <QtGui/QHelpEvent>
#include <QtGui/QPainter>
#include <QtGui/QTextDocument>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QStyleOptionViewItem>
#include <QtWidgets/QToolTip>

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
    const int gapAbove = list_.RowGap / 2;
    const QPointF origin(option.rect.left() + indent(),
                         option.rect.top() + gapAbove + pixelsFromTwips(textAscent(list_.Font)));
    drawRun(*painter, origin, list_.Font, 1.0 / twipsPerPixel(), color,
            shownRow(index.row(), option.rect.width()));
}

int ListRowPainter::indent() const { return leftMargin + list_.RowGap / 2; }

std::string ListRowPainter::shownRow(int row, int width) const {
    const std::string& text = rows_.row(row);
    if (!list_.Elides) return text;
    return shortened(list_.Font, text, twipsFromPixels(width - 2 * indent()), Cut::End);
}

bool ListRowPainter::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                               const QStyleOptionViewItem& option, const QModelIndex& index) {
    const bool isCut = index.isValid() && event->type() == QEvent::ToolTip &&
                       shownRow(index.row(), option.rect.width()) != rows_.row(index.row());
    if (!isCut) return QAbstractItemDelegate::helpEvent(event, view, option, index);
    const QString row = qString(rows_.row(index.row()));
    const QString tip = Qt::mightBeRichText(row) ? "<span>" + row.toHtmlEscaped() + "</span>" : row;
    QToolTip::showText(event->globalPos(), tip, view, option.rect);
    return true;
}

/// Of the widest row, since all are laid out alike.
int ListRowPainter::rowWidth() const {
    float widest = 0;
    if (list_.ScrollsAcross)
        for (int index = 0; index < rows_.rowCount(); ++index)
            widest = std::max(widest, textWidth(list_.Font, rows_.row(index)));
    return 2 * indent() + pixelsFromTwips(widest);
}

QSize ListRowPainter::sizeHint(const QStyleOptionViewItem& /*option*/,
                               const QModelIndex& /*index*/) const {
    const float height = textHeight(list_.Font) / static_cast<float>(twipsPerPixel());
    return {rowWidth(), std::max(1, static_cast<int>(std::floor(height))) + list_.RowGap};
}

} // namespace toolkit
