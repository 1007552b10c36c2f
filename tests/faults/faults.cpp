#include "faults/faults.h"

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

const char* nameOf(Kind kind) {
    switch (kind) {
    case Kind::DiskFull:
        return "disk full";
    case Kind::DiskStaysFull:
        return "disk stays full";
    case Kind::Refused:
        return "access refused";
    case Kind::Fails:
        return "disk fails";
    case Kind::FolderGone:
        return "folder gone";
    case Kind::FolderComesBack:
        return "folder comes back";
    }
    return "";
}

// No run takes nearly as long, not even under the sanitizers.
constexpr unsigned int longestRun = 20; // seconds

// After this many failures of a kind, further ones would tell nothing new.
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

/// Whether the call needs the folder, which a call on an open file doesn't.
bool needsFolder(Call call) {
    return call != Call::Read && call != Call::Write && call != Call::Sync && call != Call::Close;
}

/// Makes the n-th of the operations that can fail in this way fail.
class Fault {
  public:
    Fault(const FaultRuns& runs, Kind kind, int number)
        : kind_(kind), number_(number), folder_(runs.folder), countsLooks_(runs.countsLooks) {}

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
    /// Puts the folder back; what the program has made in its place is renamed.
    void comeBack() const {
        std::error_code ignored;
        if (!fs::exists(away(), ignored)) return;
        fs::rename(folder_, folder_.string() + ".made", ignored);
        fs::rename(away(), folder_, ignored);
    }
    [[nodiscard]] bool happened() const { return count_ >= number_; }

  private:
    [[nodiscard]] bool concerns(Call call) const {
        if (call == Call::Look && !countsLooks_) return false;
        switch (kind_) {
        case Kind::DiskFull:
        case Kind::DiskStaysFull:
            return needsRoom(call);
        case Kind::Refused:
            return needsRights(call);
        case Kind::Fails:
            return call != Call::Close;
        default:
            return needsFolder(call);
        }
    }
    [[nodiscard]] fs::path away() const { return folder_.string() + ".away"; }

    Kind kind_;
    int number_;
    fs::path folder_;
    bool countsLooks_;
    int count_ = 0;
};

ExitCode run(const FaultRuns& runs, Kind kind, int number) {
    Fault fault(runs, kind, number);
    {
        const Watch watch(runs.home,
                          [&](Call call, const std::string& /*path*/) { return fault(call); });
        runs.scenario();
    }
    fault.comeBack();
    runs.check(kind);
    return fault.happened() ? passed : untouched;
}

/// Does it in a forked process, so that nothing that happens there reaches this one.
int exitCodeOf(const std::function<ExitCode()>& act) {
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        alarm(longestRun);
        ExitCode code = failed;
        try {
            code = act();
        } catch (const std::exception& failure) {
            ADD_FAILURE() << failure.what();
        }
        std::fflush(nullptr);
        _exit(testing::Test::HasFailure() ? failed : code);
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (WIFSIGNALED(status)) std::fprintf(stderr, "ended by signal %d\n", WTERMSIG(status));
    return WIFEXITED(status) ? WEXITSTATUS(status) : failed;
}

/// Remembers the home and restores it, whatever a run did to it.
class Home {
  public:
    explicit Home(const fs::path& folder) : Home(folder, filesIn(folder)) {}
    Home(fs::path folder, Files files) : folder_(std::move(folder)), files_(std::move(files)) {
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

bool passesAlone(const std::function<void()>& act) {
    return exitCodeOf([&] {
               act();
               return passed;
           }) == passed;
}

void putFiles(const fs::path& home, const Files& files) { Home(home, files).putBack(); }

Files filesAfter(const FaultRuns& runs) {
    const Home home(runs.home);
    const int code = exitCodeOf([&] {
        runs.scenario();
        return passed;
    });
    EXPECT_EQ(code, passed);
    Files files = filesIn(runs.home);
    home.putBack();
    return files;
}

int forEveryFault(const FaultRuns& runs) {
    const Home home(runs.home);
    int count = 0;
    // Reported only at the end: a process forked after a failure would report it as its own.
    std::vector<std::string> failures;
    for (const Kind kind : runs.kinds) {
        int failuresOfKind = 0;
        for (int number = 1; failuresOfKind < mostFailures; ++number) {
            home.putBack();
            const int code = exitCodeOf([&] { return run(runs, kind, number); });
            ++count;
            if (code == untouched) break;
            if (code == passed) continue;
            ++failuresOfKind;
            failures.push_back(std::string(nameOf(kind)) + " at operation " +
                               std::to_string(number));
        }
    }
    home.putBack();
    for (const std::string& failure : failures) ADD_FAILURE() << failure;
    return count;
}

} // namespace test_faults
