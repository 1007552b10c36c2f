#include "toolkit/window/menu/qt_read_out.h"

#include <algorithm>

#include "toolkit/base/qt_text.h"
#include "toolkit/model/label.h"

namespace toolkit {
namespace {

constexpr int sideGap = 4;
constexpr double smallestPoints = 5;
/// As wide as a read-out of places gets.
constexpr const char* widest = "0000: (00000,00000) - (00000,00000)  [00000*00000]";

} // namespace

ReadOut::ReadOut(QWidget& bar, const MenuItem& item) : QLabel(&bar), item_(item) {
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setContentsMargins(sideGap, 0, sideGap, 0);
    setVisible(false);
}

void ReadOut::push() {
    setVisible(item_.Visible);
    if (caption_ == item_.Caption) return;
    caption_ = item_.Caption;
    setText(qString(paintedText(caption_)));
    fit();
}

void ReadOut::place(int menusEnd) {
    const QWidget& bar = *parentWidget();
    const int wanted = QFontMetrics(bar.font()).horizontalAdvance(widest) + 2 * sideGap;
    const int width = std::clamp(bar.width() - menusEnd, 0, wanted);
    setGeometry(bar.width() - width, 0, width, bar.height());
    fit();
}

/// Where the bar is narrow, its letters get smaller before a text is cut.
void ReadOut::fit() {
    QFont font = parentWidget()->font();
    const int room = width() - 2 * sideGap;
    while (font.pointSizeF() > smallestPoints &&
           QFontMetrics(font).horizontalAdvance(text()) > room)
        font.setPointSizeF(font.pointSizeF() - 0.5);
    setFont(font);
}

} // namespace toolkit
