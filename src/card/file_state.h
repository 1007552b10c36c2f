// What tells one state of a card's file from another.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace zev {

struct FileState {
    bool exists = false;
    std::uintmax_t size = 0;
    std::int64_t time = 0;     ///< of its last change, in ticks of the file system's clock
    std::uint64_t content = 0; ///< a hash
    friend bool operator==(const FileState&, const FileState&) = default;
};

/// FNV-1a, 64 bits.
[[nodiscard]] constexpr std::uint64_t contentHash(std::string_view content) {
    std::uint64_t hash = 14695981039346656037U;
    for (const char character : content) {
        hash ^= static_cast<unsigned char>(character);
        hash *= 1099511628211U;
    }
    return hash;
}

/// Size and time as the file system tells them, with the hash of the content given.
[[nodiscard]] FileState fileState(const std::filesystem::path& file, std::string_view content);

/// Whether the file is another than it was. Its content decides; where that can't be read, its size
/// and its time do.
[[nodiscard]] bool isChanged(const std::filesystem::path& file, const FileState& before);

/// "1 size time hash", or "0", and back; a text that is neither gives a file that doesn't exist.
[[nodiscard]] std::string fileStateText(const FileState& state);
[[nodiscard]] FileState fileStateFrom(std::string_view text);

} // namespace zev
