#include "toolkit/window/control/qt_note.h"

#include <memory>

#include <QtGui/QMouseEvent>
#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include "toolkit/base/qt_geometry.h"
#include "toolkit/base/qt_text.h"
#include "toolkit/text/text_painter.h"

namespace toolkit {
namespace {

constexpr int inset = 10;     ///< pixels between the frame and the text
constexpr int gapBelow = 12;  ///< pixels to the form's foot
constexpr int gapBeside = 12; ///< pixels that stay free at least at either side

/// What screen readers read out as soon as it appears.
class AccessibleNote : public QAccessibleWidget {
  public:
    explicit AccessibleNote(QWidget& note) : QAccessibleWidget(&note, QAccessible::Notification) {}
};

QAccessibleInterface* makeNotePart(const QString& /*className*/, QObject* object) {
    auto* note = dynamic_cast<NoteView*>(object);
    return note == nullptr ? nullptr : std::make_unique<AccessibleNote>(*note).release();
}

} // namespace

void answerAboutNotes() { QAccessible::installFactory(makeNotePart); }

NoteView::NoteView(QWidget& container, const Note& note, EventDispatcher& dispatcher)
    : QFrame(&container), note_(note), layout_(new QBoxLayout(QBoxLayout::LeftToRight, this)),
      text_(new QLabel(this)), link_(new QPushButton(this)) {
    setVisible(false);
    setFrameShape(QFrame::Box);
    setAutoFillBackground(true);
    text_->setTextFormat(Qt::PlainText);
    link_->setFlat(true);
    link_->setFocusPolicy(Qt::NoFocus);
    link_->setCursor(Qt::PointingHandCursor);
    layout_->setContentsMargins(inset, inset / 2, inset, inset / 2);
    layout_->addWidget(text_);
    layout_->addWidget(link_, 0, Qt::AlignCenter);
    connect(link_, &QPushButton::clicked, this, [this, &dispatcher] {
        if (note_.Click) dispatcher.run(note_.Click);
    });
    container.installEventFilter(this);
}

void NoteView::push() {
    if (!note_.Visible) return setVisible(false);
    const QString text = qString(note_.Text);
    const bool isNew = isHidden() || accessibleName() != text;
    setAccessibleName(text);
    setToolTip(qString(note_.ToolTip));
    link_->setText(qString(note_.Link));
    dress();
    place();
    if (!isNew) return;
    // Screen readers read it out when it appears, and only then.
    hide();
    show();
    raise();
}

void NoteView::dress() {
    if (font_ == note_.Font) return;
    font_ = note_.Font;
    QFont font = qtFont(note_.Font);
    text_->setFont(font);
    font.setUnderline(true);
    link_->setFont(font);
    QPalette colors = palette();
    colors.setColor(QPalette::Window, qColor(note_.BackColor));
    colors.setColor(QPalette::Button, qColor(note_.BackColor));
    colors.setColor(QPalette::WindowText, qColor(black));
    colors.setColor(QPalette::ButtonText, qColor(note_.ForeColor));
    setPalette(colors);
}

/// In one line where there is room, else the link below the text.
void NoteView::place() {
    const QWidget& form = *parentWidget();
    const int room = form.width() - 2 * gapBeside - 2 * inset - 2 * frameWidth();
    const QFontMetrics metrics(text_->font());
    const int beside = link_->sizeHint().width() + layout_->spacing();
    const QString text = accessibleName();
    const bool isOneLine = metrics.horizontalAdvance(text) + beside <= room;
    layout_->setDirection(isOneLine ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    text_->setText(metrics.elidedText(text, Qt::ElideMiddle, room));
    layout_->activate();
    resize(sizeHint());
    move((form.width() - width()) / 2, form.height() - height() - gapBelow);
}

bool NoteView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && !isHidden()) place();
    return QFrame::eventFilter(watched, event);
}

/// What lies below isn't meant.
void NoteView::mousePressEvent(QMouseEvent* event) { event->accept(); }

} // namespace toolkit
