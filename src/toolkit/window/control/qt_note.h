// The message at the foot of the form, with its link. Internal to the toolkit's sources.
#pragma once

#include <optional>

#include <QtWidgets/QFrame>

#include "toolkit/model/control.h"
#include "toolkit/window/input/qt_event_dispatcher.h"

class QBoxLayout;
class QLabel;
class QPushButton;

namespace toolkit {

/// Tells the platform how to ask about notes.
void answerAboutNotes();

class NoteView : public QFrame {
  public:
    NoteView(QWidget& container, const Note& note, EventDispatcher& dispatcher);

    /// Takes over what the program changed. A new text appears anew, and so it is read out.
    void push();

    [[nodiscard]] QLabel& text() { return *text_; }
    [[nodiscard]] QPushButton& link() { return *link_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    void dress();
    void place();

    const Note& note_;
    QBoxLayout* layout_; ///< this and what it holds are children of the frame
    QLabel* text_;
    QPushButton* link_;
    std::optional<FontSpec> font_;
};

} // namespace toolkit
