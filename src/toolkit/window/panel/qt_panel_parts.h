// The controls of a panel as widgets. Internal to the toolkit's sources.
#pragma once

#include <functional>
#include <memory>

#include <QtWidgets/QWidget>

#include "toolkit/model/form.h"
#include "toolkit/model/panel.h"
#include "toolkit/window/input/qt_event_dispatcher.h"

class QKeyEvent;

namespace toolkit {

/// The widget of one control, whatever its kind.
struct PanelPart {
    Control* control = nullptr;
    CommandButton* button = nullptr; ///< the same, if it is one
    std::unique_ptr<QWidget> widget{};
    std::function<void()> pull{};
    std::function<void()> push{};
    std::function<void(QKeyEvent&)> takeKey{}; ///< what the widget itself does with a key
};

/// Where a control goes.
struct PanelSite {
    QWidget& parent;
    Form& form;
    const Control& container;
    EventDispatcher& dispatcher;
};

[[nodiscard]] PanelPart makePart(const PanelSite& site, const PanelControl& control);

} // namespace toolkit
