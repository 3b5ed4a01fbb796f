// Nothing of the system's may be held when a test has ended.
#include <gtest/gtest.h>

#include "macos/fake/FakeMac.h"
#include "macos/fake/Objects.h"

namespace vantrel::macos::fake {
namespace {

class LeakListener : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override {
        objects_ = liveObjects();
        registryObjects_ = liveRegistryObjects();
    }
    void OnTestEnd(const testing::TestInfo&) override {
        EXPECT_EQ(liveObjects(), objects_) << "Core Foundation objects are still held";
        EXPECT_EQ(liveRegistryObjects(), registryObjects_) << "objects of the I/O registry are still held";
        bury();
    }

    std::size_t objects_ = 0;
    std::size_t registryObjects_ = 0;
};

[[maybe_unused]] const bool isListening = [] {
    testing::UnitTest::GetInstance()->listeners().Append(new LeakListener);
    return true;
}();

}  // namespace
}  // namespace vantrel::macos::fake
