// The end of the session, of which the system tells by a signal. Internal to the toolkit's sources.
#pragma once

#include <memory>

#include <QtCore/QSocketNotifier>

namespace toolkit {

/// While it lives, a signal that asks the program to end asks the form first. A second one ends the
/// program at once.
class SessionEnd {
  public:
    SessionEnd();
    ~SessionEnd();
    SessionEnd(const SessionEnd&) = delete;
    SessionEnd& operator=(const SessionEnd&) = delete;

  private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace toolkit
