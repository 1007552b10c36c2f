// Runs a scenario many times: in each run one file operation fails, or all from one on.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "faults/power_cut.h"

namespace test_faults {

enum class Kind {
    DiskFull,        ///< ENOSPC once
    DiskStaysFull,   ///< ENOSPC from there on
    Refused,         ///< EACCES once
    Fails,           ///< EIO once
    FolderGone,      ///< the folder is renamed away
    FolderComesBack, ///< and back a few operations later
};

inline const std::vector<Kind> everyKind = {Kind::DiskFull,   Kind::DiskStaysFull,
                                            Kind::Refused,    Kind::Fails,
                                            Kind::FolderGone, Kind::FolderComesBack};

/// What may fail, and what must hold afterwards.
struct FaultRuns {
    std::filesystem::path home;   ///< operations on files below it are counted
    std::filesystem::path folder; ///< the one that vanishes
    std::function<void()> scenario;
    /// Runs after the scenario with everything working again, the folder in its place.
    std::function<void(Kind)> check;
    std::vector<Kind> kinds = everyKind;
    bool countsLooks = true; ///< whether asking for size, time and kind may fail, too
};

/// Runs the scenario with the n-th operation failing, for n = 1, 2, ... and each kind, until it
/// runs through untouched. Each run is a process of its own, forked from this one, in a home that
/// is as it was at the call; a check that fails there fails the test here. Returns the number of
/// runs.
int forEveryFault(const FaultRuns& runs);

/// Does it in a forked process; true if no check failed there. What it does to files stays.
bool passesAlone(const std::function<void()>& act);

/// Makes these the files below the home, and removes all others; the folders stay.
void putFiles(const std::filesystem::path& home, const Files& files);

/// The files below the home after a run in which nothing fails; the home is as it was afterwards.
[[nodiscard]] Files filesAfter(const FaultRuns& runs);

} // namespace test_faults
