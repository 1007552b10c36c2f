#include "toolkit/base/clock.h"

#include <array>
#include <atomic>
#include <chrono>
#include <cmath>
#include <ctime>

namespace toolkit {
namespace {

std::atomic<double> overriddenSeconds{-1};

struct LocalTime {
    std::tm fields{};
    double fraction = 0;
};

LocalTime now() {
    using Seconds = std::chrono::duration<double>;
    const double overridden = overriddenSeconds;
    const double seconds =
        overridden >= 0 ? overridden
                        : Seconds(std::chrono::system_clock::now().time_since_epoch()).count();
    const double whole = std::floor(seconds);
    const auto time = static_cast<std::time_t>(whole);
    LocalTime local{.fields = {}, .fraction = seconds - whole};
#ifdef _WIN32
    localtime_s(&local.fields, &time);
#else
    localtime_r(&time, &local.fields);
#endif
    return local;
}

std::string formatted(const std::tm& fields, const char* format) {
    std::array<char, 32> text{};
    return {text.data(), std::strftime(text.data(), text.size(), format, &fields)};
}

} // namespace

double secondsSinceMidnight() {
    const LocalTime local = now();
    return local.fields.tm_hour * 3600 + local.fields.tm_min * 60 + local.fields.tm_sec +
           local.fraction;
}

std::string dateText() { return formatted(now().fields, "%Y-%m-%d"); }

std::string timeText() { return formatted(now().fields, "%H:%M:%S"); }

std::string dateTimeText() { return formatted(now().fields, "%Y-%m-%d %H:%M:%S"); }

void overrideClock(double secondsSinceEpoch) { overriddenSeconds = secondsSinceEpoch; }

} // namespace toolkit
