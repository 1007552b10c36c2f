// Work on the rows of a picture, done by threads while the program goes on.
#pragma once

#include <functional>
#include <memory>
#include <optional>

namespace zev {

struct RowRange {
    int from = 0;
    int to = 0; ///< past the last one
};

/// Threads work on the rows from the start, and the caller joins them in `finish`. What they work
/// on must exist until then.
class RowWork {
  public:
    /// Hands out rows that nobody else gets, a few at a time; none once all are handed out.
    using Next = std::function<std::optional<RowRange>()>;
    /// Does rows until there are none; must not throw. Each thread at work has a number of its own,
    /// below `hands`, so that it can have memory of its own.
    using Worker = std::function<void(int hand, const Next& next)>;

    RowWork() noexcept;
    RowWork(int rows, Worker worker);
    RowWork(RowWork&& other) noexcept;
    RowWork& operator=(RowWork&& other) noexcept;
    ~RowWork();

    /// Returns when every row is done.
    void finish();

    /// How many threads, the caller's with them, work on this many rows.
    [[nodiscard]] static int hands(int rows);

  private:
    class Shared;
    std::unique_ptr<Shared> shared_;
};

} // namespace zev
