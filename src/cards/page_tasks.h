// What is told to a worker that makes pages and images, and how it answers.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cards/command_options.h"

namespace zev {

/// The first argument of a worker.
constexpr const char* workerArgument = "--worker";

/// A card and the file to be made of it. Without a file its pages go into the one at the end;
/// without a card that one is written.
struct PageTask {
    std::filesystem::path card{};
    std::filesystem::path output{};
};

/// As bytes, which may hold any path.
[[nodiscard]] std::string taskText(const PageTask& task);
/// None where there are no more.
[[nodiscard]] std::optional<PageTask> readTask(std::istream& in);

/// A worker's arguments. The folder has what the form needs of Zevlin's folder.
[[nodiscard]] std::vector<std::string> workerArguments(const CommandOptions& options,
                                                       const std::filesystem::path& folder);
struct WorkerOrder {
    CommandOptions options;
    std::filesystem::path folder;
};
/// None where these are not a worker's arguments.
[[nodiscard]] std::optional<WorkerOrder> readOrder(std::vector<std::string> arguments);

/// What a worker needs so that the same cards give the same bytes, on any screen, and so that it
/// leaves nothing outside of the folder.
[[nodiscard]] std::vector<std::pair<std::string, std::string>>
workerEnvironment(const CommandOptions& options, const std::filesystem::path& folder);

/// The seconds since 1970 that stand for the present moment; none where the variable isn't set.
/// Trouble where it is no number.
[[nodiscard]] std::optional<double> sourceDate();

} // namespace zev
