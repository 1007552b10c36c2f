#include "toolkit/window/control/qt_overlay.h"

#include <cmath>
#include <memory>

#include <QtGui/QPainter>
#include <QtWidgets/QAccessibleWidget>

#include "toolkit/base/qt_geometry.h"
#include "toolkit/base/qt_text.h"
#include "toolkit/text/font.h"
#include "toolkit/text/text_painter.h"

namespace toolkit {
namespace {

/// A notice is told when it comes up. What explains something else is told with that.
class AccessibleOverlay : public QAccessibleWidget {
  public:
    explicit AccessibleOverlay(Overlay& overlay)
        : QAccessibleWidget(&overlay,
                            overlay.isNotice() ? QAccessible::Notification : QAccessible::ToolTip),
          overlay_(overlay) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? overlay_.text() : QAccessibleWidget::text(kind);
    }

  private:
    const Overlay& overlay_;
};

QAccessibleInterface* makeOverlayPart(const QString& /*className*/, QObject* object) {
    auto* overlay = dynamic_cast<Overlay*>(object);
    return overlay == nullptr ? nullptr : std::make_unique<AccessibleOverlay>(*overlay).release();
}

} // namespace

void answerAboutOverlays() { QAccessible::installFactory(makeOverlayPart); }

Overlay::Overlay(QWidget& container, const TextBox& box) : QLabel(&container), box_(box) {
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setFrameShape(QFrame::Box);
    setAutoFillBackground(true);
    setVisible(false);
}

void Overlay::push() {
    if (const QString text = qString(box_.Text); text != this->text()) setText(text);
    if (font_ != box_.Font) {
        font_ = box_.Font;
        setFont(qtFont(box_.Font));
    }
    if (box_.MultiLine) update();
    setGeometry(pixelsFromTwips(box_.Left), pixelsFromTwips(box_.Top), pixelsFromTwips(box_.Width),
                pixelsFromTwips(box_.Height));
    if (isHidden() != box_.Visible) return;
    QPalette colors = palette();
    colors.setColor(QPalette::Window, qColor(box_.BackColor));
    colors.setColor(QPalette::WindowText, qColor(box_.ForeColor));
    setPalette(colors);
    setVisible(box_.Visible);
    raise();
}

void Overlay::paintEvent(QPaintEvent* event) {
    if (!box_.MultiLine) return QLabel::paintEvent(event);
    QPainter painter(this);
    drawFrame(&painter);
    const double pixelsPerTwip = 1.0 / twipsPerPixel();
    const float room = box_.Width - 2 * twipsFromPixels(box_.Margin);
    double baseline = box_.Margin + textAscent(box_.Font) * pixelsPerTwip;
    for (const std::string_view line : wrappedLines(box_.Font, box_.Text, room)) {
        drawRun(painter, QPointF(box_.Margin, std::round(baseline)), box_.Font, pixelsPerTwip,
                box_.ForeColor, line);
        baseline += textHeight(box_.Font) * pixelsPerTwip;
    }
}

} // namespace toolkit
