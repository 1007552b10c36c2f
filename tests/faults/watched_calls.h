// The calls of the C library on the files below a folder, as the program under test makes them:
// each can be seen and made to fail. The program's own code knows nothing of it.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace test_faults {

enum class Call {
    Open, ///< for reading, a folder too
    OpenToWrite,
    Read,
    Write,
    Truncate,
    Sync,
    SyncFolder,
    Close,
    Rename,
    Remove,
    MakeFolder,
    Look,   ///< size, time, kind, rights
    Change, ///< mode, time
};

/// A call that succeeded.
struct Operation {
    Call call = Call::Look;
    std::string path;
    std::string target{};   ///< the new name, of a rename
    std::string content{};  ///< what was written
    std::size_t at = 0;     ///< where it was written, or the length of a truncated file
    bool truncates = false; ///< opened so that it lost its content
};

/// Asked before each call on a path below the watched folder; the errno that the call is to fail
/// with, or 0 to let it through. What the gate itself does with files isn't watched.
using Gate = std::function<int(Call call, const std::string& path)>;

struct WatchState;

/// While it lives the calls of all threads are watched. One at a time.
class Watch {
  public:
    explicit Watch(const std::filesystem::path& folder, Gate gate = {});
    ~Watch();
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    /// All that succeeded so far, in their order.
    [[nodiscard]] const std::vector<Operation>& done() const;

  private:
    std::unique_ptr<WatchState> state_;
};

} // namespace test_faults
