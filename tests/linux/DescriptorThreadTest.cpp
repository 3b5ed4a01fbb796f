#include <array>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <unistd.h>

#include "platform/linux/DescriptorThread.h"
#include "runtime/RealScheduler.h"

namespace vantrel::linux {
namespace {

class Pipe {
  public:
    Pipe() { EXPECT_EQ(::pipe2(ends_.data(), O_CLOEXEC | O_NONBLOCK), 0); }
    ~Pipe() {
        closeWriter();
        ::close(ends_[0]);
    }

    int reader() const { return ends_[0]; }
    void write(const std::string& bytes) const {
        EXPECT_EQ(::write(ends_[1], bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }
    char readOne() const {
        char byte = 0;
        EXPECT_EQ(::read(ends_[0], &byte, 1), 1);
        return byte;
    }
    void closeWriter() {
        if (ends_[1] >= 0) ::close(ends_[1]);
        ends_[1] = -1;
    }

  private:
    std::array<int, 2> ends_{-1, -1};
};

// In real time, since the kernel is waited for; nothing depends on how long that takes.
class DescriptorThreadTest : public testing::Test {
  protected:
    runtime::RealScheduler scheduler;
    runtime::MainLoop loop{scheduler};
    DescriptorThread descriptors{loop};
    Pipe pipe;
    Pipe other;
};

TEST_F(DescriptorThreadTest, CallsOnTheMainThreadWhenThereIsSomethingToRead) {
    std::string read;
    const auto watch = descriptors.watch(pipe.reader(), [&] {
        read += pipe.readOne();
        loop.quit();
    });
    pipe.write("a");
    loop.run();
    EXPECT_EQ(read, "a");
}

TEST_F(DescriptorThreadTest, CallsAgainWhileSomethingIsLeft) {
    std::string read;
    const auto watch = descriptors.watch(pipe.reader(), [&] {
        read += pipe.readOne();
        if (read.size() == 3) loop.quit();
    });
    pipe.write("abc");
    loop.run();
    EXPECT_EQ(read, "abc");
}

TEST_F(DescriptorThreadTest, KeepsDescriptorsApart) {
    std::string read;
    const auto first =
        descriptors.watch(pipe.reader(), [&] { read += "1" + std::string(1, pipe.readOne()); });
    const auto second = descriptors.watch(other.reader(), [&] {
        read += "2" + std::string(1, other.readOne());
        loop.quit();
    });
    other.write("x");
    loop.run();
    EXPECT_EQ(read, "2x");
}

TEST_F(DescriptorThreadTest, CallsALastTimeWhenTheOtherEndHasGone) {
    int calls = 0;
    const auto watch = descriptors.watch(pipe.reader(), [&] {
        ++calls;
        other.write("x");
    });
    // Seen after the pipe would have been reported again.
    const auto end = descriptors.watch(other.reader(), [&] {
        other.readOne();
        loop.quit();
    });
    pipe.closeWriter();
    loop.run();
    EXPECT_EQ(calls, 1);
}

TEST_F(DescriptorThreadTest, DropsWhatWasOnItsWayWhenTheWatchEnds) {
    int calls = 0;
    auto watch = descriptors.watch(pipe.reader(), [&] { ++calls; });
    const auto end = descriptors.watch(other.reader(), [&] {
        other.readOne();
        loop.quit();
    });
    pipe.write("a");
    watch.reset();
    other.write("x");
    loop.run();
    EXPECT_EQ(calls, 0);
}

TEST_F(DescriptorThreadTest, LetsTheWorkEndItsOwnWatch) {
    std::unique_ptr<Descriptors::Watch> watch;
    watch = descriptors.watch(pipe.reader(), [&] {
        watch.reset();
        loop.quit();
    });
    pipe.write("a");
    loop.run();
    EXPECT_EQ(watch, nullptr);
}

TEST_F(DescriptorThreadTest, TakesADescriptorAgainAfterItsWatch) {
    int calls = 0;
    auto watch = descriptors.watch(pipe.reader(), [] {});
    watch.reset();
    watch = descriptors.watch(pipe.reader(), [&] {
        ++calls;
        pipe.readOne();
        loop.quit();
    });
    pipe.write("a");
    loop.run();
    EXPECT_EQ(calls, 1);
}

TEST_F(DescriptorThreadTest, EndsWithAWatchOutliving) {
    auto mortal = std::make_unique<DescriptorThread>(loop);
    const auto watch = mortal->watch(pipe.reader(), [] {});
    mortal.reset();
    pipe.write("a");
    EXPECT_EQ(pipe.readOne(), 'a');
}

}  // namespace
}  // namespace vantrel::linux
