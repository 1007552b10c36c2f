// Work shared among copies of a program, each a process of its own.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace toolkit {

/// A worker says on its standard output that it is ready, by an empty text; then it answers each
/// task that it reads from its standard input. Each answer ends with a null. It ends when its input
/// does.
struct WorkerPool {
    std::filesystem::path program{};      ///< empty: this one
    std::vector<std::string> arguments{}; ///< in UTF-8, without the program's name
    /// Beside those of this process; empty values remove one.
    std::vector<std::pair<std::string, std::string>> environment{};
    int workers = 1;
    /// The bytes of the next task; none where there are no more. Asked when a worker has time.
    std::function<std::optional<std::string>()> nextTask{};
    /// The answer to the task of this number, counted from 0; none where the worker died at it, in
    /// whose place another one goes on.
    std::function<void(std::size_t task, const std::optional<std::string>& answer)> takeAnswer{};
    /// Asked some times a second: true ends the work, once what has been begun is done.
    std::function<bool()> isStopped{};
};

/// Runs until all tasks are answered, or the work is stopped. What a worker says in the place of
/// being ready, if one does: then no more work is done. It is a text about the process where the
/// worker can't be started, or dies before.
[[nodiscard]] std::optional<std::string> runWorkers(const WorkerPool& pool);

} // namespace toolkit
