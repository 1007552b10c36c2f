// An edit box over the card or on a panel. Internal to the toolkit's sources.
#pragma once

#include <QtGui/QClipboard>
#include <QtWidgets/QLineEdit>

#include "toolkit/model/window_parts.h"
#include "toolkit/window/control/qt_control_looks.h"

namespace toolkit {

/// Holds characters of the code page only, one of Qt's a byte, so that places in the text agree.
class EditBox : public QLineEdit {
  public:
    /// Over the card it has no frame and its text stands where the label's below does.
    enum class Place { Card, Panel };

    /// `container` is the control that the box lies on, shown by the widget `parent`.
    EditBox(QWidget& parent, Form& form, TextBox& box, const Control& container,
            EventDispatcher& dispatcher, Place place);

    /// What the player changed since the last call goes into the values.
    void pull();
    /// What the program changed goes onto the screen.
    void push();
    /// What the box does with a key that no handler has taken.
    void takeKey(QKeyEvent& event);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool focusNextPrevChild(bool /*next*/) override { return false; }

  private:
    /// Places in the text, in characters.
    struct Selection {
        int start = 0;
        int length = 0;

        friend bool operator==(const Selection&, const Selection&) = default;
    };

    [[nodiscard]] Selection shownSelection() const;
    [[nodiscard]] std::string shownText() const;
    void endComposition();
    void pushText();
    void pushSelection();
    [[nodiscard]] int baseline() const;
    void pushBaseLine(int line);
    void convertTyped();
    void setOwnText(const QString& text);
    void noteEdit();
    void copySelection(QClipboard::Mode mode);
    void pasteFrom(QClipboard::Mode mode);
    void releaseOwn(QMouseEvent& event);

    TextBox& box_;
    EventDispatcher& dispatcher_;
    Place place_;
    ControlMouse mouse_;
    ControlLooks looks_;
    std::string knownText_;
    Selection knownSelection_;
    QString composed_; ///< what an input method shows at the caret and hasn't handed over yet
};

} // namespace toolkit
