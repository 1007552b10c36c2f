#include "toolkit/pixel_memory.h"

#include <new>

// Where a checker watches over the heap, pictures belong there.
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ZEVLIN_CHECKED_HEAP
#endif
#elif defined(__SANITIZE_ADDRESS__)
#define ZEVLIN_CHECKED_HEAP
#endif

#if defined(__linux__) && !defined(ZEVLIN_CHECKED_HEAP)

#include <sys/mman.h>

namespace toolkit {
namespace {

constexpr std::size_t largePage = std::size_t{2} * 1024 * 1024;

} // namespace

void* takePixelMemory(std::size_t bytes) {
    if (bytes < largePage) return ::operator new(bytes);
    void* memory = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) throw std::bad_alloc();
    // Only a wish: without large pages it just takes longer.
    madvise(memory, bytes, MADV_HUGEPAGE);
    return memory;
}

void returnPixelMemory(void* memory, std::size_t bytes) {
    if (bytes < largePage) return ::operator delete(memory);
    munmap(memory, bytes);
}

} // namespace toolkit

#else

namespace toolkit {

void* takePixelMemory(std::size_t bytes) { return ::operator new(bytes); }

void returnPixelMemory(void* memory, std::size_t /*bytes*/) { ::operator delete(memory); }

} // namespace toolkit

#endif
