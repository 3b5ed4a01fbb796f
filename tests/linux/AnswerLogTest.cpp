#include <cerrno>
#include <gtest/gtest.h>
#include <optional>

#include "platform/linux/AnswerLog.h"

namespace vantrel::linux {
namespace {

// So many failures in a row make a monitor one that can't be reached.
constexpr int enough = 8;

class AnswerLogTest : public testing::Test {
  protected:
    void fail(platform::DisplayID display, int error, int times) {
        for (int time = 0; time < times; ++time) log.note(display, error);
    }
    AnswerLog log;
};

TEST_F(AnswerLogTest, KnowsNothingOfAMonitorThatWasNeverAsked) {
    EXPECT_EQ(log.lastingFailure(1), std::nullopt);
}

TEST_F(AnswerLogTest, SaysWhyAMonitorAcknowledgesNothing) {
    fail(1, ENXIO, enough);
    EXPECT_EQ(log.lastingFailure(1), ENXIO);
    fail(1, ENXIO, 100);
    EXPECT_EQ(log.lastingFailure(1), ENXIO);
}

TEST_F(AnswerLogTest, SaysNothingAfterTooFewTransfers) {
    fail(1, ENXIO, enough - 1);
    EXPECT_EQ(log.lastingFailure(1), std::nullopt);
}

TEST_F(AnswerLogTest, ForgetsFailuresWhenTheMonitorAcknowledges) {
    fail(1, ENXIO, enough);
    log.note(1, 0);
    EXPECT_EQ(log.lastingFailure(1), std::nullopt);
    fail(1, ENXIO, enough - 1);
    EXPECT_EQ(log.lastingFailure(1), std::nullopt);
    fail(1, ENXIO, 1);
    EXPECT_EQ(log.lastingFailure(1), ENXIO);
}

TEST_F(AnswerLogTest, OneAnswerAmongFailuresIsEnough) {
    for (int round = 0; round < 3; ++round) {
        fail(1, ENXIO, enough - 1);
        log.note(1, 0);
    }
    EXPECT_EQ(log.lastingFailure(1), std::nullopt);
}

TEST_F(AnswerLogTest, SaysTheLastOfSeveralReasons) {
    fail(1, ENXIO, enough - 1);
    fail(1, EACCES, 1);
    EXPECT_EQ(log.lastingFailure(1), EACCES);
    fail(1, EBUSY, 1);
    EXPECT_EQ(log.lastingFailure(1), EBUSY);
}

TEST_F(AnswerLogTest, KeepsMonitorsApart) {
    fail(1, ENXIO, enough);
    fail(2, EACCES, enough - 1);
    log.note(3, 0);
    EXPECT_EQ(log.lastingFailure(1), ENXIO);
    EXPECT_EQ(log.lastingFailure(2), std::nullopt);
    EXPECT_EQ(log.lastingFailure(3), std::nullopt);
    log.note(2, 0);
    EXPECT_EQ(log.lastingFailure(1), ENXIO);
}

}  // namespace
}  // namespace vantrel::linux
