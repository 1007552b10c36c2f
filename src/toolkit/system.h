// Facts about the machine, for the trace and the options file. None of these traces or fails.
#pragma once

#include <cstdint>
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

} // namespace toolkit
