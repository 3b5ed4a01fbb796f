#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "ServerTest.h"

namespace vantrel::randr {
namespace {

using testing::HasSubstr;

class RandRDesktopTest : public ServerTest {
  protected:
    // Nothing that xrandr knows of any other output has changed.
    void expectOthersAsIn(const Xrandr::Report& before, const std::string& changed) const {
        for (const auto& [name, text] : xrandr.report()) {
            if (name != changed) {
                EXPECT_EQ(text, before.at(name));
            }
        }
    }
    std::string arrangement(const std::string& name) const {
        const auto found = desktop->arrangement(name);
        EXPECT_TRUE(found.has_value());
        return found.value_or("");
    }
    // Off and on, and the same as before in all that xrandr knows.
    void expectToComeBack(const std::string& name) const {
        ASSERT_TRUE(output(name).isLit);
        const auto before = xrandr.report();
        const xcb_randr_crtc_t crtc = other.crtc(name);
        const std::string arrangement = this->arrangement(name);
        EXPECT_TRUE(desktop->darken(name));
        EXPECT_FALSE(Xrandr::isLit(name, xrandr.report()));
        EXPECT_TRUE(desktop->light(name, arrangement));
        EXPECT_EQ(xrandr.report(), before);
        EXPECT_EQ(other.crtc(name), crtc);
    }
};

TEST_F(RandRDesktopTest, ListsTheServersOutputsWithWhatTheyShow) {
    const auto outputs = desktop->outputs();
    ASSERT_EQ(outputs.size(), 16U);
    EXPECT_EQ(outputs[0].name, "DUMMY0");
    EXPECT_TRUE(outputs[0].isConnected);
    EXPECT_TRUE(outputs[0].isLit);
    EXPECT_EQ(outputs[0].tableCapacity, 256U);
    EXPECT_THAT(outputs[2].place, HasSubstr("[3840,0,1280,1024]"));
}

TEST_F(RandRDesktopTest, AnOutputWithoutACrtcIsDarkAndHasNoTable) {
    const auto dark = output("DUMMY3");
    EXPECT_FALSE(dark.isLit);
    EXPECT_EQ(dark.tableCapacity, 0U);
    EXPECT_EQ(dark.place, "");
    EXPECT_FALSE(desktop->table("DUMMY3"));
    EXPECT_FALSE(desktop->setTable("DUMMY3", table(1)));
    EXPECT_FALSE(desktop->arrangement("DUMMY3"));
    EXPECT_FALSE(desktop->darken("DUMMY3"));
}

TEST_F(RandRDesktopTest, WithoutACableItIsNotConnected) {
    EXPECT_FALSE(output("DUMMY9").isConnected);
    EXPECT_FALSE(desktop->light("DUMMY9", std::nullopt));
}

TEST_F(RandRDesktopTest, KnowsTheEDIDOfEachOutput) {
    std::vector<std::uint8_t> edid(256);
    for (std::size_t index = 0; index < edid.size(); ++index)
        edid[index] = static_cast<std::uint8_t>(index * 7);
    other.setProperty("DUMMY1", "EDID", edid);
    other.setProperty("DUMMY2", "EDID", {1, 2, 3});
    EXPECT_EQ(output("DUMMY1").edid, edid);
    EXPECT_EQ(output("DUMMY2").edid, (std::vector<std::uint8_t>{1, 2, 3}));
    EXPECT_TRUE(output("DUMMY3").edid.empty());
}

TEST_F(RandRDesktopTest, AnOutputThatIsNotThereRefusesEverything) {
    EXPECT_FALSE(desktop->table("HDMI-1"));
    EXPECT_FALSE(desktop->setTable("HDMI-1", table(1)));
    EXPECT_FALSE(desktop->arrangement("HDMI-1"));
    EXPECT_FALSE(desktop->darken("HDMI-1"));
    EXPECT_FALSE(desktop->light("HDMI-1", std::nullopt));
}

TEST_F(RandRDesktopTest, SaysWhatItIs) {
    EXPECT_EQ(desktop->name(), "X11");
    EXPECT_EQ(desktop->identity(), "x11-" + display);
    EXPECT_EQ(RandRDesktop::open(display + ".0", descriptors, loop)->identity(), "x11-" + display);
    EXPECT_TRUE(desktop->keepsTables());
    EXPECT_TRUE(desktop->canSwitch());
}

TEST_F(RandRDesktopTest, DarkeningLeavesAllOthersExactlyAsTheyWere) {
    for (const std::string name : {"DUMMY0", "DUMMY1", "DUMMY2"}) {
        SCOPED_TRACE(name);
        const auto before = xrandr.report();
        const std::string arrangement = this->arrangement(name);
        EXPECT_TRUE(desktop->darken(name));
        EXPECT_FALSE(output(name).isLit);
        EXPECT_FALSE(Xrandr::isLit(name, xrandr.report()));
        expectOthersAsIn(before, name);
        EXPECT_TRUE(desktop->light(name, arrangement));
    }
}

TEST_F(RandRDesktopTest, OffAndOnBringsBackModePositionAndPrimary) {
    expectToComeBack("DUMMY0");
    expectToComeBack("DUMMY1");
    expectToComeBack("DUMMY2");
}

TEST_F(RandRDesktopTest, OffAndOnBringsBackRotationAndReflection) {
    xrandr.expect("--output DUMMY2 --rotate left --reflect x");
    EXPECT_THAT(xrandr.shown("DUMMY2"), HasSubstr("1024x1280+3840+0"));
    expectToComeBack("DUMMY2");
    xrandr.expect("--output DUMMY2 --rotate inverted --reflect xy");
    expectToComeBack("DUMMY2");
}

TEST_F(RandRDesktopTest, OffAndOnBringsBackScaling) {
    xrandr.expect("--output DUMMY2 --scale 1.5x1.25");
    EXPECT_THAT(xrandr.shown("DUMMY2"), HasSubstr("1920x1280+3840+0"));
    expectToComeBack("DUMMY2");
}

TEST_F(RandRDesktopTest, OffAndOnBringsBackPanning) {
    xrandr.expect("--output DUMMY2 --panning 2000x1500+3840+0/2000x1500+3840+0/10/20/30/40");
    EXPECT_THAT(xrandr.report().at("DUMMY2"), HasSubstr("10/20/30/40"));
    expectToComeBack("DUMMY2");
}

TEST_F(RandRDesktopTest, PanningGoesWithTheOutputNotWithTheCrtc) {
    const std::string first = arrangement("DUMMY0");
    const std::string firstShown = xrandr.shown("DUMMY0");
    xrandr.expect("--output DUMMY2 --panning 2000x1500+3840+0/2000x1500+3840+0/10/20/30/40");
    const std::string second = arrangement("DUMMY2");
    const std::string secondShown = xrandr.shown("DUMMY2");
    EXPECT_TRUE(desktop->darken("DUMMY2"));
    EXPECT_TRUE(desktop->darken("DUMMY0"));
    // Each on the CRTC that the other had.
    xrandr.expect("--output DUMMY3 --crtc 0 --mode 1920x1080 --pos 0x1500");
    EXPECT_TRUE(desktop->light("DUMMY0", first));
    EXPECT_EQ(xrandr.shown("DUMMY0"), firstShown);
    xrandr.expect("--output DUMMY3 --off");
    EXPECT_TRUE(desktop->light("DUMMY2", second));
    EXPECT_EQ(xrandr.shown("DUMMY2"), secondShown);
    EXPECT_THAT(xrandr.report().at("DUMMY2"), HasSubstr("10/20/30/40"));
}

TEST_F(RandRDesktopTest, WhatAnotherOutputLeftOnTheCrtcDoesNotComeBack) {
    const std::string arrangement = this->arrangement("DUMMY2");
    const std::string before = xrandr.shown("DUMMY2");
    EXPECT_TRUE(desktop->darken("DUMMY2"));
    xrandr.expect("--output DUMMY3 --crtc 2 --mode 1920x1080 --pos 3840x0 --scale 2x2 --rotate left");
    xrandr.expect("--output DUMMY3 --panning 3000x4000+3840+0");
    xrandr.expect("--output DUMMY3 --off");
    EXPECT_TRUE(desktop->light("DUMMY2", arrangement));
    EXPECT_EQ(xrandr.shown("DUMMY2"), before);
}

TEST_F(RandRDesktopTest, BecomesThePrimaryOneAgain) {
    const std::string first = arrangement("DUMMY0");
    const std::string second = arrangement("DUMMY1");
    EXPECT_TRUE(desktop->darken("DUMMY0"));
    xrandr.expect("--output DUMMY1 --primary");
    EXPECT_TRUE(desktop->light("DUMMY0", first));
    EXPECT_THAT(xrandr.shown("DUMMY0"), HasSubstr("primary"));
    // One that never was doesn't.
    EXPECT_TRUE(desktop->darken("DUMMY1"));
    EXPECT_TRUE(desktop->light("DUMMY1", second));
    EXPECT_THAT(xrandr.shown("DUMMY0"), HasSubstr("primary"));
}

TEST_F(RandRDesktopTest, TheLastLitOutputCanBeDarkenedAndComesBack) {
    const auto before = xrandr.report();
    std::vector<std::string> arrangements;
    for (const std::string name : {"DUMMY2", "DUMMY1", "DUMMY0"}) {
        arrangements.push_back(arrangement(name));
        EXPECT_TRUE(desktop->darken(name));
    }
    for (const auto& output : desktop->outputs()) EXPECT_FALSE(output.isLit);
    EXPECT_TRUE(desktop->light("DUMMY0", arrangements[2]));
    EXPECT_TRUE(desktop->light("DUMMY1", arrangements[1]));
    EXPECT_TRUE(desktop->light("DUMMY2", arrangements[0]));
    EXPECT_EQ(xrandr.report(), before);
}

TEST_F(RandRDesktopTest, TheScreenGrowsWhereAPictureNeedsIt) {
    const std::string arrangement = this->arrangement("DUMMY2");
    const auto before = xrandr.report();
    EXPECT_TRUE(desktop->darken("DUMMY2"));
    xrandr.expect("--output DUMMY1 --pos 1920x0");
    xrandr.expect("--fb 3840x1080");
    EXPECT_TRUE(desktop->light("DUMMY2", arrangement));
    EXPECT_EQ(xrandr.report(), before);
}

TEST_F(RandRDesktopTest, ComesBackInAnotherSessionWithOtherNumbersForModes) {
    xrandr.expect("--newmode special 100 1600 1700 1800 1900 1200 1210 1220 1230");
    xrandr.expect("--addmode DUMMY2 special");
    xrandr.expect("--output DUMMY2 --mode special");
    const std::string arrangement = this->arrangement("DUMMY2");
    const std::string before = xrandr.shown("DUMMY2");
    EXPECT_TRUE(desktop->darken("DUMMY2"));
    xrandr.expect("--delmode DUMMY2 special");
    xrandr.expect("--rmmode special");
    xrandr.expect("--newmode special 100 1600 1700 1800 1900 1200 1210 1220 1230");
    xrandr.expect("--addmode DUMMY2 special");
    EXPECT_TRUE(desktop->light("DUMMY2", arrangement));
    EXPECT_THAT(xrandr.shown("DUMMY2"), HasSubstr("1600x1200+3840+0"));
    EXPECT_NE(xrandr.shown("DUMMY2"), before);
    xrandr.expect("--output DUMMY2 --mode 1280x1024");
    xrandr.expect("--delmode DUMMY2 special");
    xrandr.expect("--rmmode special");
}

TEST_F(RandRDesktopTest, WhereItsModeIsGoneItComesInThePreferredOneRightOfTheOthers) {
    xrandr.expect("--newmode special 100 1600 1700 1800 1900 1200 1210 1220 1230");
    xrandr.expect("--addmode DUMMY0 special");
    xrandr.expect("--output DUMMY0 --mode special");
    const std::string arrangement = this->arrangement("DUMMY0");
    EXPECT_TRUE(desktop->darken("DUMMY0"));
    xrandr.expect("--delmode DUMMY0 special");
    xrandr.expect("--rmmode special");
    const auto before = xrandr.report();
    EXPECT_TRUE(desktop->light("DUMMY0", arrangement));
    EXPECT_THAT(xrandr.shown("DUMMY0"), HasSubstr("primary 1920x1080+5120+0"));
    EXPECT_EQ(xrandr.report().at("DUMMY1"), before.at("DUMMY1"));
}

TEST_F(RandRDesktopTest, WhereItsPlaceIsTakenItComesRightOfTheOthers) {
    const std::string arrangement = this->arrangement("DUMMY1");
    EXPECT_TRUE(desktop->darken("DUMMY1"));
    xrandr.expect("--output DUMMY2 --pos 2000x0");
    EXPECT_TRUE(desktop->light("DUMMY1", arrangement));
    EXPECT_THAT(xrandr.shown("DUMMY1"), HasSubstr("1920x1080+3280+0"));
}

TEST_F(RandRDesktopTest, WhatOverlappedBeforeMayOverlapAgain) {
    xrandr.expect("--output DUMMY2 --pos 100x50");
    expectToComeBack("DUMMY2");
}

TEST_F(RandRDesktopTest, WithoutAnArrangementItComesRightOfTheOthers) {
    for (const std::optional<std::string>& nonsense :
         {std::optional<std::string>(), std::optional<std::string>("{}")}) {
        EXPECT_TRUE(desktop->darken("DUMMY1"));
        EXPECT_TRUE(desktop->light("DUMMY1", nonsense));
        EXPECT_THAT(xrandr.shown("DUMMY1"), HasSubstr("1920x1080+5120+0"));
    }
}

TEST_F(RandRDesktopTest, WithoutAFreeCrtcItStaysDark) {
    const auto before = xrandr.report();
    EXPECT_FALSE(desktop->light("DUMMY3", std::nullopt));
    EXPECT_EQ(xrandr.report(), before);
}

TEST_F(RandRDesktopTest, TakesTheCrtcThatIsFree) {
    const std::string arrangement = this->arrangement("DUMMY1");
    EXPECT_TRUE(desktop->darken("DUMMY0"));
    EXPECT_TRUE(desktop->darken("DUMMY1"));
    xrandr.expect("--output DUMMY3 --crtc 1 --mode 1920x1080 --pos 0x0");
    EXPECT_TRUE(desktop->light("DUMMY1", arrangement));
    EXPECT_THAT(xrandr.shown("DUMMY1"), HasSubstr("1920x1080+1920+0"));
}

TEST_F(RandRDesktopTest, AnOutputThatIsLitStaysAsItIs) {
    const std::string arrangement = this->arrangement("DUMMY1");
    xrandr.expect("--output DUMMY1 --mode 1280x1024");
    const auto before = xrandr.report();
    EXPECT_TRUE(desktop->light("DUMMY1", arrangement));
    EXPECT_EQ(xrandr.report(), before);
}

class RandRDesktopClonesTest : public RandRDesktopTest {
  protected:
    RandRDesktopClonesTest() { xrandr.expect("--output DUMMY1 --crtc 0 --mode 1920x1080 --pos 0x0"); }
};

TEST_F(RandRDesktopClonesTest, DarkeningOneLeavesTheOtherLit) {
    ASSERT_EQ(other.crtc("DUMMY0"), other.crtc("DUMMY1"));
    const auto before = xrandr.report();
    EXPECT_TRUE(desktop->darken("DUMMY1"));
    EXPECT_FALSE(output("DUMMY1").isLit);
    expectOthersAsIn(before, "DUMMY1");
}

TEST_F(RandRDesktopClonesTest, EachComesBackToTheCrtcOfTheOther) {
    expectToComeBack("DUMMY0");
    expectToComeBack("DUMMY1");
}

TEST_F(RandRDesktopClonesTest, ComesBackOverTheOtherOnACrtcOfItsOwnWhereThatShowsSomethingElse) {
    const std::string arrangement = this->arrangement("DUMMY1");
    EXPECT_TRUE(desktop->darken("DUMMY1"));
    xrandr.expect("--output DUMMY0 --mode 1280x1024");
    EXPECT_TRUE(desktop->light("DUMMY1", arrangement));
    EXPECT_THAT(xrandr.shown("DUMMY1"), HasSubstr("1920x1080+0+0"));
    EXPECT_NE(other.crtc("DUMMY0"), other.crtc("DUMMY1"));
}

TEST_F(RandRDesktopClonesTest, HaveOneTable) {
    EXPECT_TRUE(desktop->setTable("DUMMY1", table(0.5)));
    EXPECT_EQ(desktop->table("DUMMY0"), table(0.5));
}

TEST_F(RandRDesktopTest, WhatTheHardwareRefusesIsFollowedByWhatItTakes) {
    xrandr.run("--addmode DUMMY2 1368x768");
    EXPECT_THAT(xrandr.run("--output DUMMY2 --mode 1368x768"), HasSubstr("failed"));
    xrandr.expect("--output DUMMY2 --mode 1920x1080");
    auto placement = *Placement::parse(arrangement("DUMMY2"));
    EXPECT_TRUE(desktop->darken("DUMMY2"));
    // The screen would have to grow for it.
    placement.picture.mode = {"1368x768", 1368, 768, 59882};
    placement.picture.area = {6000, 0, 1368, 768};
    EXPECT_TRUE(desktop->light("DUMMY2", placement.text()));
    EXPECT_THAT(xrandr.shown("DUMMY2"), HasSubstr("1920x1080+3840+0"));
    EXPECT_THAT(xrandr.report().at("Screen"), HasSubstr("current 5760 x 1080"));
    xrandr.expect("--delmode DUMMY2 1368x768");
}

TEST_F(RandRDesktopTest, TheOnlyOutputOfAScreenThatCannotChangeItsSizeComesBack) {
    const auto single = RandRDesktop::open(environment("VANTREL_SINGLE_DISPLAY"), descriptors, loop);
    const Xrandr witness(environment("VANTREL_SINGLE_DISPLAY"));
    const auto before = witness.report();
    ASSERT_EQ(single->outputs().size(), 1U);
    const std::string name = single->outputs()[0].name;
    const auto arrangement = single->arrangement(name);
    EXPECT_TRUE(single->darken(name));
    EXPECT_FALSE(Xrandr::isLit(name, witness.report()));
    EXPECT_TRUE(single->light(name, arrangement));
    EXPECT_EQ(Xrandr::shown(name, witness.report()), Xrandr::shown(name, before));
}

}  // namespace
}  // namespace vantrel::randr
