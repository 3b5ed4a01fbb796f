#include <gtest/gtest.h>

#include "runtime/Cancellation.h"

namespace vantrel::runtime {
namespace {

class CountingWait final : public CancellableWait {
  public:
    void cancelled() override { ++times; }
    int times = 0;
};

TEST(Cancellation, IsNotRequestedAtFirst) { EXPECT_FALSE(Cancellation().isRequested()); }

TEST(Cancellation, StaysRequestedWithNothingWaiting) {
    Cancellation cancellation;
    cancellation.request();
    EXPECT_TRUE(cancellation.isRequested());
}

TEST(Cancellation, TellsTheWaitInProgressOnce) {
    Cancellation cancellation;
    CountingWait wait;
    cancellation.setWait(&wait);
    cancellation.request();
    cancellation.request();
    EXPECT_EQ(wait.times, 1);
}

TEST(Cancellation, DoesNotTellAWaitThatEnded) {
    Cancellation cancellation;
    CountingWait wait;
    cancellation.setWait(&wait);
    cancellation.setWait(nullptr);
    cancellation.request();
    EXPECT_EQ(wait.times, 0);
}

}  // namespace
}  // namespace vantrel::runtime
