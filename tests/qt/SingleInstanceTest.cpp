#include <QCoreApplication>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

#include "support/TemporaryFolder.h"
#include "ui/qt/SingleInstance.h"

namespace vantrel::qt {
namespace {

// With a folder for sockets of its own.
class SingleInstanceTest : public testing::Test {
  protected:
    SingleInstanceTest() { qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(folder_.path())); }
    ~SingleInstanceTest() override { qunsetenv("XDG_RUNTIME_DIR"); }

    test::TemporaryFolder folder_;
};

TEST_F(SingleInstanceTest, IsFirstWhereThereIsNoOther) {
    EXPECT_TRUE(SingleInstance("one").isFirst());
    EXPECT_TRUE(SingleInstance("one").isFirst());
}

TEST_F(SingleInstanceTest, CallsTheFirstOne) {
    SingleInstance first("one");
    int calls = 0;
    first.onCall([&calls] { ++calls; });
    EXPECT_FALSE(SingleInstance("one").isFirst());
    EXPECT_FALSE(SingleInstance("one").isFirst());
    // One is taken at a time.
    for (int pass = 0; pass < 10; ++pass) QCoreApplication::processEvents();
    EXPECT_EQ(calls, 2);
}

TEST_F(SingleInstanceTest, KnowsNothingOfOtherNames) {
    const SingleInstance first("one");
    EXPECT_TRUE(SingleInstance("another").isFirst());
}

TEST_F(SingleInstanceTest, TakesThePlaceOfOneThatCrashed) {
    { const SingleInstance killed("one"); }
    for (const auto& entry : std::filesystem::directory_iterator(folder_.path())) FAIL() << entry.path();
    // Its socket would still be there, with nobody behind it.
    std::ofstream(folder_.path("one-" + std::to_string(::getuid())));
    EXPECT_TRUE(SingleInstance("one").isFirst());
    const SingleInstance first("one");
    EXPECT_FALSE(SingleInstance("one").isFirst());
}

}  // namespace
}  // namespace vantrel::qt
