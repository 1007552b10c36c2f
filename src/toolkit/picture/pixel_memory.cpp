#include "toolkit/picture/pixel_memory.h"

#include <algorithm>
#include <bit>
#include <mutex>
#include <new>
#include <utility>

#ifdef ZEVLIN_LARGE_PAGES

#include <sys/mman.h>

namespace toolkit {
namespace {

constexpr std::size_t largePage = std::size_t{2} * 1024 * 1024;

struct Block {
    void* memory = nullptr;
    std::size_t size = 0;
};

// Of a block only that is there which was used: the next picture finds room in it, be it larger.
constexpr std::size_t smallestBlock = std::size_t{32} * 1024 * 1024;
std::size_t blockSizeFor(std::size_t bytes) {
    return std::max(std::bit_ceil(bytes), smallestBlock);
}

void giveBack(Block block) {
    if (block.memory != nullptr) munmap(block.memory, block.size);
}

class KeptBlock {
  public:
    /// One is enough: another leaves.
    void keep(Block block) {
        const std::lock_guard guard(mutex_);
        giveBack(std::exchange(kept_, block));
    }
    [[nodiscard]] Block take(std::size_t size) {
        const std::lock_guard guard(mutex_);
        return kept_.size == size ? std::exchange(kept_, {}) : Block{};
    }
    void release() {
        const std::lock_guard guard(mutex_);
        giveBack(std::exchange(kept_, {}));
    }
    [[nodiscard]] bool isThere() {
        const std::lock_guard guard(mutex_);
        return kept_.memory != nullptr;
    }

  private:
    std::mutex mutex_;
    Block kept_;
};

KeptBlock keptBlock;
thread_local int keeping = 0;

Block newBlock(std::size_t size) {
    void* memory = mmap(nullptr, size, PROT_READ | PROT_WRITE,
                        MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED) throw std::bad_alloc();
    // Only a wish: without large pages it just takes longer.
    madvise(memory, size, MADV_HUGEPAGE);
    return {memory, size};
}

// What a larger picture used behind it would stay with the process for nothing.
void* cutTo(Block block, std::size_t bytes) {
    const std::size_t used = (bytes + largePage - 1) / largePage * largePage;
    if (used < block.size)
        madvise(static_cast<std::byte*>(block.memory) + used, block.size - used, MADV_DONTNEED);
    return block.memory;
}

} // namespace

void* takePixelMemory(std::size_t bytes) {
    if (bytes < largePage) return ::operator new(bytes);
    const std::size_t size = blockSizeFor(bytes);
    const Block kept = keptBlock.take(size);
    return kept.memory == nullptr ? newBlock(size).memory : cutTo(kept, bytes);
}

void returnPixelMemory(void* memory, std::size_t bytes) {
    if (bytes < largePage) return ::operator delete(memory);
    const Block block{memory, blockSizeFor(bytes)};
    keeping > 0 ? keptBlock.keep(block) : giveBack(block);
}

KeptPixelMemory::KeptPixelMemory() { ++keeping; }

KeptPixelMemory::~KeptPixelMemory() { --keeping; }

void releaseKeptPixelMemory() { keptBlock.release(); }

bool isPixelMemoryKept() { return keptBlock.isThere(); }

} // namespace toolkit

#else

namespace toolkit {

void* takePixelMemory(std::size_t bytes) { return ::operator new(bytes); }

void returnPixelMemory(void* memory, std::size_t /*bytes*/) { ::operator delete(memory); }

KeptPixelMemory::KeptPixelMemory() = default;

KeptPixelMemory::~KeptPixelMemory() = default;

void releaseKeptPixelMemory() {}

bool isPixelMemoryKept() { return false; }

} // namespace toolkit

#endif
