// Workers written for the shell.
#include "toolkit/base/worker_pool.h"

#include <map>

#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace toolkit {
namespace {

class WorkerPoolTest : public testing::Test {
  protected:
    /// A worker that says it is ready and runs `answer` for each line, which it has as $task.
    static std::string script(const std::string& answer) {
        return "printf '\\0'; while read -r task; do " + answer + "; done";
    }
    std::optional<std::string> run(const std::string& worker, int tasks, int workers = 2) {
        pool.program = "/bin/sh";
        pool.arguments = {"-c", worker};
        pool.workers = workers;
        pool.nextTask = [this, tasks]() -> std::optional<std::string> {
            if (given == tasks) return std::nullopt;
            return std::to_string(given++) + "\n";
        };
        pool.takeAnswer = [this](std::size_t task, const std::optional<std::string>& answer) {
            EXPECT_TRUE(answers.emplace(task, answer.value_or("dead")).second) << task;
        };
        return runWorkers(pool);
    }

    WorkerPool pool;
    int given = 0;
    std::map<std::size_t, std::string> answers;
};

TEST_F(WorkerPoolTest, EachTaskGetsItsAnswer) {
    EXPECT_EQ(run(script("printf 'did %s\\0' $task"), 50, 3), std::nullopt);
    ASSERT_EQ(answers.size(), 50U);
    for (const auto& [task, answer] : answers) EXPECT_EQ(answer, "did " + std::to_string(task));
}

TEST_F(WorkerPoolTest, TheWorkIsSharedAmongProcesses) {
    // The one that gets the first task is busy until another one has done the second.
    const std::string wait = "if [ $task = 0 ]; then while ! [ -e $ZEVLIN_MET ]; do :; done; "
                             "else : >$ZEVLIN_MET; fi; printf '%s\\0' $$";
    const toolkit::test::TemporaryFolder folder;
    pool.environment = {{"ZEVLIN_MET", (folder / "met").string()}};
    EXPECT_EQ(run(script(wait), 2, 2), std::nullopt);
    EXPECT_NE(answers.at(0), answers.at(1));
}

TEST_F(WorkerPoolTest, AnotherOneGoesOnWhereAWorkerDies) {
    EXPECT_EQ(run(script("[ $task = 3 ] && exit 1; printf 'done\\0'"), 10), std::nullopt);
    ASSERT_EQ(answers.size(), 10U);
    for (const auto& [task, answer] : answers) EXPECT_EQ(answer, task == 3 ? "dead" : "done");
}

TEST_F(WorkerPoolTest, WhatAWorkerSaysInThePlaceOfBeingReadyEndsTheWork) {
    EXPECT_EQ(run("printf 'no room\\0'", 10), "no room");
    EXPECT_TRUE(answers.empty());
}

TEST_F(WorkerPoolTest, AWorkerThatCantBeStartedEndsTheWork) {
    EXPECT_TRUE(run("exit 3", 10));
    EXPECT_TRUE(answers.empty());
    pool.program = "/no/such/program";
    pool.arguments = {};
    const auto failure = runWorkers(pool);
    ASSERT_TRUE(failure);
    EXPECT_NE(*failure, "");
}

TEST_F(WorkerPoolTest, WhatHasBegunIsDoneWhenTheWorkIsStopped) {
    pool.isStopped = [this] { return !answers.empty(); };
    EXPECT_EQ(run(script("printf 'done\\0'"), 1000000), std::nullopt);
    EXPECT_FALSE(answers.empty());
    EXPECT_EQ(answers.size(), static_cast<std::size_t>(given));
    EXPECT_LT(given, 1000000);
}

TEST_F(WorkerPoolTest, WorkersHaveTheVariablesThatTheyNeed) {
    pool.environment = {{"ZEVLIN_ONE", "1"}, {"HOME", ""}};
    EXPECT_EQ(run(script("printf '%s,%s\\0' \"$ZEVLIN_ONE\" \"${HOME-none}\""), 1), std::nullopt);
    EXPECT_EQ(answers.at(0), "1,none");
}

} // namespace
} // namespace toolkit
