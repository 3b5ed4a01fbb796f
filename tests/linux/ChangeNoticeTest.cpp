#include <gtest/gtest.h>
#include <optional>

#include "platform/linux/ChangeNotice.h"
#include "platform/linux/DescriptorThread.h"
#include "runtime/RealScheduler.h"

namespace vantrel::linux {
namespace {

std::vector<Desktop::Output> outputs(const std::string& name) {
    Desktop::Output output;
    output.name = name;
    return {output};
}

// In real time, since the kernel is waited for; nothing depends on how long that takes.
class ChangeNoticeTest : public testing::Test {
  protected:
    void listen() {
        notice->listen([this] {
            ++calls;
            loop.quit();
        });
    }

    runtime::RealScheduler scheduler;
    runtime::MainLoop loop{scheduler};
    DescriptorThread descriptors{loop};
    std::optional<ChangeNotice> notice{std::in_place, descriptors, outputs("a")};
    int calls = 0;
};

TEST_F(ChangeNoticeTest, TellsFromTheMainLoop) {
    listen();
    notice->compare(outputs("b"));
    EXPECT_EQ(calls, 0);
    loop.run();
    EXPECT_EQ(calls, 1);
}

TEST_F(ChangeNoticeTest, SaysNothingOfWhatIsKnown) {
    listen();
    notice->compare(outputs("a"));
    notice->compare(outputs("b"));
    loop.run();
    notice->compare(outputs("b"));
    notice->compare(outputs("c"));
    loop.run();
    EXPECT_EQ(calls, 2);
}

TEST_F(ChangeNoticeTest, TellsOnceOfSeveralChanges) {
    listen();
    notice->compare(outputs("b"));
    notice->compare(outputs("c"));
    loop.run();
    loop.runFor(std::chrono::milliseconds(1));
    EXPECT_EQ(calls, 1);
}

TEST_F(ChangeNoticeTest, TellsOfAChangeThatIsTakenBackBeforeItIsHeardOf) {
    listen();
    notice->compare(outputs("b"));
    notice->compare(outputs("a"));
    loop.run();
    EXPECT_EQ(calls, 1);
}

TEST_F(ChangeNoticeTest, LetsTheListenerEndIt) {
    notice->listen([this] {
        notice.reset();
        loop.quit();
    });
    notice->compare(outputs("b"));
    loop.run();
    EXPECT_FALSE(notice);
}

TEST_F(ChangeNoticeTest, NeedsNoListener) {
    int fences = 0;
    notice->compare(outputs("b"));
    ChangeNotice later(descriptors, {});
    later.listen([&] {
        ++fences;
        loop.quit();
    });
    later.compare(outputs("b"));
    loop.run();
    EXPECT_EQ(fences, 1);
    listen();
    EXPECT_EQ(calls, 0);
}

}  // namespace
}  // namespace vantrel::linux
