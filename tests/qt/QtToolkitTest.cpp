#include <QApplication>
#include <QScreen>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "runtime/RealScheduler.h"
#include "ui/qt/QtLoop.h"
#include "ui/qt/QtToolkit.h"

namespace vantrel::qt {
namespace {

using namespace ui;

class QtToolkitTest : public testing::Test {
  protected:
    runtime::RealScheduler scheduler_;
    runtime::WakingScheduler waking_{scheduler_};
    runtime::MainLoop loop_{waking_};
    QtToolkit toolkit_{loop_};
};

TEST_F(QtToolkitTest, MakesWhatAProgramNeeds) {
    const auto item = toolkit_.makeStatusItem();
    const auto popover = toolkit_.makePopover(*item);
    const auto window = toolkit_.makeWindow("Vantrel Settings");
    EXPECT_FALSE(popover->isShown());
    EXPECT_FALSE(item->isHosted());
    EXPECT_EQ(toolkit_.mainScreenHeight(), QApplication::primaryScreen()->availableGeometry().height());
}

TEST_F(QtToolkitTest, ShowsAPopoverAsAWindowWhereThereIsNoTray) {
    const auto item = toolkit_.makeStatusItem();
    const auto popover = toolkit_.makePopover(*item);
    popover->setContentSize({340, 300});
    popover->setMode(ui::PopoverMode::window);
    popover->show();
    EXPECT_TRUE(popover->isShown());
    toolkit_.activate();
    EXPECT_TRUE(popover->isShown());
}

TEST_F(QtToolkitTest, EndsTheMainLoopAfterWhatIsBeingDone) {
    QtLoop loop(loop_, waking_);
    bool isDone = false;
    loop_.post([&] {
        toolkit_.terminate();
        isDone = true;
    });
    loop.run();
    EXPECT_TRUE(isDone);
}

}  // namespace
}  // namespace vantrel::qt
