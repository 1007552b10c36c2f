#include "faults/faults.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fstream>

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "faults/power_cut.h"
#include "faults/watched_calls.h"

namespace test_faults {
namespace {

namespace fs = std::filesystem;

constexpr std::array kinds = {std::pair{Kind::DiskFull, "disk full"},
                              std::pair{Kind::DiskStaysFull, "disk stays full"},
                              std::pair{Kind::Refused, "access refused"},
                              std::pair{Kind::Fails, "disk fails"},
                              std::pair{Kind::FolderGone, "folder gone"},
                              std::pair{Kind::FolderComesBack, "folder comes back"}};

// No run takes nearly as long, not under the sanitizers either.
constexpr unsigned int longestRun = 60; // seconds

// After so many of a kind the others will tell the same.
constexpr int mostFailures = 3;

constexpr int operationsWithoutFolder = 5;

enum ExitCode { passed, failed, untouched };

bool needsRoom(Call call) {
    return call == Call::OpenToWrite || call == Call::Write || call == Call::Sync ||
           call == Call::Rename || call == Call::MakeFolder;
}

bool needsRights(Call call) {
    return call == Call::Open || call == Call::OpenToWrite || call == Call::Rename ||
           call == Call::Remove || call == Call::MakeFolder || call == Call::Change;
}

/// Fails as told at the n-th of the operations that can fail so.
class Fault {
  public:
    Fault(Kind kind, int number, fs::path folder)
        : kind_(kind), number_(number), folder_(std::move(folder)) {}

    int operator()(Call call) {
        if (!concerns(call)) return 0;
        ++count_;
        if (kind_ == Kind::FolderComesBack && count_ == number_ + operationsWithoutFolder)
            comeBack();
        if (count_ < number_ || (count_ > number_ && kind_ != Kind::DiskStaysFull)) return 0;
        switch (kind_) {
        case Kind::DiskFull:
        case Kind::DiskStaysFull:
            return ENOSPC;
        case Kind::Refused:
            return EACCES;
        case Kind::Fails:
            return EIO;
        default:
            break;
        }
        std::error_code ignored;
        fs::rename(folder_, away(), ignored);
        return 0;
    }
    /// What the program has made in the vanished folder's place stays, unless nothing is in it.
    void comeBack() const {
        std::error_code ignored;
        fs::remove(folder_, ignored);
        fs::rename(away(), folder_, ignored);
    }
    [[nodiscard]] bool happened() const { return count_ >= number_; }

  private:
    [[nodiscard]] bool concerns(Call call) const {
        switch (kind_) {
        case Kind::DiskFull:
        case Kind::DiskStaysFull:
            return needsRoom(call);
        case Kind::Refused:
            return needsRights(call);
        default:
            return true;
        }
    }
    [[nodiscard]] fs::path away() const { return folder_.string() + ".away"; }

    Kind kind_;
    int number_;
    fs::path folder_;
    int count_ = 0;
};

/// Whether the fault happened.
bool run(const FaultRuns& runs, Kind kind, int number) {
    Fault fault(kind, number, runs.folder);
    {
        const Watch watch(runs.home,
                          [&](Call call, const std::string& /*path*/) { return fault(call); });
        runs.scenario();
    }
    fault.comeBack();
    runs.check(kind);
    return fault.happened();
}

/// Nothing gets from here to those who called the test.
[[noreturn]] void runInChild(const FaultRuns& runs, Kind kind, int number) {
    alarm(longestRun);
    int code = failed;
    try {
        code = run(runs, kind, number) ? passed : untouched;
    } catch (const std::exception& failure) {
        ADD_FAILURE() << failure.what();
    }
    std::fflush(nullptr);
    _exit(testing::Test::HasFailure() ? failed : code);
}

int exitCodeOf(const FaultRuns& runs, Kind kind, int number) {
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) runInChild(runs, kind, number);
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : failed;
}

/// The home as it was, whatever a run did to it.
class Home {
  public:
    explicit Home(fs::path folder) : folder_(std::move(folder)), files_(filesIn(folder_)) {
        for (const auto& entry : fs::recursive_directory_iterator(folder_))
            if (entry.is_directory()) folders_.push_back(entry.path());
    }
    void putBack() const {
        for (const auto& entry : fs::directory_iterator(folder_)) fs::remove_all(entry.path());
        for (const fs::path& folder : folders_) fs::create_directories(folder);
        for (const auto& [path, content] : files_) std::ofstream(path, std::ios::binary) << content;
    }

  private:
    fs::path folder_;
    Files files_;
    std::vector<fs::path> folders_;
};

} // namespace

int forEveryFault(const FaultRuns& runs) {
    const Home home(runs.home);
    int count = 0;
    // Told at the end: a process that begins with a failure would tell it as its own.
    std::vector<std::string> failures;
    for (const auto& [kind, name] : kinds) {
        int failuresOfKind = 0;
        for (int number = 1; failuresOfKind < mostFailures; ++number) {
            home.putBack();
            const int code = exitCodeOf(runs, kind, number);
            ++count;
            if (code == untouched) break;
            if (code == passed) continue;
            ++failuresOfKind;
            failures.push_back(std::string(name) + " at operation " + std::to_string(number));
        }
    }
    home.putBack();
    for (const std::string& failure : failures) ADD_FAILURE() << failure;
    return count;
}

} // namespace test_faults
