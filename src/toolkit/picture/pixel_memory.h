// Memory for the pixels of pictures. Internal to the toolkit's headers.
#pragma once

#include <cstddef>
#include <new>
#include <utility>

// Where a checker watches over the heap, pictures belong there.
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ZEVLIN_CHECKED_HEAP
#endif
#elif defined(__SANITIZE_ADDRESS__)
#define ZEVLIN_CHECKED_HEAP
#endif

#if defined(__linux__) && !defined(ZEVLIN_CHECKED_HEAP)
#define ZEVLIN_LARGE_PAGES
#endif

namespace toolkit {

#ifdef ZEVLIN_LARGE_PAGES
constexpr bool keepsPixelMemory = true;
#else
constexpr bool keepsPixelMemory = false;
#endif

/// A large picture lies in large pages where the system has them: a job's pictures come and go, and
/// to have their thousands of small pages made takes as long as to fill them. What is given back
/// leaves the process at once, but for what a KeptPixelMemory keeps. Fails with std::bad_alloc.
[[nodiscard]] void* takePixelMemory(std::size_t bytes);
void returnPixelMemory(void* memory, std::size_t bytes);

/// While one lives, what this thread gives back stays with the process for the next picture; for
/// one that is made anew again and again. Without `keepsPixelMemory` nothing is kept.
class KeptPixelMemory {
  public:
    KeptPixelMemory();
    ~KeptPixelMemory();
    KeptPixelMemory(const KeptPixelMemory&) = delete;
    KeptPixelMemory& operator=(const KeptPixelMemory&) = delete;
};

/// What is kept leaves the process.
void releaseKeptPixelMemory();
[[nodiscard]] bool isPixelMemoryKept();

template <typename Pixel>
struct PixelAllocator {
    using value_type = Pixel;

    PixelAllocator() = default;
    template <typename Other>
    explicit PixelAllocator(const PixelAllocator<Other>& /*other*/) {}

    [[nodiscard]] Pixel* allocate(std::size_t count) {
        return static_cast<Pixel*>(takePixelMemory(count * sizeof(Pixel)));
    }
    void deallocate(Pixel* pixels, std::size_t count) {
        returnPixelMemory(pixels, count * sizeof(Pixel));
    }
    /// Pixels that nobody gives a colour stay as the memory comes.
    template <typename Other>
    void construct(Other* place) {
        ::new (place) Other;
    }
    template <typename Other, typename... Values>
    void construct(Other* place, Values&&... values) {
        ::new (place) Other(std::forward<Values>(values)...);
    }
    bool operator==(const PixelAllocator& /*other*/) const = default;
};

} // namespace toolkit
