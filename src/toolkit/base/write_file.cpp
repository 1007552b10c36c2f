#include "toolkit/base/write_file.h"

#include <array>
#include <cerrno>
#include <optional>
#include <utility>
#include <vector>

#include "toolkit/base/error.h"
#include "toolkit/base/file_calls.h"
#include "toolkit/base/file_handle.h"
#include "toolkit/base/files.h"

namespace toolkit {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view partBeginning = "$$";
constexpr std::string_view partEnding = ".part";
// The second one for a program that writes the same file at the same moment.
constexpr std::array<std::string_view, 2> partEndings = {partEnding, ".2.part"};

// Of a name; the longest that systems take leave no room for beginning and ending.
constexpr std::size_t longestInPart = 240;

fs::path partOf(const fs::path& place, std::string_view ending) {
    fs::path part = place.parent_path() / partBeginning;
    part += place.filename().native().substr(0, longestInPart);
    part += ending;
    return part;
}

/// Whether a folder takes no such file: not for want of room, and not because a disk fails.
bool isRefusal(const RunTimeError& failure) {
    switch (failure.failure()) {
    case Failure::BadFileName:
    case Failure::FileAlreadyOpen:
    case Failure::PathFileAccess:
    case Failure::PermissionDenied:
        return true;
    default:
        return false;
    }
}

bool isRefusal(const std::error_code& error) {
    return error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
           error == std::errc::device_or_resource_busy || error == std::errc::cross_device_link ||
           error == std::errc::operation_not_supported;
}

void removeHalfWritten(const fs::path& path) {
    std::error_code ignored;
    if (fs::is_regular_file(path, ignored)) fs::remove(path, ignored);
}

/// Where a file can be put in the place of what is there, also behind a link; none for a device.
std::optional<fs::path> replaceablePlace(const fs::path& path) {
    std::error_code ignored;
    const bool isLink = fs::is_symlink(path, ignored);
    const fs::file_type type = fs::status(path, ignored).type();
    if (type == fs::file_type::not_found && !isLink) return path;
    if (type != fs::file_type::regular) return std::nullopt;
    // What can't be written can't be replaced, either.
    FileHandle(path, FileMode::Update).close();
    return isLink ? fs::canonical(path, ignored) : path;
}

/// The new file while it isn't in its place; goes with it unless it got there.
class Part {
  public:
    explicit Part(fs::path path) : path_(std::move(path)), file_(path_, FileMode::Beside) {}
    Part(Part&& other) noexcept
        : path_(std::move(other.path_)), file_(std::move(other.file_)),
          isThere_(std::exchange(other.isThere_, false)) {}
    Part& operator=(Part&&) = delete;
    Part(const Part&) = delete;
    Part& operator=(const Part&) = delete;
    ~Part() {
        if (isThere_) file_.discard();
    }

    void fill(const fs::path& place, std::string_view content) {
        std::error_code ignored;
        const fs::file_status old = fs::status(place, ignored);
        if (fs::exists(old)) fs::permissions(path_, old.permissions(), ignored);
        file_.write(content);
        file_.sync();
    }
    [[nodiscard]] std::error_code moveTo(const fs::path& place) {
        return moved(file_.renameOver(place));
    }
    [[nodiscard]] std::error_code moveToNew(const fs::path& place) {
        return moved(file_.renameToNew(place));
    }

  private:
    std::error_code moved(const std::error_code& error) {
        isThere_ = static_cast<bool>(error);
        return error;
    }

