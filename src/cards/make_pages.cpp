#include "cards/make_pages.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <ostream>
#include <system_error>
#include <thread>

#include "cards/form_folder.h"
#include "cards/message_text.h"
#include "cards/page_plan.h"
#include "cards/page_tasks.h"
#include "cards/progress.h"
#include "toolkit/base/error.h"
#include "toolkit/base/stop_signals.h"
#include "toolkit/base/worker_pool.h"

namespace zev {
namespace {

namespace fs = std::filesystem;

/// What keeps a folder from taking files is found out before anything is made.
void makeFolder(const fs::path& folder) {
    if (folder.empty()) return;
    std::error_code error;
    const fs::file_status status = fs::status(folder, error);
    if (fs::is_directory(status)) return;
    const std::string name = onOneLine(utf8Of(folder));
    if (fs::exists(status)) throw Trouble{name + ": a file, where a folder should be"};
    fs::create_directories(folder, error);
    if (error) throw Trouble{name + ": " + textOf(error)};
}

void requirePlace(const fs::path& file) {
    std::error_code error;
    const std::string name = onOneLine(utf8Of(file));
    if (fs::is_directory(file, error)) throw Trouble{name + ": a folder, where a file should be"};
    const fs::path folder = file.has_parent_path() ? file.parent_path() : ".";
    if (!fs::is_directory(folder, error))
        throw Trouble{name + ": " + std::string(toolkit::describe(toolkit::Failure::PathNotFound))};
}

/// One run over a plan: hands out its tasks and tells what came of them.
class PageRun {
  public:
    PageRun(const CommandOptions& options, const Surroundings& surroundings, const PagePlan& plan)
        : options_(options), surroundings_(surroundings), plan_(plan) {}

    /// False if something failed.
    bool run(const fs::path& folder) {
        const toolkit::WorkerPool pool{
            .program = surroundings_.worker,
            .arguments = workerArguments(options_, folder),
            .environment = workerEnvironment(options_, folder),
            .workers = workerCount(),
            .nextTask = [this] { return nextTask(); },
            .takeAnswer = [this](std::size_t task,
                                 const auto& answer) { takeAnswer(task, answer); },
            .isStopped =
                [this] {
                    showProgress();
                    return toolkit::StopSignals::received() != 0;
                }};
        const auto failure = toolkit::runWorkers(pool);
        hideProgress();
        if (failure) throw Trouble{onOneLine(*failure)};
        return isWell_;
    }

  private:
    [[nodiscard]] bool isTogether() const { return !options_.together.empty(); }
    [[nodiscard]] std::size_t taskCount() const { return plan_.size() + (isTogether() ? 1 : 0); }

    [[nodiscard]] int workerCount() const {
        // The pages of one file are made one behind the other.
        if (isTogether()) return 1;
        const unsigned processors = std::max(1U, std::thread::hardware_concurrency());
        const std::size_t wanted = options_.workers > 0 ? static_cast<std::size_t>(options_.workers)
                                                        : std::size_t{processors};
        return static_cast<int>(std::min(wanted, plan_.size()));
    }

    std::optional<std::string> nextTask() {
        if (next_ == taskCount()) return std::nullopt;
        const std::size_t task = next_++;
        if (task == plan_.size())
            return taskText({.card = {}, .output = orCurrentFolder(plan_.output(0))});
        const fs::path card = orCurrentFolder(plan_.card(task));
        return taskText(
            {.card = card, .output = isTogether() ? "" : orCurrentFolder(plan_.output(task))});
    }

    void takeAnswer(std::size_t task, const std::optional<std::string>& answer) {
        ++done_;
        if (answer && answer->empty()) return;
        isWell_ = false;
        const fs::path about = task < plan_.size() ? plan_.card(task) : plan_.output(0);
        tell(answer ? *answer : onOneLine(utf8Of(about)) + ": the program failed at it");
    }

    /// An empty path would tell the worker that there is no file.
    static fs::path orCurrentFolder(const fs::path& path) {
        return path.empty() ? fs::path(".") : path;
    }

    void tell(const std::string& message) {
        hideProgress();
        surroundings_.err << message << '\n';
        surroundings_.err.flush();
    }

    void showProgress() {
        if (!surroundings_.isErrShown || options_.quiet) return;
        const std::chrono::duration<double> since = std::chrono::steady_clock::now() - begin_;
        const std::string text = progressText(
            {.done = std::min(done_, plan_.size()), .all = plan_.size(), .seconds = since.count()});
        const std::size_t rest = shown_ > text.size() ? shown_ - text.size() : 0;
        surroundings_.err << '\r' << text << std::string(rest, ' ') << std::flush;
        shown_ = text.size();
    }

    void hideProgress() {
        if (shown_ > 0) surroundings_.err << '\r' << std::string(shown_, ' ') << '\r' << std::flush;
        shown_ = 0;
    }

    const CommandOptions& options_;
    const Surroundings& surroundings_;
    const PagePlan& plan_;
    std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
    std::size_t next_ = 0;
    std::size_t done_ = 0;
    std::size_t shown_ = 0;
    bool isWell_ = true;
};

void refuseClashes(const PagePlan& plan, const Surroundings& surroundings) {
    const auto clashes = plan.clashes();
    if (clashes.empty()) return;
    for (const std::string& clash : clashes) surroundings.err << clash << '\n';
    throw Trouble{"nothing was made, since files would be written twice or over cards"};
}

} // namespace

int makePages(const CommandOptions& options, const Surroundings& surroundings) {
    (void)sourceDate(); // a wrong one is told before anything is done
    bool isWell = true;
    PagePlan plan(options);
    forEachFile(
        options, surroundings, FoldersAsked::Taken, [&](const fs::path& card) { plan.add(card); },
        [&](const std::string& message) {
            surroundings.err << message << '\n';
            isWell = false;
        });
    refuseClashes(plan, surroundings);
    if (options.together.empty())
        makeFolder(pathOf(options.outputFolder));
    else
        requirePlace(pathOf(options.together));
    if (options.newer) plan.dropUpToDate();
    if (plan.size() > 0) {
        const toolkit::StopSignals signals;
        const TemporaryFolder folder;
        fillFormFolder(folder.path(), options, surroundings);
        isWell = PageRun(options, surroundings, plan).run(folder.path()) && isWell;
        if (const int signal = toolkit::StopSignals::received(); signal != 0)
            return exit_status::stopped + signal;
    }
    return isWell ? exit_status::success : exit_status::someFailed;
}

} // namespace zev
