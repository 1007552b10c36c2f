// A single call some time later.
#pragma once

#include <functional>
#include <memory>

namespace toolkit {

/// Rings once, from the event loop, as an event like any other; also while a procedure waits or a
/// box is open. Nothing rings any more once it is gone.
class Alarm {
  public:
    Alarm();
    ~Alarm();
    Alarm(const Alarm&) = delete;
    Alarm& operator=(const Alarm&) = delete;

    /// Sets it; one that is set already is left alone.
    void set(int milliseconds, std::function<void()> rings);
    void cancel();
    [[nodiscard]] bool isSet() const { return timer_ != nullptr; }

  private:
    struct Timer;
    std::unique_ptr<Timer> timer_;
};

} // namespace toolkit
