#include "view/row_work.h"

#include <algorithm>
#include <atomic>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace zev {
namespace {

// Few enough that all threads end at about the same time, enough that handing them out costs
// little.
constexpr int dealtRows = 16;
// Fewer aren't worth a thread.
constexpr int fewestRows = 64;
constexpr int mostHands = 4;

} // namespace

class RowWork::Shared {
  public:
    Shared(int rows, Worker worker) : rows_(rows), worker_(std::move(worker)) {
        try {
            for (int hand = 1; hand < hands(rows); ++hand)
                helpers_.emplace_back([this, hand] { worker_(hand, next_); });
        } catch (const std::system_error&) {
            // The system gives no more threads: those that have started do all rows.
        }
    }
    Shared(const Shared&) = delete;
    Shared& operator=(const Shared&) = delete;
    ~Shared() { worker_(0, next_); }

  private:
    std::optional<RowRange> deal() {
        const int from = dealt_.fetch_add(dealtRows, std::memory_order_relaxed);
        if (from >= rows_) return std::nullopt;
        return RowRange{from, std::min(from + dealtRows, rows_)};
    }

    int rows_;
    Worker worker_;
    std::atomic<int> dealt_ = 0;
    Next next_ = [this] { return deal(); };
    std::vector<std::jthread>
        helpers_; ///< the last member, so that they end before what they use is destroyed
};

RowWork::RowWork(int rows, Worker worker)
    : shared_(std::make_unique<Shared>(rows, std::move(worker))) {}

RowWork::RowWork() noexcept = default;
RowWork::RowWork(RowWork&& other) noexcept = default;
RowWork& RowWork::operator=(RowWork&& other) noexcept = default;
RowWork::~RowWork() = default;

void RowWork::finish() { shared_.reset(); }

int RowWork::hands(int rows) {
    static const int processors = static_cast<int>(std::thread::hardware_concurrency());
    return std::clamp(std::min(processors, rows / fewestRows), 1, mostHands);
}

} // namespace zev
