#include <gtest/gtest.h>

#include "app/AppDelegate.h"
#include "support/FakeToolkit.h"
#include "support/ManagerRig.h"

namespace vantrel::app {
namespace {

TEST(AppDelegate, MakesNothingBeforeTheLaunchHasFinished) {
    test::ManagerRig rig;
    test::FakeToolkit toolkit;
    AppDelegate delegate(rig.watched, toolkit);
    EXPECT_EQ(delegate.statusItemController(), nullptr);
    EXPECT_EQ(toolkit.statusItem, nullptr);
    EXPECT_TRUE(rig.refreshes().empty());
}

TEST(AppDelegate, MakesOneManagerAndOneController) {
    test::ManagerRig rig;
    test::FakeToolkit toolkit;
    AppDelegate delegate(rig.watched, toolkit);
    delegate.applicationDidFinishLaunching();
    EXPECT_NE(delegate.statusItemController(), nullptr);
    EXPECT_EQ(&delegate.manager(), &delegate.manager());
    EXPECT_EQ(rig.refreshes().size(), 1U);
}

TEST(AppDelegate, OpensThePopoverWhenTheProgramIsStartedAgain) {
    test::ManagerRig rig;
    test::FakeToolkit toolkit;
    AppDelegate delegate(rig.watched, toolkit);
    delegate.applicationShouldHandleReopen();
    delegate.applicationDidFinishLaunching();
    EXPECT_FALSE(toolkit.popover->isOpen);
    delegate.applicationShouldHandleReopen();
    EXPECT_TRUE(toolkit.popover->isOpen);
}

}  // namespace
}  // namespace vantrel::app
