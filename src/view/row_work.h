// Work on the rows of a picture that goes on beside the program's own.
#pragma once

#include <functional>
#include <memory>
#include <optional>

namespace zev {

struct RowRange {
    int from = 0;
    int to = 0; ///< past the last one
};

/// Rows that the other processors work on from the start, and the caller from `finish` on. What it
/// works upon must stay until then.
class RowWork {
  public:
    /// Deals out rows that nobody else gets, a few at a time; none once all are dealt.
    using Next = std::function<std::optional<RowRange>()>;
    /// Does rows until there are none; must not throw. Each of those at work has a number below
    /// `hands`, so that it can have its own room to work in.
    using Worker = std::function<void(int hand, const Next& next)>;

    RowWork() noexcept;
    RowWork(int rows, Worker worker);
    RowWork(RowWork&& other) noexcept;
    RowWork& operator=(RowWork&& other) noexcept;
    ~RowWork();

    /// Returns when every row is done.
    void finish();

    /// How many work on so many rows.
    [[nodiscard]] static int hands(int rows);

  private:
    class Shared;
    std::unique_ptr<Shared> shared_;
};

} // namespace zev
