#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "views/InputChoice.h"
#include "views/ViewRig.h"

namespace vantrel::views {
namespace {

using testing::ElementsAre;

class InputChoiceTest : public testing::Test {
  protected:
    InputChoiceTest() {
        view.show([this] {
            return inputChoice(*view.display(), {.title = "Switch to",
                                                 .none = "Don't switch",
                                                 .chosen = chosen.get(),
                                                 .onChoose = [this](std::optional<InputChoice::Input> input) {
                                                     told.push_back(input);
                                                 }});
        });
    }
    std::string choose(std::optional<InputChoice::Input> input) {
        chosen.set(input);
        view.settle();
        return view.outline();
    }

    test::ViewRig view;
    runtime::Observable<std::optional<InputChoice::Input>> chosen;
    std::vector<std::optional<InputChoice::Input>> told;
};

TEST_F(InputChoiceTest, OffersNoneAndEachInputByName) {
    EXPECT_EQ(choose(0x11),
              "picker \"Switch to\" [\"Don't switch\", \"DisplayPort 1\", *\"HDMI 1\", \"HDMI 2\"]\n");
}

TEST_F(InputChoiceTest, ShowsNoneAsAChoice) {
    EXPECT_EQ(choose(std::nullopt),
              "picker \"Switch to\" [*\"Don't switch\", \"DisplayPort 1\", \"HDMI 1\", \"HDMI 2\"]\n");
}

TEST_F(InputChoiceTest, LeavesHiddenInputsOut) {
    view.display()->inputSettings().setHidden({0x0F});
    EXPECT_EQ(choose(0x12), "picker \"Switch to\" [\"Don't switch\", \"HDMI 1\", *\"HDMI 2\"]\n");
}

TEST_F(InputChoiceTest, ShowsNoChoiceForAHiddenInput) {
    view.display()->inputSettings().setHidden({0x12});
    EXPECT_EQ(choose(0x12), "picker \"Switch to\" [\"Don't switch\", \"DisplayPort 1\", \"HDMI 1\"]\n");
}

TEST_F(InputChoiceTest, TellsWhatIsChosen) {
    view.choose("Switch to", 3);
    view.choose("Switch to", 0);
    EXPECT_THAT(told, ElementsAre(std::optional<InputChoice::Input>(0x12), std::nullopt));
}

}  // namespace
}  // namespace vantrel::views
