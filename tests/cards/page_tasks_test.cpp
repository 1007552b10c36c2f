#include "cards/page_tasks.h"

#include <map>
#include <sstream>

#include <gtest/gtest.h>

#include "cards/message_text.h"
#include "cards/surroundings.h"
#include "support/system.h"

namespace zev {
namespace {

constexpr const char* date = "SOURCE_DATE_EPOCH";

class PageTasks : public testing::Test {
  protected:
    PageTasks() { test_system::clearVariable(date); }
    ~PageTasks() override { test_system::clearVariable(date); }

    static CommandOptions carried(const CommandOptions& options) {
        const auto order = readOrder(workerArguments(options, "form"));
        EXPECT_TRUE(order);
        EXPECT_EQ(order ? order->folder : "", "form");
        return order ? order->options : CommandOptions{};
    }
};

TEST_F(PageTasks, ATaskArrivesWithAnyPath) {
    std::istringstream in(
        taskText({.card = pathOf("a\nb.zev"), .output = pathOf("out/\"x\".pdf")}) +
        taskText({.card = "c.zev", .output = {}}) + taskText({.card = {}, .output = "all.pdf"}));
    const auto first = readTask(in);
    ASSERT_TRUE(first);
    EXPECT_EQ(first->card, pathOf("a\nb.zev"));
    EXPECT_EQ(first->output, pathOf("out/\"x\".pdf"));
    EXPECT_TRUE(readTask(in)->output.empty());
    EXPECT_TRUE(readTask(in)->card.empty());
    EXPECT_FALSE(readTask(in));
}

TEST_F(PageTasks, AWorkerGetsWhatPagesAreToBeLike) {
    CommandOptions options;
    options.command = Command::Pdf;
    options.owner = CardOwner::Both;
    options.paper = "a4";
    options.black = true;
    options.together = "all cards.pdf";
    const CommandOptions there = carried(options);
    EXPECT_EQ(there.command, Command::Pdf);
    EXPECT_EQ(there.owner, CardOwner::Both);
    EXPECT_EQ(there.paper, "a4");
    EXPECT_TRUE(there.black);
    EXPECT_FALSE(there.stamp);
    EXPECT_EQ(there.together, "all cards.pdf");
    options.owner = CardOwner::Partner;
    EXPECT_EQ(carried(options).owner, CardOwner::Partner);
}

TEST_F(PageTasks, AWorkerGetsWhatImagesAreToBeLike) {
    CommandOptions options;
    options.command = Command::Image;
    options.imageType = "jpg";
    options.width = 600;
    options.stamp = true;
    const CommandOptions there = carried(options);
    EXPECT_EQ(there.command, Command::Image);
    EXPECT_EQ(there.imageType, "jpg");
    EXPECT_EQ(there.width, 600);
    EXPECT_TRUE(there.stamp);
}

TEST_F(PageTasks, APlayersCommandLineIsNoOrder) {
    EXPECT_FALSE(readOrder({}));
    EXPECT_FALSE(readOrder({"pdf", "a.zev"}));
    EXPECT_FALSE(readOrder({workerArgument, "form", "nonsense"}));
}

TEST_F(PageTasks, OnlyThePresentTimeIsThePlayersOwn) {
    const auto zone = [](bool stamp) {
        CommandOptions options;
        options.stamp = stamp;
        const auto list = workerEnvironment(options, "form");
        const std::map<std::string, std::string> variables(list.begin(), list.end());
        EXPECT_EQ(variables.at("QT_QPA_PLATFORM"), "offscreen");
        EXPECT_EQ(variables.at("XDG_RUNTIME_DIR"), "form");
        return variables.contains("TZ") ? variables.at("TZ") : "";
    };
    EXPECT_EQ(zone(false), "UTC0");
    EXPECT_EQ(zone(true), "");
    test_system::setVariable(date, "1790000000");
    EXPECT_EQ(zone(true), "UTC0");
}

TEST_F(PageTasks, TheDateIsANumberOfSeconds) {
    EXPECT_FALSE(sourceDate());
    test_system::setVariable(date, "1790000000");
    EXPECT_EQ(sourceDate(), 1790000000.0);
    for (const char* wrong : {"today", "-1", "12 ", "1e9", "99999999999999"}) {
        test_system::setVariable(date, wrong);
        EXPECT_THROW((void)sourceDate(), Trouble) << wrong;
    }
}

} // namespace
} // namespace zev
