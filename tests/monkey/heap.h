// How much memory this process uses, by the C library's count and by the system's.
#pragma once

#include <cstddef>
#include <fstream>
#include <string>

#include <malloc.h>

#ifdef __SANITIZE_ADDRESS__
// The compiler brings the function, but not everywhere its header.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace test_system {

/// Bytes that were taken from the heap and not given back.
inline std::size_t heapInUse() {
#ifdef __SANITIZE_ADDRESS__
    return __sanitizer_get_current_allocated_bytes();
#else
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
#endif
}

/// Bytes that the process has in memory. The C library keeps freed memory that lies between blocks
/// in use, so it is asked first to return that to the system.
inline std::size_t residentMemory() {
    malloc_trim(0);
    std::ifstream status("/proc/self/status");
    constexpr std::size_t bytes = 1024;
    for (std::string word; status >> word;) {
        if (word != "VmRSS:") continue;
        std::size_t kilobytes = 0;
        status >> kilobytes;
        return kilobytes * bytes;
    }
    return 0;
}

} // namespace test_system
