#include "toolkit/base/stop_signals.h"

#include <array>
#include <csignal>

namespace toolkit {
namespace {

#ifdef _WIN32
constexpr std::array stops{SIGINT, SIGTERM, SIGBREAK};
#else
constexpr std::array stops{SIGINT, SIGTERM, SIGHUP};
#endif

volatile std::sig_atomic_t lastStop = 0;

void keepStop(int number) {
    lastStop = number;
#ifdef _WIN32
    // There a signal is handled once.
    std::signal(number, keepStop);
#endif
}

} // namespace

StopSignals::StopSignals() {
    lastStop = 0;
    for (const int stop : stops)
        if (std::signal(stop, keepStop) == SIG_IGN) std::signal(stop, SIG_IGN);
}

StopSignals::~StopSignals() {
    for (const int stop : stops)
        if (std::signal(stop, SIG_DFL) == SIG_IGN) std::signal(stop, SIG_IGN);
}

int StopSignals::received() { return lastStop; }

void leaveStopToOthers() { std::signal(SIGINT, SIG_IGN); }

} // namespace toolkit
