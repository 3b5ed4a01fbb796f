#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

#include "linux/FakeDesktop.h"
#include "linux/FakeGuard.h"
#include "linux/FakeSession.h"
#include "linux/SharedDefaults.h"
#include "platform/linux/OutputSwitch.h"
#include "support/RecordingLogSink.h"

namespace vantrel::linux {
namespace {

using Calls = std::vector<std::string>;
using Notes = SessionMemory::Notes;
using platform::LogLevel;

// Somebody on guard who does something at once.
class ActiveGuard : public OutputGuard {
  public:
    explicit ActiveGuard(std::function<bool()> act) : act_(std::move(act)) {}
    bool post() override { return act_(); }

  private:
    std::function<bool()> act_;
};

class OutputSwitchTest : public testing::Test {
  protected:
    OutputSwitchTest() {
        desktop.add(lit("DP-1", "1920x1080+0+0"));
        desktop.add(lit("DP-2", "2560x1440+1920+0"));
    }

    static Desktop::Output lit(const std::string& name, const std::string& place) {
        Desktop::Output output = FakeDesktop::outputOf(name, {});
        output.place = place;
        return output;
    }
    bool isLit(const std::string& name) { return desktop.output(name).isLit; }
    // Another program's doing.
    void turn(const std::string& name, bool isLit) {
        desktop.output(name).isLit = isLit;
        desktop.changed();
    }
    std::vector<std::string> errors() const {
        std::vector<std::string> texts;
        for (const auto& line : sink.lines()) {
            EXPECT_EQ(line.category, platform::Log::display);
            if (line.level == LogLevel::error) texts.push_back(line.text);
        }
        return texts;
    }

