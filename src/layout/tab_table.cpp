#include "layout/tab_table.h"

#include <algorithm>

#include "toolkit/base/error.h"

namespace zev {
namespace {

std::size_t checkedCell(int item, int bound) {
    if (item < 1 || item > bound)
        throw toolkit::RunTimeError(toolkit::Failure::SubscriptOutOfRange);
    return static_cast<std::size_t>(item);
}

} // namespace

std::int16_t TabTable::operator[](int item) const { return cells_[checkedCell(item, UBound())]; }

void TabTable::set(int item, std::int16_t successor) {
    cells_[checkedCell(item, UBound())] = successor;
}

void TabTable::growTo(int bound) {
    if (bound > UBound()) cells_.resize(static_cast<std::size_t>(bound) + 1);
}

void TabTable::clear() { std::ranges::fill(cells_, std::int16_t{0}); }

void TabTable::discard() { cells_.assign(1, 0); }

std::optional<int> TabTable::predecessor(int item) const {
    const auto found = std::find(cells_.begin() + 1, cells_.end(), item);
    if (found == cells_.end()) return std::nullopt;
    return static_cast<int>(found - cells_.begin());
}

} // namespace zev
