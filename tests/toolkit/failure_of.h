// The number of the run-time failure that a call raises, for tests.
#pragma once

#include <optional>
#include <utility>

#include "toolkit/base/error.h"

namespace toolkit::test {

/// None where the call succeeds.
template <typename Call>
[[nodiscard]] std::optional<int> failureOf(Call&& call) {
    try {
        std::forward<Call>(call)();
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return std::nullopt;
}

} // namespace toolkit::test
