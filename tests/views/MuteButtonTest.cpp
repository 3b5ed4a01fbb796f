#include <gtest/gtest.h>

#include "views/MuteButton.h"
#include "views/ViewDesks.h"
#include "views/ViewRig.h"

namespace vantrel::views {
namespace {

class MuteButtonTest : public testing::Test {
  protected:
    MuteButtonTest() {
        view.show([this] { return muteButton(view.environment, view.display(), mute); });
    }
    void become(std::optional<std::uint16_t> value) {
        mute->current.set(value);
        view.settle();
    }

    test::ViewRig view{test::deskWith(test::richAlder())};
    std::shared_ptr<model::VCPFeature> mute = view.display()->feature(0x8D);
    static inline const std::string speaker = "button speaker.fill borderless, named \"Mute\", help\n";
    static inline const std::string silence =
        "button speaker.slash.fill borderless, named \"Unmute\", help\n";
};

TEST_F(MuteButtonTest, OffersToMuteWhileThereIsSound) { EXPECT_EQ(view.outline(), speaker); }

TEST_F(MuteButtonTest, OffersToUnmuteWhileThereIsNone) {
    become(1);
    EXPECT_EQ(view.outline(), silence);
}

TEST_F(MuteButtonTest, TakesAnUnknownOrOddValueForSound) {
    become(std::nullopt);
    EXPECT_EQ(view.outline(), speaker);
    become(0);
    EXPECT_EQ(view.outline(), speaker);
}

TEST_F(MuteButtonTest, MutesWithOne) {
    view.press("Mute");
    EXPECT_EQ(view.outline(), silence);
    view.runFor(std::chrono::seconds(5));
    EXPECT_EQ(view.rig.monitor(2).value(0x8D), 1);
}

TEST_F(MuteButtonTest, UnmutesWithTwo) {
    become(1);
    view.press("Unmute");
    EXPECT_EQ(view.outline(), speaker);
    view.runFor(std::chrono::seconds(5));
    EXPECT_EQ(view.rig.monitor(2).value(0x8D), 2);
}

TEST_F(MuteButtonTest, MutesWithOneWhenTheStateIsUnknown) {
    become(std::nullopt);
    view.press("Mute");
    EXPECT_EQ(mute->current.get(), 1);
}

}  // namespace
}  // namespace vantrel::views
