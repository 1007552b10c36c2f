// How handlers are run: values taken from the widgets before, given back to them after, failures
// kept away from Qt. Internal to the toolkit's sources.
#pragma once

#include <functional>
#include <utility>

#include <QtCore/QObject>

#include "toolkit/base/error.h"

namespace toolkit {

/// What handlers threw that is no failure (the end of the program in tests) must not unwind through
/// Qt's own frames. It is kept at the border, and thrown again by the next toolkit call that the
/// program or a test makes: doEvents, wait, a box, or a helper of toolkit::test.
void rethrowKept();

class EventDispatcher {
  public:
    struct Hooks {
        std::function<void()> pull;   ///< what the player changed goes into the values
        std::function<void()> settle; ///< after the outermost handler
        std::function<void()> push;   ///< what the program changed goes to the widgets
        std::function<void(const RunTimeError&)> unhandled;
        std::function<void()> close; ///< the player closes the window
        std::function<bool()> end;   ///< the session ends; whether the program does
    };
    explicit EventDispatcher(Hooks hooks) : hooks_(std::move(hooks)) {}

    /// Runs one handler between a pull and a push. No exception leaves it.
    void run(const std::function<void()>& handler);

    /// Runs the handler once no other is running, from the event loop.
    void runLater(std::function<void()> handler);

    /// Whether no handler is running: no procedure is at work, and no box is open.
    [[nodiscard]] bool isIdle() const { return depth_ == 0; }

    /// Runs the close once no handler is running, from the event loop.
    void askToClose();

    /// The same for the end of the session. Where a procedure waits for the player, which a close
    /// ends, it is asked again behind that procedure.
    void askToEnd();

    /// The same at once, with the answer; while a handler runs that is no, and the form is asked
    /// when it is over.
    [[nodiscard]] bool mayEnd();

    /// Runs the player's events until `isOver`, in the middle of a handler. A close comes at once.
    void letPlayerAct(const std::function<bool()>& isOver);

  private:
    void guarded(const std::function<void()>& handler);
    void scheduleClose();
    void scheduleLater();
    void close();

    Hooks hooks_;
    QObject timers_;              ///< what is still queued dies with this
    std::function<void()> later_; ///< what runLater was asked for last
    int depth_ = 0;
    int waits_ = 0; ///< procedures that wait for the player
    bool closeAsked_ = false;
    bool endAsked_ = false;
    bool isEnding_ = false; ///< the form is being asked
};

} // namespace toolkit