    test::RecordingLogSink sink;
    const platform::Log log{sink};
    FakeDesktop desktop;
    FakeSession session;
    SharedDefaults file;
    SessionMemory memory{file.open(), "fake-:0"};
    FakeGuard guard;
    OutputSwitch outputs{desktop, session, memory, &guard, log};
    // What the process on guard has.
    OutputSwitch guardsOutputs{desktop, session, memory, nullptr, log};
};

TEST_F(OutputSwitchTest, TurnsOffAnOutputThatIsNotTheLastOne) {
    EXPECT_TRUE(outputs.darken("DP-1"));
    EXPECT_FALSE(isLit("DP-1"));
    EXPECT_TRUE(isLit("DP-2"));
    EXPECT_EQ(memory.darkened(), (Notes{{"DP-1", "1920x1080+0+0"}}));
    EXPECT_FALSE(outputs.isIdle());
    EXPECT_EQ(errors(), Calls());
}

TEST_F(OutputSwitchTest, NotesAndPostsAGuardBeforeItTurnsOff) {
    bool wasNoted = false;
    ActiveGuard active([&] {
        wasNoted = memory.darkened() == Notes{{"DP-1", "1920x1080+0+0"}} && isLit("DP-1");
        return true;
    });
    OutputSwitch careful(desktop, session, memory, &active, log);
    EXPECT_TRUE(careful.darken("DP-1"));
    EXPECT_TRUE(wasNoted);
}

TEST_F(OutputSwitchTest, TurnsItOnAgainAsItWas) {
    outputs.darken("DP-2");
    desktop.calls.clear();
    EXPECT_TRUE(outputs.light("DP-2"));
    EXPECT_EQ(desktop.calls, Calls{"light DP-2 2560x1440+1920+0"});
    EXPECT_EQ(desktop.output("DP-2").place, "2560x1440+1920+0");
    EXPECT_TRUE(outputs.isIdle());
}

TEST_F(OutputSwitchTest, LeavesTheLastOutputThatCanBeSeen) {
    outputs.darken("DP-1");
    desktop.calls.clear();
    EXPECT_FALSE(outputs.darken("DP-2"));
    EXPECT_EQ(desktop.calls, Calls());
    EXPECT_EQ(memory.darkened(), (Notes{{"DP-1", "1920x1080+0+0"}}));
    EXPECT_EQ(errors(), Calls{"DP-2: not turned off, it is the last output that can be seen"});
}

TEST_F(OutputSwitchTest, CountsNoOutputWithoutAMonitor) {
    // X11 keeps giving a picture to an output whose monitor was unplugged.
    desktop.output("DP-2").isConnected = false;
    EXPECT_FALSE(outputs.darken("DP-1"));
    EXPECT_TRUE(isLit("DP-1"));
}

TEST_F(OutputSwitchTest, CountsNoPanelUnderAClosedLid) {
    desktop.add(lit("eDP-1", "panel"));
    session.closeLid();
    EXPECT_TRUE(outputs.darken("DP-1"));
    EXPECT_FALSE(outputs.darken("DP-2"));
    session.openLid();
    EXPECT_TRUE(outputs.darken("DP-2"));
}

TEST_F(OutputSwitchTest, TurnsThePanelUnderAClosedLidOffWhileAnotherCanBeSeen) {
    desktop.add(lit("eDP-1", "panel"));
    session.closeLid();
    EXPECT_TRUE(outputs.darken("eDP-1"));
    EXPECT_FALSE(isLit("eDP-1"));
}

TEST_F(OutputSwitchTest, TurnsNothingOffWithoutAGuard) {
    guard.comes = false;
    EXPECT_FALSE(outputs.darken("DP-1"));
    EXPECT_TRUE(isLit("DP-1"));
    EXPECT_TRUE(outputs.isIdle());
    EXPECT_EQ(desktop.calls, Calls());
    EXPECT_EQ(errors(), Calls{"DP-1: not turned off, nobody could be had to guard the others"});
    EXPECT_FALSE(guardsOutputs.darken("DP-1"));
    EXPECT_TRUE(isLit("DP-1"));
}

TEST_F(OutputSwitchTest, ForgetsWhatTheDesktopRefusedToTurnOff) {
    desktop.refuses = true;
    EXPECT_FALSE(outputs.darken("DP-1"));
    EXPECT_TRUE(outputs.isIdle());
    EXPECT_EQ(errors(), Calls{"DP-1: Fake refused to turn it off"});
}

TEST_F(OutputSwitchTest, KnowsNoOutputThatTheDesktopDoesNotKnow) {
    EXPECT_FALSE(outputs.darken("DP-9"));
    EXPECT_FALSE(outputs.light("DP-9"));
    EXPECT_EQ(guard.posts, 0U);
    EXPECT_TRUE(outputs.isIdle());
}

TEST_F(OutputSwitchTest, HasNothingToDoForAnOutputThatIsAsAskedFor) {
    EXPECT_TRUE(outputs.light("DP-1"));
    turn("DP-1", false);
    EXPECT_TRUE(outputs.darken("DP-1"));
    EXPECT_EQ(desktop.calls, Calls());
    EXPECT_EQ(guard.posts, 0U);
    // Somebody else's doing isn't undone.
    EXPECT_TRUE(outputs.isIdle());
}

TEST_F(OutputSwitchTest, LightsWhatOthersTurnedOffAsTheDesktopWouldShowIt) {
    turn("DP-1", false);
    EXPECT_TRUE(outputs.light("DP-1"));
    EXPECT_EQ(desktop.calls, Calls{"light DP-1"});
}

TEST_F(OutputSwitchTest, KeepsTheNoteOfAnOutputThatTheDesktopRefusesToTurnOn) {
    outputs.darken("DP-1");
    desktop.refuses = true;
    EXPECT_FALSE(outputs.light("DP-1"));
    EXPECT_EQ(memory.darkened(), (Notes{{"DP-1", "1920x1080+0+0"}}));
    EXPECT_EQ(errors(), Calls{"DP-1: Fake refused to turn it on"});
    desktop.refuses = false;
    EXPECT_TRUE(outputs.light("DP-1"));
    EXPECT_EQ(desktop.output("DP-1").place, "1920x1080+0+0");
}

TEST_F(OutputSwitchTest, RemembersOneThatIsStillDarkThoughTheDesktopTookItsLight) {
    outputs.darken("DP-1");
    desktop.takesOnly = true;
    EXPECT_TRUE(outputs.light("DP-1"));
    EXPECT_FALSE(isLit("DP-1"));
    EXPECT_FALSE(outputs.isIdle());
    turn("DP-1", true);
    outputs.keepLight();
    EXPECT_TRUE(outputs.isIdle());
}

TEST_F(OutputSwitchTest, LightsItAgainAtOnceWhenTheOthersWentDarkMeanwhile) {
    desktop.meanwhile = [this] { desktop.unplug("DP-2"); };
    EXPECT_FALSE(outputs.darken("DP-1"));
    EXPECT_TRUE(isLit("DP-1"));
    EXPECT_EQ(desktop.output("DP-1").place, "1920x1080+0+0");
    EXPECT_TRUE(outputs.isIdle());
}

TEST_F(OutputSwitchTest, LightsWhatItTurnedOffWhenNothingElseCanBeSeen) {
    outputs.darken("DP-1");
    outputs.keepLight();
    EXPECT_FALSE(isLit("DP-1"));
    desktop.unplug("DP-2");
    EXPECT_TRUE(outputs.keepLight());
    EXPECT_TRUE(isLit("DP-1"));
    EXPECT_EQ(desktop.output("DP-1").place, "1920x1080+0+0");
    EXPECT_TRUE(outputs.isIdle());
    ASSERT_FALSE(sink.lines().empty());
    EXPECT_EQ(sink.lines().back().text, "DP-1: turned on again, nothing else can be seen");
    EXPECT_EQ(sink.lines().back().level, LogLevel::standard);
}

TEST_F(OutputSwitchTest, LightsWhenAnotherProgramTurnsTheLastOneOff) {
    outputs.darken("DP-1");
    turn("DP-2", false);
    EXPECT_TRUE(guardsOutputs.keepLight());
    EXPECT_TRUE(isLit("DP-1"));
    // Only what this program turned off.
    EXPECT_FALSE(isLit("DP-2"));
}

TEST_F(OutputSwitchTest, LightsWhenTheLidClosesOverTheLastOne) {
    turn("DP-2", false);
    desktop.add(lit("eDP-1", "panel"));
    outputs.darken("DP-1");
    session.closeLid();
    EXPECT_TRUE(outputs.keepLight());
    EXPECT_TRUE(isLit("DP-1"));
}

TEST_F(OutputSwitchTest, LightsAllThatItTurnedOffAtOnce) {
    desktop.add(lit("DP-3", "third"));
    outputs.darken("DP-1");
    outputs.darken("DP-3");
    desktop.unplug("DP-2");
    outputs.keepLight();
    EXPECT_TRUE(isLit("DP-1"));
    EXPECT_TRUE(isLit("DP-3"));
    EXPECT_TRUE(outputs.isIdle());
}

TEST_F(OutputSwitchTest, LightsAnotherWhereOneCanNotBe) {
    desktop.add(lit("DP-3", "third"));
    outputs.darken("DP-1");
    outputs.darken("DP-3");
    desktop.unplug("DP-1");
    desktop.unplug("DP-2");
    EXPECT_TRUE(outputs.keepLight());
    EXPECT_TRUE(isLit("DP-3"));
    EXPECT_EQ(memory.darkened(), (Notes{{"DP-1", "1920x1080+0+0"}}));
}

TEST_F(OutputSwitchTest, SaysWhetherItHasToLookAgain) {
    EXPECT_TRUE(outputs.keepLight());
    outputs.darken("DP-1");
    EXPECT_TRUE(outputs.keepLight());
    desktop.unplug("DP-2");
    desktop.refuses = true;
    EXPECT_FALSE(outputs.keepLight());
    desktop.refuses = false;
    desktop.takesOnly = true;
    EXPECT_FALSE(outputs.keepLight());
    desktop.takesOnly = false;
    EXPECT_TRUE(outputs.keepLight());
    EXPECT_TRUE(isLit("DP-1"));
}

TEST_F(OutputSwitchTest, NeedsNoOtherLookWhereNothingCouldBeLit) {
    outputs.darken("DP-1");
    desktop.unplug("DP-1");
    desktop.unplug("DP-2");
    EXPECT_TRUE(outputs.keepLight());
    EXPECT_FALSE(outputs.isIdle());
}

TEST_F(OutputSwitchTest, ForgetsWhatOthersLit) {
    outputs.darken("DP-1");
    turn("DP-1", true);
    EXPECT_TRUE(outputs.keepLight());
    EXPECT_TRUE(outputs.isIdle());
    EXPECT_EQ(desktop.calls, Calls{"darken DP-1"});
}

TEST_F(OutputSwitchTest, ForgetsOnGuardWhatOthersLit) {
    outputs.darken("DP-1");
    guardsOutputs.keepLight();
    turn("DP-1", true);
    guardsOutputs.keepLight();
    EXPECT_TRUE(outputs.isIdle());
}

// The guard looks as soon as it is there, when the output isn't turned off yet.
TEST_F(OutputSwitchTest, ForgetsNothingOnGuardThatIsAboutToBeTurnedOff) {
    ActiveGuard active([this] { return guardsOutputs.keepLight(); });
    OutputSwitch program(desktop, session, memory, &active, log);
    EXPECT_TRUE(program.darken("DP-1"));
    EXPECT_EQ(memory.darkened(), (Notes{{"DP-1", "1920x1080+0+0"}}));
    EXPECT_TRUE(program.light("DP-1"));
    // The same once more, with a guard that has seen it dark.
    EXPECT_TRUE(program.darken("DP-1"));
    guardsOutputs.keepLight();
    EXPECT_TRUE(program.light("DP-1"));
    guardsOutputs.keepLight();
    EXPECT_TRUE(program.darken("DP-1"));
    EXPECT_EQ(memory.darkened(), (Notes{{"DP-1", "1920x1080+0+0"}}));
}

// Two processes that change the memory at the same moment.
TEST_F(OutputSwitchTest, NotesAgainWhatSomebodyElseForgotMeanwhile) {
    unsigned posts = 0;
    ActiveGuard forgetful([&] {
        if (++posts == 1) memory.forgetDarkened("DP-1");
        return true;
    });
    OutputSwitch program(desktop, session, memory, &forgetful, log);
    EXPECT_TRUE(program.darken("DP-1"));
    EXPECT_EQ(memory.darkened(), (Notes{{"DP-1", "1920x1080+0+0"}}));
    EXPECT_EQ(posts, 2U);
}

TEST_F(OutputSwitchTest, LightsAgainWhatNobodyGuardsAnyMore) {
    unsigned posts = 0;
    ActiveGuard leaving([&] {
        memory.forgetDarkened("DP-1");
        return ++posts == 1;
    });
    OutputSwitch program(desktop, session, memory, &leaving, log);
    EXPECT_FALSE(program.darken("DP-1"));
    EXPECT_TRUE(isLit("DP-1"));
    EXPECT_EQ(desktop.output("DP-1").place, "1920x1080+0+0");
    EXPECT_TRUE(program.isIdle());
}

TEST_F(OutputSwitchTest, NotesHowItIsArrangedNow) {
    outputs.darken("DP-1");
    turn("DP-1", true);
    desktop.output("DP-1").place = "moved";
    EXPECT_TRUE(outputs.darken("DP-1"));
    EXPECT_TRUE(outputs.light("DP-1"));
    EXPECT_EQ(desktop.output("DP-1").place, "moved");
}

TEST_F(OutputSwitchTest, TurnsOffAnOutputWhoseArrangementNobodyTells) {
    desktop.output("DP-1").place.clear();
    EXPECT_TRUE(outputs.darken("DP-1"));
    EXPECT_EQ(memory.darkened(), (Notes{{"DP-1", ""}}));
    desktop.calls.clear();
    EXPECT_TRUE(outputs.light("DP-1"));
    EXPECT_EQ(desktop.calls, Calls{"light DP-1"});
}

TEST_F(OutputSwitchTest, BringsBackWhatAnEarlierProgramTurnedOff) {
    outputs.darken("DP-1");
    OutputSwitch next(desktop, session, memory, &guard, log);
    EXPECT_FALSE(next.isIdle());
    EXPECT_TRUE(next.light("DP-1"));
    EXPECT_EQ(desktop.output("DP-1").place, "1920x1080+0+0");
}

TEST_F(OutputSwitchTest, RefusesEverythingOnceTheDesktopHasGone) {
    outputs.darken("DP-1");
    desktop.vanish();
    EXPECT_FALSE(outputs.darken("DP-2"));
    EXPECT_FALSE(outputs.light("DP-1"));
    EXPECT_TRUE(outputs.keepLight());
    EXPECT_FALSE(outputs.isIdle());
}

}  // namespace
}  // namespace vantrel::linux
