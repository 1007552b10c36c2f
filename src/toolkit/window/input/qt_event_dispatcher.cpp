#include "toolkit/window/input/qt_event_dispatcher.h"

#include <exception>
#include <utility>

#include <QtCore/QCoreApplication>
#include <QtCore/QScopedValueRollback>
#include <QtCore/QTimer>

#include "toolkit/base/program_overrides.h"

namespace toolkit {
namespace {

std::exception_ptr& kept() {
    static std::exception_ptr exception;
    return exception;
}

} // namespace

void rethrowKept() {
    if (kept()) std::rethrow_exception(std::exchange(kept(), nullptr));
}

void EventDispatcher::guarded(const std::function<void()>& handler) {
    try {
        try {
            handler();
        } catch (const std::exception&) {
            if (hooks_.unhandled) hooks_.unhandled(currentFailure());
        }
    } catch (...) {
        kept() = std::current_exception();
    }
}

void EventDispatcher::run(const std::function<void()>& handler) {
    hooks_.pull();
    ++depth_;
    guarded(handler);
    if (depth_ == 1 && hooks_.settle) guarded(hooks_.settle);
    --depth_;
    hooks_.push();
    if (depth_ == 0 && closeAsked_) scheduleClose();
    if (depth_ == 0 && later_) scheduleLater();
}

void EventDispatcher::runLater(std::function<void()> handler) {
    later_ = std::move(handler);
    scheduleLater();
}

void EventDispatcher::scheduleLater() {
    QTimer::singleShot(0, &timers_, [this] {
        if (depth_ == 0 && later_) run(std::exchange(later_, {}));
    });
}

void EventDispatcher::askToClose() {
    if (!std::exchange(closeAsked_, true)) scheduleClose();
}

void EventDispatcher::askToEnd() {
    // The very question that is being put.
    if (isEnding_) return;
    endAsked_ = true;
    askToClose();
}

bool EventDispatcher::mayEnd() {
    if (depth_ > 0) {
        askToEnd();
        return false;
    }
    const bool isInWait = waits_ > 0;
    bool ends = false;
    {
        const QScopedValueRollback asking(isEnding_, true);
        run([&] { ends = hooks_.end(); });
    }
    // Only the wait was ended; the question comes again when its procedure has returned.
    if (isInWait) endAsked_ = closeAsked_ = true;
    return ends;
}

void EventDispatcher::letPlayerAct(const std::function<bool()>& isOver) {
    // What runs meanwhile runs as if no handler were running.
    const QScopedValueRollback outermost(depth_, 0);
    const QScopedValueRollback wait(waits_, waits_ + 1);
    if (closeAsked_) scheduleClose();
    while (!isOver() && !kept()) {
        if (programOverrides().player)
            programOverrides().player();
        else
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    rethrowKept();
}

void EventDispatcher::close() {
    if (!endAsked_) return run(hooks_.close);
    endAsked_ = false;
    static_cast<void>(mayEnd());
}

/// Queued: the close procedure may end the program, which must not happen below the platform's own
/// close event. Another handler may have begun by then, so the depth is looked at again.
void EventDispatcher::scheduleClose() {
    QTimer::singleShot(0, &timers_, [this] {
        if (depth_ > 0 || !std::exchange(closeAsked_, false)) return;
        close();
    });
}

} // namespace toolkit
