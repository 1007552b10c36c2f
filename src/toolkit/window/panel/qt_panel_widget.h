// A panel over the form. Internal to the toolkit's sources.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <QtWidgets/QWidget>

#include "toolkit/model/window_parts.h"
#include "toolkit/window/input/qt_event_dispatcher.h"
#include "toolkit/window/input/qt_key_dispatcher.h"
#include "toolkit/window/panel/qt_panel_parts.h"

namespace toolkit {

/// Paints ground and labels; the controls are widgets on it.
class PanelWidget : public QWidget {
  public:
    PanelWidget(QWidget& area, Form& form, const PanelContents& panel, EventDispatcher& dispatcher);

    void pull();
    void push();
    void watch(KeyDispatcher& keys);
    [[nodiscard]] const Panel& box() const { return *panel_.box; }
    /// The widget that shows the control, nullptr where none of this panel does.
    [[nodiscard]] QWidget* widgetOf(const Control* control);
    /// The label's rectangle where it is shown.
    [[nodiscard]] static QRect placeOf(const Label& label);

    /// A label as a screen reader knows it.
    struct SpokenLabel {
        enum class Kind { Text, Button, Choice } kind = Kind::Text;
        const Label* label = nullptr;
        std::string name{};
        std::string description{};
        bool isChosen = false;
    };
    [[nodiscard]] int labelCount() const;
    [[nodiscard]] SpokenLabel spokenLabel(int index) const;
    /// As a click on it.
    void pressLabel(int index);

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool focusNextPrevChild(bool /*next*/) override { return false; }

  private:
    /// A label that the pointer can be over, with what it does.
    struct Target {
        const Label* label = nullptr;
        std::function<void(MouseArguments&)> MouseDown{};
        std::function<void()> Click{};
        std::string ToolTip{};
    };

    /// What decides the panel's own pixels.
    struct Ground {
        PanelFill fill = PanelFill::Plain;
        int cornerRadius = 0;
        bool framed = false;
        Color backColor = 0;
        FormBackground background;
        int formHeight = 0;

        friend bool operator==(const Ground&, const Ground&) = default;
    };

    [[nodiscard]] Ground wantedGround() const;
    /// One of all labels: the single ones come first, then those of each group.
    struct Place {
        const PanelLabel* label = nullptr; ///< none: one of a group
        const LabelGroup* group = nullptr;
        int index = 0; ///< in its group
    };

    [[nodiscard]] Place placeAmong(int index) const;
    [[nodiscard]] const Label& labelAt(int index) const;
    [[nodiscard]] bool showsAllLabels() const;
    [[nodiscard]] Target targetOf(int index) const;
    [[nodiscard]] std::optional<Target> targetAt(QPoint place) const;
    void press(const Target& target, MouseArguments arguments);
    void pushPixels();
    void paintGround(QPainter& painter) const;
    void takeKey(const PanelPart& part, QKeyEvent& event);
    void walk(const PanelPart& from, int step);
    void click(const CommandButton& button);
    /// Clicks the panel's default or cancel button.
    void clickWhere(bool CommandButton::*role);

    Form& form_;
    const PanelContents& panel_;
    EventDispatcher& dispatcher_;
    std::vector<PanelPart> parts_;
    std::vector<Label> shown_;       ///< the labels as they were painted last
    std::optional<Ground> ground_;   ///< and the ground below them
    const Label* pressed_ = nullptr; ///< the label that got the left press
};

} // namespace toolkit
