#include "toolkit/base/system.h"

#ifdef _WIN32

#include <windows.h>
// After windows.h, on whose types it builds.
#include <psapi.h>

#include "toolkit/base/error.h"
#include "toolkit/base/number_text.h"

namespace toolkit {
namespace {

std::string text(DWORD number) { return numberText(static_cast<int>(number)); }

// The documented call answers by the program's manifest; this one tells the system's own version.
RTL_OSVERSIONINFOEXW versionOfSystem() {
    RTL_OSVERSIONINFOEXW version{};
    version.dwOSVersionInfoSize = sizeof(version);
    using GetVersion = LONG(WINAPI*)(RTL_OSVERSIONINFOEXW*);
    const FARPROC address = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlGetVersion");
    if (address != nullptr)
        reinterpret_cast<GetVersion>(reinterpret_cast<void*>(address))(&version);
    return version;
}

std::string versionOf(const RTL_OSVERSIONINFOEXW& version) {
    return text(version.dwMajorVersion) + "." + text(version.dwMinorVersion) + ", Build " +
           text(version.dwBuildNumber) + ", Platform " + text(version.dwPlatformId) + ", SP " +
           text(version.wServicePackMajor) + "." + text(version.wServicePackMinor);
}

std::string version() { return versionOf(versionOfSystem()); }

MemoryFacts memory() {
    MEMORYSTATUSEX status{};
    status.dwLength = sizeof(status);
    if (GlobalMemoryStatusEx(&status) == 0) throw RunTimeError(Failure::DeviceIo);
    return {.physicalBytes = status.ullTotalPhys,
            .pageFileBytes = status.ullTotalPageFile,
            .loadPercent = static_cast<int>(status.dwMemoryLoad)};
}

MemoryUsage usage() {
    PROCESS_MEMORY_COUNTERS counters{};
    if (K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof(counters)) == 0)
        throw RunTimeError(Failure::DeviceIo);
    return {.current = counters.WorkingSetSize, .peak = counters.PeakWorkingSetSize};
}

} // namespace

SystemSource thisSystem() { return {.version = version, .memory = memory, .usage = usage}; }

} // namespace toolkit

#endif
