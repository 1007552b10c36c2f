// The wish that a command stops: Ctrl+C, or a signal of the system.
#pragma once

namespace toolkit {

/// While one of these lives, such a signal is kept, and the process goes on. A signal that was
/// ignored before stays so.
class StopSignals {
  public:
    StopSignals();
    ~StopSignals();
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;

    /// The number of the last one that came; 0 while there is none.
    [[nodiscard]] static int received();
};

/// From now on Ctrl+C means another process, which shares the terminal with this one.
void leaveStopToOthers();

} // namespace toolkit
