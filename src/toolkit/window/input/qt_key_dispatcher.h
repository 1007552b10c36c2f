// Decides who gets a key. Internal to the toolkit's sources.
#pragma once

#include <functional>
#include <map>
#include <set>

#include <QtCore/QObject>

#include "toolkit/model/window_parts.h"
#include "toolkit/window/input/qt_event_dispatcher.h"

class QKeyEvent;
class QWidget;

namespace toolkit {

/// Tells the repetitions of a key that is held down. On X11 the platform's own flag misses some of
/// them on a busy machine: there a release comes, and the next press with the same time.
class HeldKeys {
  public:
    /// Whether the press is a repetition.
    [[nodiscard]] bool press(const QKeyEvent& event);
    /// Whether the key was released before since it went down.
    [[nodiscard]] bool release(const QKeyEvent& event);

  private:
    struct Release {
        quint32 key = 0;
        quint64 time = 0; ///< milliseconds of the system; 0 for none
    };

    std::set<quint32> down_; ///< pressed, and not released since
    Release last_;           ///< the event before, if it was one
};

/// Sees every key that reaches the form or one of its controls: first the form, then the shortcuts
/// of the menu, then the control in focus, and only then the widget that shows the control.
class KeyDispatcher : public QObject {
  public:
    /// Runs the shortcut of a menu row; whether there was one that may act.
    using Shortcuts = std::function<bool(const QKeyEvent&)>;
    /// What a widget does itself with a key.
    using OwnHandling = std::function<void(QKeyEvent&)>;

    KeyDispatcher(const WindowParts& parts, EventDispatcher& dispatcher, Shortcuts shortcuts);

    void watch(QWidget& widget);
    void watch(QWidget& widget, const Control& control, OwnHandling own);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] Control& target() const;
    void press(QKeyEvent& event);
    void release(const QKeyEvent& event);
    [[nodiscard]] bool passes(const std::function<void(KeyArguments&)>& slot,
                              const QKeyEvent& event);
    [[nodiscard]] bool passesAsCharacter(const Control& control, const QKeyEvent& event);
    void handOver(const Control& control, QKeyEvent& event);

    const WindowParts& parts_;
    EventDispatcher& dispatcher_;
    Shortcuts shortcuts_;
    std::map<const Control*, OwnHandling> own_;
    HeldKeys held_;
};

} // namespace toolkit
