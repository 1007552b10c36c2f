#include "monkey/troubles.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <system_error>
#include <utility>

#include <sys/resource.h>

#include "card/save.h"
#include "toolkit/base/files.h"
#include "toolkit/base/write_file.h"
#include "toolkit/window/shell_folders.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

constexpr int diskKilobytes = 16384;

constexpr auto names = std::to_array<std::string_view>(
    {"none", "layout removed", "layout damaged", "layout cut", "layout a folder", "options removed",
     "options a folder", "options garbage", "folder gone", "folder a file", "disk full",
     "disk read-only", "no file grows", "state folder a file", "state folder removed"});

/// The beginnings of trace lines by whatever reads or writes in the folder, for the program's own
/// purposes or by the player's wish.
constexpr auto ofFolder = std::to_array<std::string_view>(
    {"Error in IniWrite ", "Error in MSave_Click ", "Error in Initialize ", "Error in MSaveShapes ",
     "Error in CheckPointShapes ", "Error in RestoreShapes: #", "Error in Traceit: #",
     "Error in SaveImageToDisk: #", "Error in mpopRename_Click: #", "Error in mpopDelete_Click: #",
     "Error in GetCardFile ", "Error in PrintPictureBox at step ", "Error in MPrintSetup_Click: #",
     "Error in CheckIniUpdate", "Error in mDocsFolder_Click", "Error in THelp_MouseDown: #",
     "Error in renewLayout "});
constexpr auto ofLayout = std::to_array<std::string_view>(
    {"Error in Initialize ", "Error in CheckPointShapes ", "Error in RestoreShapes: #",
     "Error in MSaveShapes ", "Error in CheckIniUpdate ", "Error in renewLayout "});
constexpr auto ofOptions =
    std::to_array<std::string_view>({"Error in IniWrite ", "Error in Initialize "});
constexpr std::string_view ofJournal = "Error in the journal: #";

/// No file can grow beyond this; longer ones stay as they are.
void limitFiles(rlim_t bytes) {
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = bytes == RLIM_INFINITY ? limit.rlim_max : bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
}

fs::path aside(const fs::path& path) {
    return path.parent_path() / (path.filename().string() + ".aside");
}

} // namespace

std::string_view nameOf(Troubles::Kind kind) { return names.at(static_cast<std::size_t>(kind)); }

Troubles::Troubles(fs::path dataFolder, fs::path stateFolder)
    : dataFolder_(std::move(dataFolder)), stateFolder_(std::move(stateFolder)),
      disk_(std::make_unique<test_system::SmallDisk>(dataFolder_.parent_path(), diskKilobytes)) {
    // Otherwise the system ends a process that writes beyond the limit.
    std::signal(SIGXFSZ, SIG_IGN);
    fs::create_directories(dataFolder_);
}

Troubles::~Troubles() { mend(); }

void Troubles::strikeFile(const fs::path& file) {
    kept_ = fs::is_regular_file(file) ? toolkit::readFile(file) : std::string();
    fs::remove(file);
}

void Troubles::makeFolderOf(const fs::path& file) {
    strikeFile(file);
    fs::create_directory(file);
}

bool Troubles::strike(Kind kind) {
    if (present_ != Kind::None) return false;
    const bool needsDisk = kind == Kind::DiskFull || kind == Kind::DiskReadOnly;
    if (kind == Kind::None || kind == Kind::count || (needsDisk && !hasDisk())) return false;
    present_ = kind;
    constexpr rlim_t fewBytes = 64;
    switch (kind) {
    case Kind::LayoutRemoved:
        strikeFile(layout());
        break;
    case Kind::LayoutDamaged:
        strikeFile(layout());
        toolkit::writeFile(layout(), "15,19200\r\nbad\r\n");
        break;
    case Kind::LayoutCut:
        strikeFile(layout());
        toolkit::writeFile(layout(), kept_.substr(0, kept_.size() / 2));
        break;
    case Kind::LayoutAFolder:
        makeFolderOf(layout());
        break;
    case Kind::OptionsRemoved:
        strikeFile(options());
        break;
    case Kind::OptionsAFolder:
        makeFolderOf(options());
        break;
    case Kind::OptionsGarbage:
        strikeFile(options());
        toolkit::writeFile(options(), std::string("Zoom=\0\xFF=\r\n\"", 11));
        break;
    case Kind::FolderGone:
        fs::rename(dataFolder_, aside(dataFolder_));
        break;
    case Kind::FolderAFile:
        fs::rename(dataFolder_, aside(dataFolder_));
        toolkit::writeFile(dataFolder_, "a file");
        break;
    case Kind::DiskFull:
        disk_->fill();
        break;
    case Kind::DiskReadOnly:
        disk_->makeReadOnly();
        break;
    case Kind::NoFileGrows:
        limitFiles(fewBytes);
        break;
    case Kind::StateAFile:
        fs::remove_all(stateFolder_);
        toolkit::writeFile(stateFolder_, "a file");
        break;
    case Kind::StateRemoved:
        fs::remove_all(stateFolder_);
        break;
    default:
        break;
    }
    return true;
}

void Troubles::mend() {
    std::error_code ignored;
    switch (std::exchange(present_, Kind::None)) {
    case Kind::LayoutRemoved:
    case Kind::LayoutDamaged:
    case Kind::LayoutCut:
    case Kind::LayoutAFolder:
        // A job sets a folder aside as it does a file, but it can't put it back.
        fs::remove_all(dataFolder_ / "$$TempDef.Ini", ignored);
        fs::remove_all(layout(), ignored);
        toolkit::writeFile(layout(), kept_);
        break;
    case Kind::OptionsRemoved:
    case Kind::OptionsAFolder:
    case Kind::OptionsGarbage:
        fs::remove_all(options(), ignored);
        toolkit::writeFile(options(), kept_);
        break;
    case Kind::FolderGone:
    case Kind::FolderAFile:
        fs::remove_all(dataFolder_, ignored);
        fs::rename(aside(dataFolder_), dataFolder_);
        break;
    case Kind::DiskFull:
        disk_->giveRoom();
        break;
    case Kind::DiskReadOnly:
        disk_->makeWritable();
        break;
    case Kind::NoFileGrows:
        limitFiles(RLIM_INFINITY);
        break;
    case Kind::StateAFile:
        fs::remove(stateFolder_, ignored);
        break;
    default:
        break;
    }
    kept_.clear();
}

bool Troubles::isOfFolder() const {
    return present_ >= Kind::FolderGone && present_ <= Kind::NoFileGrows;
}

bool Troubles::hindersJournal() const {
    return present_ == Kind::NoFileGrows || present_ == Kind::StateAFile ||
           present_ == Kind::StateRemoved;
}

bool Troubles::explains(std::string_view line) const {
    if (line.starts_with(ofJournal)) return hindersJournal();
    if (isOfFolder()) return beginsAsOne(line, ofFolder);
    if (present_ >= Kind::LayoutRemoved && present_ <= Kind::LayoutAFolder)
        return beginsAsOne(line, ofLayout);
    if (present_ >= Kind::OptionsRemoved && present_ <= Kind::OptionsGarbage)
        return beginsAsOne(line, ofOptions);
    return false;
}

} // namespace zev::test
