// A monkey that does anything at all, in any trouble: the program neither fails nor loses a mark or
// a letter of what was typed.
//
// ZEVLIN_MONKEY_SEED is the first seed of a run, ZEVLIN_MONKEY_EVENTS the events of each seed.
#include <cstdlib>
#include <string>

#include "monkey/monkey.h"

namespace zev::test {
namespace {

int setting(const char* name, int usual) {
    const char* value = std::getenv(name);
    return value == nullptr ? usual : std::stoi(value);
}

unsigned firstSeed() { return static_cast<unsigned>(setting("ZEVLIN_MONKEY_SEED", 1)); }

class MonkeyOnASmallCard : public Monkey, public testing::WithParamInterface<unsigned> {};

TEST_P(MonkeyOnASmallCard, FindsNoFailureAndNothingLost) {
    run({.seed = firstSeed() + GetParam(), .events = setting("ZEVLIN_MONKEY_EVENTS", 4800)});
}

INSTANTIATE_TEST_SUITE_P(Seeds, MonkeyOnASmallCard, testing::Range(0U, 4U));

class MonkeyOnTheInstalledCard : public Monkey {};

TEST_F(MonkeyOnTheInstalledCard, FindsNoFailureAndNothingLost) {
    run({.seed = firstSeed() + 1000,
         .events = setting("ZEVLIN_MONKEY_EVENTS", 8000) / 10,
         .onInstalledLayout = true});
}

class MonkeyOnAFormerCourse : public Monkey {};

TEST_F(MonkeyOnAFormerCourse, KnowsACardThatWasWrittenBeforeTheProgramEnded) {
    run({.seed = 23, .events = 1600});
}

std::uint64_t digests[2];

class MonkeyTwice : public Monkey, public testing::WithParamInterface<int> {};

TEST_P(MonkeyTwice, DoesTheSameByTheSameSeed) {
    run({.seed = 77, .events = 400});
    digests[GetParam()] = digest();
    EXPECT_TRUE(GetParam() == 0 || digests[0] == digests[1]);
}

INSTANTIATE_TEST_SUITE_P(Seeds, MonkeyTwice, testing::Range(0, 2));

} // namespace
} // namespace zev::test
