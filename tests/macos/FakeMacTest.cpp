// The fake must see what it is there to see.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include "macos/CFBench.h"
#include "macos/fake/Objects.h"
#include "support/DeathTest.h"

namespace vantrel::macos {
namespace {

class FakeMacTest : public CFBench {};

TEST_F(FakeMacTest, CountsCoreFoundationObjectsThatAreHeld) {
    const std::size_t before = fake::liveObjects();
    CFHandle<CFStringRef> text = CFText::make("text");
    EXPECT_EQ(fake::liveObjects(), before + 1);
    CFHandle<CFStringRef> moved = std::move(text);
    EXPECT_EQ(CFGetRetainCount(moved.get()), 1);
    moved = {};
    EXPECT_EQ(fake::liveObjects(), before);
}

TEST_F(FakeMacTest, CountsObjectsOfTheRegistryThatAreHeld) {
    auto walk = bench.platform.registry.iterateServicePlane();
    EXPECT_EQ(fake::liveRegistryObjects(), 1);
    walk.reset();
    EXPECT_EQ(fake::liveRegistryObjects(), 0);
}

TEST_F(FakeMacTest, FailsTheNamedCallOnce) {
    failNext("CFNumberCreate");
    EXPECT_TRUE(CFText::make("another function"));
    EXPECT_FALSE(integerOf(1));
    EXPECT_TRUE(integerOf(1));
}

class FakeMacDeathTest : public test::DeathTest {
  protected:
    MacBench bench;
};

TEST_F(FakeMacDeathTest, StopsForAReleaseTooMany) {
    const auto text = CFText::make("text");
    CFRetain(text.get());
    CFRelease(text.get());
    EXPECT_DEATH(
        {
            CFRelease(text.get());
            CFRelease(text.get());
        },
        "after its last release");
}

TEST_F(FakeMacDeathTest, StopsForAUseAfterTheLastRelease) {
    CFStringRef text = nullptr;
    {
        const auto handle = CFText::make("text");
        text = handle.get();
    }
    EXPECT_DEATH(CFStringGetLength(text), "after its last release");
}

TEST_F(FakeMacDeathTest, StopsForAnObjectOfTheRegistryThatNobodyHolds) {
    EXPECT_DEATH(IOObjectRelease(7), "nobody holds");
}

TEST_F(FakeMacDeathTest, StopsForALibraryThatSomebodyElseWouldHaveToOpen) {
    EXPECT_DEATH(dlopen("/System/Library/Frameworks/IOKit.framework/IOKit", RTLD_LAZY | RTLD_NOLOAD),
                 "in a mode that nobody here needs");
}

TEST_F(FakeMacDeathTest, StopsForAChangeThatLastsLongerThanTheSession) {
    const auto configuration = bench.platform.displays.beginConfiguration();
    EXPECT_DEATH(bench.platform.displays.completeConfiguration(*configuration, kCGConfigurePermanently),
                 "stays for ever");
    bench.platform.displays.cancelConfiguration(*configuration);
}

TEST_F(FakeMacDeathTest, StopsForNullAndForAnotherType) {
    const CFHandle<CFStringRef> nothing;
    EXPECT_DEATH(CFRelease(nothing.get()), "with null");
    EXPECT_DEATH(CFStringGetLength(static_cast<CFStringRef>(CFTypeRef(kCFBooleanTrue))), "another type");
}

}  // namespace
}  // namespace vantrel::macos
