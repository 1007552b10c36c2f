#include "toolkit/base/system.h"

#ifndef _WIN32

#include <cerrno>
#include <charconv>
#include <string>
#include <string_view>

#include <sys/utsname.h>

#include "toolkit/base/error.h"
#include "toolkit/base/files.h"
#include "toolkit/base/number_text.h"

namespace toolkit {
namespace {

// The figure behind a label in one of the kernel's tables, which count in units of 1024 bytes.
std::uint64_t bytesBehind(std::string_view table, std::string_view label) {
    while (!table.starts_with(label)) {
        const std::size_t lineEnd = table.find('\n');
        if (lineEnd == std::string_view::npos) return 0;
        table.remove_prefix(lineEnd + 1);
    }
    table = table.substr(0, table.find('\n'));
    const std::size_t digits = table.find_first_of("0123456789", label.size());
    if (digits == std::string_view::npos) return 0;
    std::uint64_t kilobytes = 0;
    std::from_chars(table.data() + digits, table.data() + table.size(), kilobytes);
    return kilobytes * 1024;
}

// The next number of a release such as "6.1.0-18", 0 where there is none.
int takeNumber(std::string_view& release) {
    const std::size_t digits = release.find_first_of("0123456789");
    if (digits == std::string_view::npos) return 0;
    release.remove_prefix(digits);
    int number = 0;
    const char* end = std::from_chars(release.data(), release.data() + release.size(), number).ptr;
    release.remove_prefix(static_cast<std::size_t>(end - release.data()));
    return number;
}

std::string version() {
    utsname names{};
    if (uname(&names) != 0) throw fileFailure(errno);
    std::string_view release = names.release;
    const int major = takeNumber(release);
    const int minor = takeNumber(release);
    const int build = takeNumber(release);
    return numberText(major) + "." + numberText(minor) + ", Build " + numberText(build) +
           ", Platform " + names.sysname + ", SP 0.0";
}

MemoryFacts memory() {
    const std::string table = readFile("/proc/meminfo");
    MemoryFacts facts;
    facts.physicalBytes = bytesBehind(table, "MemTotal:");
    facts.pageFileBytes = facts.physicalBytes + bytesBehind(table, "SwapTotal:");
    const std::uint64_t available = bytesBehind(table, "MemAvailable:");
    if (available < facts.physicalBytes)
        facts.loadPercent =
            static_cast<int>((facts.physicalBytes - available) * 100 / facts.physicalBytes);
    return facts;
}

MemoryUsage usage() {
    const std::string table = readFile("/proc/self/status");
    return {.current = bytesBehind(table, "VmRSS:"), .peak = bytesBehind(table, "VmHWM:")};
}

} // namespace

SystemSource thisSystem() { return {.version = version, .memory = memory, .usage = usage}; }

} // namespace toolkit

#endif
