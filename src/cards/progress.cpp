#include "cards/progress.h"

#include <cmath>
#include <cstdint>

#include "toolkit/base/number_text.h"

namespace zev {
namespace {

constexpr std::size_t barWidth = 24;

std::string countText(std::size_t count) { return std::to_string(count); }

std::string twoDigits(std::int64_t number) {
    const std::string text = std::to_string(number);
    return text.size() < 2 ? "0" + text : text;
}

/// 0:07, 12:30, 1:02:03
std::string timeText(double seconds) {
    const std::int64_t whole = std::llround(seconds);
    const std::int64_t minutes = whole / 60;
    const std::string rest = ":" + twoDigits(whole % 60);
    if (minutes < 60) return std::to_string(minutes) + rest;
    return std::to_string(minutes / 60) + ":" + twoDigits(minutes % 60) + rest;
}

std::string rateText(double rate) {
    constexpr double coarse = 10;
    if (rate >= coarse) return std::to_string(std::llround(rate));
    const std::int64_t tenths = std::llround(rate * 10);
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

} // namespace

std::string progressText(const Progress& progress) {
    const std::size_t filled = progress.all == 0 ? 0 : barWidth * progress.done / progress.all;
    std::string text = "[" + std::string(filled, '=') + std::string(barWidth - filled, ' ') + "] " +
                       countText(progress.done) + "/" + countText(progress.all);
    if (progress.done == 0 || progress.seconds <= 0) return text;
    const double rate = static_cast<double>(progress.done) / progress.seconds;
    text += "  " + rateText(rate) + "/s";
    if (progress.done < progress.all)
        text += "  " + timeText(static_cast<double>(progress.all - progress.done) / rate) + " left";
    return text;
}

} // namespace zev
