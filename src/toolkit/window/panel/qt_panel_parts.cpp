// The controls of a panel as widgets.
#include "toolkit/window/panel/qt_panel_parts.h"

#include <utility>

#include <QtGui/QMouseEvent>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSlider>

#include "toolkit/base/qt_text.h"
#include "toolkit/window/control/qt_control_looks.h"
#include "toolkit/window/control/qt_edit_box.h"
#include "toolkit/window/control/qt_list_view.h"

namespace toolkit {
namespace {

/// A button or slider that goes by its control's values.
template <typename Widget, typename Value>
class Shown : public Widget {
  public:
    Shown(const PanelSite& site, Value& control)
        : Widget(&site.parent), control_(control), dispatcher_(site.dispatcher),
          mouse_(site.form, site.dispatcher, control, &site.container, 0) {
        this->hide();
        this->setFocusPolicy(Qt::NoFocus);
        this->setContextMenuPolicy(Qt::PreventContextMenu);
    }

  protected:
    void mousePressEvent(QMouseEvent* event) override {
        if (mouse_.press(*this, *event) == ControlMouse::Own::Handle)
            Widget::mousePressEvent(event);
        event->accept();
    }
    bool focusNextPrevChild(bool /*next*/) override { return false; }

    void pushLooks() {
        looks_.push(*this, control_, {});
        if (this->isEnabled() != control_.Enabled) this->setEnabled(control_.Enabled);
    }

    Value& control_;
    EventDispatcher& dispatcher_;

  private:
    ControlMouse mouse_;
    ControlLooks looks_;
};

class Button : public Shown<QPushButton, CommandButton> {
  public:
    Button(const PanelSite& site, CommandButton& button) : Shown(site, button) {
        connect(this, &QPushButton::clicked, this, [this] {
            dispatcher_.run([this] {
                if (control_.Click) control_.Click();
            });
        });
    }

    void push() {
        if (const QString caption = qString(control_.Caption); caption != text()) setText(caption);
        if (isDefault() != control_.Default) setDefault(control_.Default);
        pushLooks();
    }
};

/// Every change that isn't the program's own is a Scroll, whichever key, button or wheel made it.
class Slider : public Shown<QSlider, ScrollBar> {
  public:
    Slider(const PanelSite& site, ScrollBar& bar) : Shown(site, bar) {
        setOrientation(Qt::Horizontal);
        connect(this, &QSlider::valueChanged, this, [this] {
            if (pushing_) return;
            dispatcher_.run([this] {
                if (control_.Scroll) control_.Scroll();
            });
        });
    }

    void pull() {
        if (value() != known_) known_ = control_.Value = value();
    }

    void push() {
        pushing_ = true;
        setRange(control_.Min, control_.Max);
        setSingleStep(control_.SmallChange);
        setPageStep(control_.LargeChange);
        setValue(control_.Value);
        known_ = control_.Value = value();
        pushing_ = false;
        pushLooks();
    }

    void takeKey(QKeyEvent& event) { keyPressEvent(&event); }

  private:
    int known_ = 0; ///< the value that control and widget had in common last
    bool pushing_ = false;
};

PanelPart partOf(const PanelSite& site, TextBox& box) {
    auto widget = std::make_unique<EditBox>(site.parent, site.form, box, site.container,
                                            site.dispatcher, EditBox::Place::Panel);
    EditBox& edit = *widget;
    return {.control = &box,
            .widget = std::move(widget),
            .pull = [&edit] { edit.pull(); },
            .push = [&edit] { edit.push(); },
            .takeKey = [&edit](QKeyEvent& event) { edit.takeKey(event); }};
}

PanelPart partOf(const PanelSite& site, ListBox& list) {
    auto widget = std::make_unique<ListView>(site.parent, site.form, list, site.dispatcher);
    ListView& view = *widget;
    return {.control = &list,
            .widget = std::move(widget),
            .pull = [&view] { view.pull(); },
            .push = [&view] { view.push(); },
            .takeKey = [&view](QKeyEvent& event) { view.takeKey(event); }};
}

PanelPart partOf(const PanelSite& site, CommandButton& control) {
    auto widget = std::make_unique<Button>(site, control);
    Button& button = *widget;
    return {.control = &control,
            .button = &control,
            .widget = std::move(widget),
            .pull = [] {},
            .push = [&button] { button.push(); },
            .takeKey = [](QKeyEvent& /*event*/) {}};
}

PanelPart partOf(const PanelSite& site, ScrollBar& bar) {
    auto widget = std::make_unique<Slider>(site, bar);
    Slider& slider = *widget;
    return {.control = &bar,
            .widget = std::move(widget),
            .pull = [&slider] { slider.pull(); },
            .push = [&slider] { slider.push(); },
            .takeKey = [&slider](QKeyEvent& event) { slider.takeKey(event); }};
}

} // namespace

PanelPart makePart(const PanelSite& site, const PanelControl& control) {
    return std::visit([&site](auto* one) { return partOf(site, *one); }, control);
}

} // namespace toolkit
