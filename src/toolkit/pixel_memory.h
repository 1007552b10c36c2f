// Memory for the pixels of pictures. Internal to the toolkit's headers.
#pragma once

#include <cstddef>
#include <new>
#include <utility>

namespace toolkit {

/// A large picture lies in large pages where the system has them: a job's pictures come and go, and
/// to have their thousands of small pages made takes as long as to fill them. What is given back
/// leaves the process at once. Fails with std::bad_alloc.
[[nodiscard]] void* takePixelMemory(std::size_t bytes);
void returnPixelMemory(void* memory, std::size_t bytes);

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
