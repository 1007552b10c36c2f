// The end of the session, as the system tells it. Internal to the toolkit's sources.
#pragma once

#include <memory>

namespace toolkit {

/// While it lives, the system's wish that the program ends is put to the form, each time that it
/// comes.
class SessionEnd {
  public:
    SessionEnd();
    ~SessionEnd();
    SessionEnd(const SessionEnd&) = delete;
    SessionEnd& operator=(const SessionEnd&) = delete;

  private:
    struct Implementation;
    std::unique_ptr<Implementation> implementation_;
};

} // namespace toolkit
