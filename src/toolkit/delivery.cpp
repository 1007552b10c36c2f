#include "toolkit/qt_delivery.h"

#include <exception>
#include <utility>

#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>

#include "toolkit/qt_program.h"

namespace toolkit {
namespace {

std::exception_ptr& kept() {
    static std::exception_ptr exception;
    return exception;
}

/// What runs meanwhile runs as if no handler were running.
class Outermost {
  public:
    explicit Outermost(int& depth) : depth_(depth), outer_(std::exchange(depth, 0)) {}
    Outermost(const Outermost&) = delete;
    Outermost& operator=(const Outermost&) = delete;
    ~Outermost() { depth_ = outer_; }

  private:
    int& depth_;
    int outer_;
};

} // namespace

void rethrowKept() {
    if (kept()) std::rethrow_exception(std::exchange(kept(), nullptr));
}

void Delivery::guarded(const std::function<void()>& handler) {
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

void Delivery::run(const std::function<void()>& handler) {
    hooks_.pull();
    ++depth_;
    guarded(handler);
    --depth_;
    hooks_.push();
    if (depth_ == 0 && closeAsked_) scheduleClose();
}

void Delivery::askToClose() {
    if (!std::exchange(closeAsked_, true)) scheduleClose();
}

void Delivery::letPlayerAct(const std::function<bool()>& isOver) {
    const Outermost outermost(depth_);
    if (closeAsked_) scheduleClose();
    while (!isOver() && !kept()) {
        if (programOverrides().player)
            programOverrides().player();
        else
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    rethrowKept();
}

/// Queued: the close procedure may end the program, which must not happen below the platform's own
/// close event. Another handler may have begun by then, so the depth is looked at again.
void Delivery::scheduleClose() {
    QTimer::singleShot(0, &timers_, [this] {
        if (depth_ > 0 || !std::exchange(closeAsked_, false)) return;
        run(hooks_.close);
    });
}

} // namespace toolkit
