#include "fixture.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/alarm.h"
#include "toolkit/window/program.h"

namespace window_test {
namespace {

using namespace toolkit;

class AlarmTest : public WindowTest {
  protected:
    std::function<void()> ring() {
        return [this] { note("ring"); };
    }
    Alarm alarm;
};

constexpr int longTime = 600000;

TEST_F(AlarmTest, RingsOnce) {
    alarm.set(longTime, ring());
    EXPECT_TRUE(alarm.isSet());
    EXPECT_EQ(times("ring"), 0);
    test::elapseAlarms();
    EXPECT_EQ(times("ring"), 1);
    EXPECT_FALSE(alarm.isSet());
    test::elapseAlarms();
    EXPECT_EQ(times("ring"), 1);
}

TEST_F(AlarmTest, RingsByItself) {
    alarm.set(0, ring());
    for (int i = 0; i < 1000 && alarm.isSet(); ++i) wait(1);
    EXPECT_EQ(times("ring"), 1);
}

TEST_F(AlarmTest, ThatIsSetIsLeftAlone) {
    alarm.set(longTime, ring());
    alarm.set(0, [this] { note("other"); });
    test::elapseAlarms();
    EXPECT_EQ(log, Log{"ring"});
}

TEST_F(AlarmTest, CancelledItDoesntRing) {
    alarm.set(longTime, ring());
    alarm.cancel();
    EXPECT_FALSE(alarm.isSet());
    test::elapseAlarms();
    EXPECT_EQ(times("ring"), 0);
}

TEST_F(AlarmTest, CanBeSetAnewByWhatItRings) {
    alarm.set(longTime, [this] {
        note("first");
        alarm.set(longTime, ring());
    });
    test::elapseAlarms();
    EXPECT_EQ(log, Log{"first"});
    EXPECT_TRUE(alarm.isSet());
    test::elapseAlarms();
    EXPECT_EQ(log, (Log{"first", "ring"}));
}

TEST_F(AlarmTest, ThatIsGoneDoesntRing) {
    {
        Alarm gone;
        gone.set(longTime, ring());
    }
    test::elapseAlarms();
    EXPECT_EQ(times("ring"), 0);
}

} // namespace
} // namespace window_test
