// The tab sequence: for each field the field that TAB goes to.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace zev {

/// One-based 16-bit cells; 0 means no successor. A number of 1000 or more is the mark of that
/// number less 1000, below it a text field. A cell outside 1..UBound is failure 9.
class TabTable {
  public:
    [[nodiscard]] int UBound() const { return static_cast<int>(cells_.size()) - 1; }
    [[nodiscard]] std::int16_t operator[](int item) const;
    void set(int item, std::int16_t successor);
    /// Raises the bound, keeping the content; never lowers it.
    void growTo(int bound);
    /// Zero in every cell, the bound kept.
    void clear();
    /// The single cell 0.
    void discard();

    /// The lowest item whose successor is `item`.
    [[nodiscard]] std::optional<int> predecessor(int item) const;

  private:
    std::vector<std::int16_t> cells_ = std::vector<std::int16_t>(1);
};

/// The first item number that names a mark.
constexpr int firstMarkItem = 1000;

} // namespace zev