    fs::path path_;
    FileHandle file_;
    bool isThere_ = true;
};

/// None where the folder takes no file beside the one that is replaced.
std::optional<Part> openBeside(const fs::path& place) {
    for (const std::string_view ending : partEndings) {
        try {
            return Part(partOf(place, ending));
        } catch (const RunTimeError& failure) {
            if (!isRefusal(failure)) throw;
        }
    }
    return std::nullopt;
}

/// False if the folder doesn't let that be done.
bool exchangeContent(const fs::path& place, std::string_view content) {
    auto part = openBeside(place);
    if (!part) return false;
    part->fill(place, content);
    const std::error_code error = part->moveTo(place);
    if (error && isRefusal(error)) return false;
    checkFile(place, error);
    checkFile(place, file_calls::syncFolder(place.parent_path()));
    return true;
}

/// False if the folder takes no file that way.
bool moveInAsNew(const fs::path& place, std::string_view content) {
    auto part = openBeside(place);
    if (!part) return false;
    part->fill(place, content);
    const std::error_code error = part->moveToNew(place);
    if (error && isRefusal(error)) return false;
    checkFile(place, error);
    checkFile(place, file_calls::syncFolder(place.parent_path()));
    return true;
}

void writeContent(const fs::path& path, FileMode mode, std::string_view content) {
    FileHandle file(path, mode);
    file.write(content);
    file.close();
}

void writeAndSync(const fs::path& path, FileMode mode, std::string_view content) {
    FileHandle file(path, mode);
    file.write(content);
    file.sync();
    file.close();
}

void writeNewOrDevice(const fs::path& path, std::string_view content) {
    std::error_code ignored;
    const bool wasThere = fs::exists(fs::symlink_status(path, ignored));
    try {
        writeAndSync(path, FileMode::Replace, content);
    } catch (...) {
        if (!wasThere) removeHalfWritten(path);
        throw;
    }
}

/// A disk without room is found out before anything is written over.
void grow(const fs::path& path, std::uintmax_t length, std::string_view content) {
    if (content.size() <= length) return;
    try {
        writeAndSync(path, FileMode::Append, content.substr(static_cast<std::size_t>(length)));
    } catch (...) {
        std::error_code ignored;
        fs::resize_file(path, length, ignored);
        throw;
    }
}

void writeWhereItStands(const fs::path& path, std::string_view content) {
    std::error_code error;
    if (!fs::is_regular_file(path, error)) return writeNewOrDevice(path, content);
    const std::uintmax_t length = fileLength(path);
    grow(path, length, content);
    FileHandle file(path, FileMode::Update);
    file.write(content);
    if (content.size() < length) fs::resize_file(path, content.size(), error);
    checkFile(path, error);
    file.sync();
    file.close();
}

bool isLeftOver(const fs::path& path) {
    const std::u8string name = path.filename().u8string();
    const auto is = [&](std::string_view part, std::size_t at) {
        return name.compare(at, part.size(), std::u8string(part.begin(), part.end())) == 0;
    };
    return name.size() >= partBeginning.size() + partEnding.size() && is(partBeginning, 0) &&
           is(partEnding, name.size() - partEnding.size());
}

} // namespace

void writeFile(const fs::path& path, std::string_view content) {
    const auto place = replaceablePlace(path);
    if (place && exchangeContent(*place, content)) return;
    writeWhereItStands(place.value_or(path), content);
}

void writeNewFile(const fs::path& path, std::string_view content) {
    std::error_code ignored;
    // Found out before anything is written; it may still turn up until the end.
    if (fs::exists(fs::symlink_status(path, ignored))) failFile(path, EEXIST);
    if (moveInAsNew(path, content)) return;
    // From here on the file is this program's.
    FileHandle file(path, FileMode::New);
    try {
        file.write(content);
        file.sync();
        file.close();
    } catch (...) {
        file.discard();
        throw;
    }
}

void writeTemporaryFile(const fs::path& path, std::string_view content) {
    try {
        writeContent(path, FileMode::Replace, content);
    } catch (...) {
        removeHalfWritten(path);
        throw;
    }
}

void appendFile(const fs::path& path, std::string_view content) {
    writeContent(path, FileMode::Append, content);
}

void deleteLeftOvers(const fs::path& folder) {
    std::error_code error;
    std::vector<fs::path> leftOvers;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error))
        if (isLeftOver(entry->path())) leftOvers.push_back(entry->path());
    for (const fs::path& path : leftOvers) {
        if (!fs::is_regular_file(path, error)) continue;
        try {
            FileHandle(path, FileMode::Beside).discard();
        } catch (const RunTimeError&) {
            // Another program is writing it, or it isn't ours to delete.
        }
    }
}

} // namespace toolkit
