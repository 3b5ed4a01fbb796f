#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/MenuBarIcon.h"
#include "app/StatusItemController.h"
#include "support/FakeToolkit.h"
#include "support/ManagerRig.h"

namespace vantrel::app {
namespace {

using namespace std::chrono_literals;
using platform::LogLevel;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

struct Rig : test::ManagerRig {
    explicit Rig(simulated::Desk desk = test::usualDesk()) : ManagerRig(std::move(desk)) { startAndLoad(); }
    ~Rig() { controller.reset(); }

    StatusItemController& launch() {
        controller = std::make_unique<StatusItemController>(watched, toolkit, *manager);
        return *controller;
    }
    test::FakePopover& popover() { return *toolkit.popover; }
    // Lines of the interface's category.
    std::vector<std::string> uiLines(LogLevel level) const {
        std::vector<std::string> texts;
        for (const auto& line : log.lines()) {
            if (line.category == "ui" && line.level == level) texts.push_back(line.text);
        }
        return texts;
    }

    test::FakeToolkit toolkit;
    std::unique_ptr<StatusItemController> controller;
};

TEST(StatusItemController, GivesTheStatusItemItsPictureAndName) {
    Rig rig;
    rig.launch();
    EXPECT_EQ(rig.toolkit.statusItem->image, MenuBarIcon::image());
    EXPECT_EQ(rig.toolkit.statusItem->toolTip, "Vantrel");
}

TEST(StatusItemController, OpensAndClosesThePopoverWithClicks) {
    Rig rig;
    rig.launch();
    EXPECT_FALSE(rig.popover().isOpen);
    rig.toolkit.statusItem->click();
    EXPECT_TRUE(rig.popover().isOpen);
    rig.toolkit.statusItem->click();
    EXPECT_FALSE(rig.popover().isOpen);
}

TEST(StatusItemController, ShowsACardForEveryDisplay) {
    Rig rig;
    rig.launch();
    EXPECT_THAT(rig.popover().view.outline(), HasSubstr("\"Alder\""));
    EXPECT_THAT(rig.popover().view.outline(), HasSubstr("\"Birch\""));
    EXPECT_THAT(rig.popover().view.outline(), HasSubstr("\"Built-in Display\""));
}

TEST(StatusItemController, NeverOpensOnAStaleInventory) {
    Rig rig;
    rig.launch();
    rig.runFor(2s);
    rig.world().unplug(3);
    rig.toolkit.statusItem->click();
    rig.runFor(1ms);
    EXPECT_THAT(rig.popover().view.outline(), Not(HasSubstr("\"Birch\"")));
}

TEST(StatusItemController, LoadsEveryExternalMonitorThatItShowsWhenItOpens) {
    Rig rig(test::deskOf({test::panelPlan(), test::monitorPlan(2, "Alder"), test::monitorPlan(3, "Birch"),
                          test::monitorPlan(4, "Cedar")}));
    rig.perform(rig.manager->disableOutput(rig.display(4), std::nullopt));
    rig.launch();
    rig.runFor(10s);
    for (const platform::DisplayID id : {2U, 3U, 4U}) rig.monitor(id).adjust(0x10, 33);
    rig.toolkit.statusItem->click();
    const auto before = rig.manager->runningTasks();
    EXPECT_EQ(before, 3U);
    rig.runFor(5s);
    for (const platform::DisplayID id : {2U, 3U, 4U})
        EXPECT_EQ(rig.display(id)->feature(0x10)->current.get(), 33) << id;
}

TEST(StatusItemController, ReadsThePanelsLevelWhenItOpens) {
    Rig rig;
    rig.launch();
    rig.world().setBrightness(1, 0.25F);
    rig.toolkit.statusItem->click();
    EXPECT_EQ(rig.manager->builtIn()->brightness(), 0.25F);
}

TEST(StatusItemController, DoesNothingWithoutAButton) {
    Rig rig;
    rig.toolkit.hasStatusBar = false;
    rig.launch().togglePopover();
    EXPECT_FALSE(rig.popover().isOpen);
    EXPECT_EQ(rig.toolkit.statusItem->toolTip, "");
    EXPECT_FALSE(rig.toolkit.statusItem->click);
}

TEST(StatusItemController, BeginsWithTheSizeThatTheContentWouldLike) {
    Rig rig;
    rig.toolkit.fittingSize = {340, 512.5};
    rig.launch();
    EXPECT_THAT(rig.popover().sizes, ElementsAre(ui::Size{340, 512.5}));
}

TEST(StatusItemController, AppliesTenSizesOfOnePassOnce) {
    Rig rig;
    rig.launch();
    for (int size = 1; size <= 10; ++size) rig.popover().view.reportSize({340, 500.1 + size});
    rig.runFor(1ms);
    EXPECT_THAT(rig.popover().sizes, ElementsAre(ui::Size{340, 400}, ui::Size{340, 511}));
    EXPECT_THAT(rig.uiLines(LogLevel::debug),
                ElementsAre("Menu popover resized to 340.000000 x 511.000000, AppKit had 340.000000 x "
                            "400.000000"));
}

TEST(StatusItemController, HoldsTheSizeOfAContentThatKeepsResizingUntilThePopoverCloses) {
    Rig rig;
    rig.launch();
    rig.toolkit.statusItem->click();
    for (int size = 1; size <= 40; ++size) {
        rig.popover().view.reportSize({340, 400.0 + 10 * size});
        rig.runFor(1ms);
    }
    EXPECT_EQ(rig.popover().contentSize(), (ui::Size{340, 700}));
    EXPECT_THAT(rig.uiLines(LogLevel::fault),
                ElementsAre("Menu popover kept resizing (last 340.000000 x 710.000000), holding its size"));
    rig.toolkit.statusItem->click();
    rig.toolkit.statusItem->click();
    rig.popover().view.reportSize({340, 450});
    rig.runFor(1ms);
    EXPECT_EQ(rig.popover().contentSize(), (ui::Size{340, 450}));
}

TEST(StatusItemController, IgnoresASizeThatIsAppliedAfterItsEnd) {
    Rig rig;
    rig.launch();
    rig.popover().view.reportSize({340, 600});
    rig.controller.reset();
    rig.runFor(1s);
    EXPECT_THAT(rig.uiLines(LogLevel::debug), ElementsAre());
}

struct Height {
    std::optional<double> ofItem;
    std::optional<double> ofMainScreen;
    std::string scrolled;
};

TEST(StatusItemController, AsksTheItemsScreenThenTheMainOneForTheHeight) {
    for (const Height& height : {Height{1000, 600, "780"}, Height{std::nullopt, 600, "380"},
                                 Height{std::nullopt, std::nullopt, "580"}}) {
        Rig rig;
        rig.toolkit.mainHeight = height.ofMainScreen;
        rig.launch();
        rig.toolkit.statusItem->height = height.ofItem;
        rig.simulated.world().unplug(3);
        rig.runFor(2s);
        EXPECT_THAT(rig.popover().view.outline(), HasSubstr("scroll up to " + height.scrolled));
    }
}

TEST(StatusItemController, MakesOneSettingsWindow) {
    Rig rig;
    rig.launch().openSettings();
    rig.controller->openSettings();
    ASSERT_EQ(rig.toolkit.windows.size(), 1U);
    EXPECT_EQ(rig.toolkit.windows[0]->title, "Vantrel Settings");
    EXPECT_EQ(rig.toolkit.windows[0]->shows, 2);
    EXPECT_EQ(rig.toolkit.activations, 2);
    EXPECT_THAT(rig.toolkit.windows[0]->view.outline(), HasSubstr("Open at Login"));
}

TEST(StatusItemController, ClosesThePopoverForTheSettings) {
    Rig rig;
    rig.launch();
    rig.toolkit.statusItem->click();
    rig.popover().view.send("Settings", ui::Pressed{});
    EXPECT_FALSE(rig.popover().isOpen);
    EXPECT_EQ(rig.toolkit.windows.size(), 1U);
}

TEST(StatusItemController, EndsTheProgramWithQuit) {
    Rig rig;
    rig.launch();
    rig.popover().view.send("Quit", ui::Pressed{});
    EXPECT_EQ(rig.toolkit.terminations, 1);
}

TEST(StatusItemController, OpensThePopoverOnceForASecondStart) {
    Rig rig;
    rig.launch().openPopover();
    rig.controller->openPopover();
    EXPECT_TRUE(rig.popover().isOpen);
}

TEST(StatusItemController, WaitsForADesktopThatShowsTheItemLate) {
    Rig rig;
    rig.toolkit.hasTray = false;
    rig.launch();
    rig.runFor(4s);
    rig.toolkit.statusItem->isShownByDesktop = true;
    rig.runFor(1h);
    EXPECT_FALSE(rig.popover().isOpen);
    EXPECT_EQ(rig.popover().mode, ui::PopoverMode::panel);
}

TEST(StatusItemController, IsAWindowWhereNothingShowsTheItem) {
    Rig rig;
    rig.toolkit.hasTray = false;
    rig.launch();
    rig.runFor(6s);
    EXPECT_TRUE(rig.popover().isOpen);
    EXPECT_EQ(rig.popover().mode, ui::PopoverMode::window);
    EXPECT_THAT(rig.popover().view.outline(),
                HasSubstr("This desktop shows no status icons, so Vantrel is a window. Closing it quits."));
    rig.controller->openSettings();
    EXPECT_TRUE(rig.popover().isOpen);
    EXPECT_EQ(rig.toolkit.terminations, 0);
    rig.popover().close();
    EXPECT_EQ(rig.toolkit.terminations, 1);
}

TEST(StatusItemController, IsAPanelAgainWhenADesktopShowsTheItemAfterAll) {
    Rig rig;
    rig.toolkit.hasTray = false;
    rig.launch();
    rig.runFor(6s);
    rig.toolkit.statusItem->isShownByDesktop = true;
    rig.popover().close();
    rig.runFor(1s);
    EXPECT_EQ(rig.toolkit.terminations, 0);
    EXPECT_EQ(rig.popover().mode, ui::PopoverMode::panel);
    EXPECT_THAT(rig.popover().view.outline(), Not(HasSubstr("Closing it quits")));
}

}  // namespace
}  // namespace vantrel::app
