// Date and time as the program writes them.
#pragma once

#include <string>

namespace toolkit {

/// Seconds since local midnight, with fractions; wraps at midnight.
[[nodiscard]] double secondsSinceMidnight();

/// 2026-11-21
[[nodiscard]] std::string dateText();
/// 07:30:00, also at exactly midnight
[[nodiscard]] std::string timeText();
/// Date, a blank, time.
[[nodiscard]] std::string dateTimeText();

/// For tests: seconds since the epoch that the clock shows until reset by a negative value.
void overrideClock(double secondsSinceEpoch);

} // namespace toolkit
