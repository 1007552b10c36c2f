// zevlin-cards on files and folders that it may not read: whoever runs the tests may read all.
#include <cerrno>

#include "cards/cards_test.h"
#include "faults/watched_calls.h"

namespace zev {
namespace {

class UnreadableCards : public test::CardsTest {
  protected:
    /// Runs it while this file or folder may not be opened.
    int runWithout(const std::string& refused, std::vector<std::string> arguments) {
        const test_faults::Watch watch(
            folder, [&](test_faults::Call call, const std::string& path) {
                return call == test_faults::Call::Open && path == refused ? EACCES : 0;
            });
        return run(std::move(arguments));
    }
};

TEST_F(UnreadableCards, AreToldAndTheRestIsChecked) {
    const std::string refused = writeCardFile("club/a.zev");
    const std::string damaged = write("club/b.zev", "\"\",\"\"\n2\n1,1\n2");
    EXPECT_EQ(runWithout(refused, {"check", at("club")}), 1);
    EXPECT_EQ(out, "");
    EXPECT_EQ(err, refused + ": Permission denied\n" + damaged +
                       ":4: the file ends before check box 2 of 2\n");
}

TEST_F(UnreadableCards, AreTroubleForADifference) {
    const std::string refused = writeCardFile("a.zev");
    const std::string other = writeCardFile("b.zev");
    EXPECT_EQ(runWithout(refused, {"diff", refused, other}), 2);
    EXPECT_EQ(out, "");
    EXPECT_EQ(err, refused + ": Permission denied\n");
}

TEST_F(UnreadableCards, AFolderIsToldAndTheRestIsChecked) {
    writeCardFile("club/a.zev");
    const std::string damaged = write("b.zev", "\"\",\"\"\n2\n1,1\n2");
    EXPECT_EQ(runWithout(at("club"), {"check", at("club"), damaged}), 1);
    EXPECT_EQ(err, at("club") + ": Permission denied\n" + damaged +
                       ":4: the file ends before check box 2 of 2\n");
}

} // namespace
} // namespace zev
