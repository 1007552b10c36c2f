// Facts about the machine, for the trace and the options file. A system that doesn't tell them is a
// failure like that of a file. None of these traces.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace toolkit {

/// major.minor, Build build, Platform platform, SP major.minor
[[nodiscard]] std::string systemVersion();

struct MemoryFacts {
    std::uint64_t physicalBytes = 0;
    std::uint64_t pageFileBytes = 0;
    int loadPercent = 0;
};
[[nodiscard]] MemoryFacts memoryFacts();

/// This process's working set in bytes.
struct MemoryUsage {
    std::uint64_t current = 0;
    std::uint64_t peak = 0;
};
[[nodiscard]] MemoryUsage memoryUsage();

/// Where the facts come from.
struct SystemSource {
    std::function<std::string()> version{};
    std::function<MemoryFacts()> memory{};
    std::function<MemoryUsage()> usage{};
};
/// The facts as this system tells them.
[[nodiscard]] SystemSource thisSystem();

/// For tests: in the system's place; an empty function leaves that fact to the system.
void overrideSystem(SystemSource inPlace);

} // namespace toolkit
