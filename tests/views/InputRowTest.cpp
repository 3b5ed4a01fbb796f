#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "views/InputRow.h"
#include "views/ViewRig.h"

namespace vantrel::views {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::Pair;
using Input = model::ExternalDisplay::Input;

class InputRowTest : public testing::Test {
  protected:
    void show(Input input) {
        view.show([this, input] { return inputRow(view.environment, view.display(), input); });
        view.rig.calls.clear();
    }
    std::string codeOf(Input input) {
        show(input);
        return std::get<ui::Text>(view.tree().children.at(1).element).text;
    }
    model::InputSettings& settings() { return view.display()->inputSettings(); }
    std::set<Input> storedHidden() {
        return persistence::Store::hiddenInputs(view.rig.defaults, view.display()->key());
    }
    persistence::Store::InputAliases storedAliases() {
        return persistence::Store::inputAliases(view.rig.defaults, view.display()->key());
    }

    test::ViewRig view;
};

TEST_F(InputRowTest, IsWhetherItIsOfferedItsCodeAndItsNickname) {
    settings().setAliases({{0x11, "Windows PC"}});
    show(0x11);
    EXPECT_EQ(
        view.outline(),
        "row, key \"input 11\"\n"
        "  switch on, named \"Show Windows PC in the menu\", help \"Show in the menu\", key \"offered\"\n"
        "  text \"0x11\"\n"
        "  text field \"Windows PC\", placeholder \"Nickname (e.g. Windows PC)\", named \"Nickname of "
        "Windows "
        "PC\", key \"nickname\"\n");
}

TEST_F(InputRowTest, WritesCodesWithTwoDigitsInUpperCase) {
    EXPECT_EQ(codeOf(0x1B), "0x1B");
    EXPECT_EQ(codeOf(15), "0x0F");
    EXPECT_EQ(codeOf(0x100), "0x100");
}

TEST_F(InputRowTest, HasAColumnForTheCode) {
    show(0x11);
    EXPECT_EQ(view.tree().children.at(1).layout.width, 110);
}

TEST_F(InputRowTest, HidesAnInput) {
    show(0x11);
    view.toggle("Show HDMI 1 in the menu", false);
    EXPECT_THAT(settings().hidden(), ElementsAre(0x11));
    EXPECT_THAT(storedHidden(), ElementsAre(0x11));
    EXPECT_THAT(view.lines(), Contains(HasSubstr("switch off")));
}

TEST_F(InputRowTest, HidesAnInputBesideOthers) {
    settings().setHidden({0x12});
    show(0x11);
    view.toggle("Show HDMI 1 in the menu", false);
    EXPECT_THAT(storedHidden(), ElementsAre(0x11, 0x12));
}

TEST_F(InputRowTest, OffersAHiddenInputAgain) {
    settings().setHidden({0x11, 0x12});
    show(0x11);
    view.toggle("Show HDMI 1 in the menu", true);
    EXPECT_THAT(storedHidden(), ElementsAre(0x12));
}

TEST_F(InputRowTest, StoresOnceForEachChange) {
    show(0x11);
    view.toggle("Show HDMI 1 in the menu", false);
    EXPECT_THAT(view.rig.calls.calls(), ElementsAre(HasSubstr("hiddenInputs.1000-22-102")));
    view.rig.calls.clear();
    view.edit("Nickname of HDMI 1", "P");
    EXPECT_THAT(view.rig.calls.calls(), ElementsAre(HasSubstr("inputAliases.1000-22-102")));
}

TEST_F(InputRowTest, GivesAnInputItsNicknameWithEachEdit) {
    show(0x11);
    view.edit("Nickname of HDMI 1", "P");
    EXPECT_THAT(storedAliases(), ElementsAre(Pair(0x11, "P")));
    view.edit("Nickname of P", "PC");
    EXPECT_THAT(storedAliases(), ElementsAre(Pair(0x11, "PC")));
    EXPECT_EQ(view.display()->inputName(0x11), "PC");
}

TEST_F(InputRowTest, KeepsANicknameAsItIsWritten) {
    show(0x11);
    view.edit("Nickname of HDMI 1", " ");
    EXPECT_THAT(storedAliases(), ElementsAre(Pair(0x11, " ")));
}

TEST_F(InputRowTest, TakesTheNicknameAwayWithItsLastCharacter) {
    settings().setAliases({{0x11, "P"}, {0x12, "Box"}});
    show(0x11);
    view.edit("Nickname of P", "");
    EXPECT_THAT(storedAliases(), ElementsAre(Pair(0x12, "Box")));
    EXPECT_EQ(view.display()->inputName(0x11), "HDMI 1");
    EXPECT_THAT(view.lines(), Contains(HasSubstr("text field \"\"")));
}

TEST_F(InputRowTest, OffersToRemoveAnInputThatTheUserAdded) {
    view.display()->addInput(0x1B);
    show(0x1B);
    EXPECT_THAT(view.lines(),
                Contains("button minus.circle borderless, named \"Remove this input\", described "
                         "\"USB-C\", help, key \"remove\""));
}

TEST_F(InputRowTest, RemovesAnInputThatTheUserAdded) {
    view.display()->addInput(0x1B);
    show(0x1B);
    view.press("Remove this input");
    EXPECT_THAT(view.display()->inputs(), ElementsAre(0x0F, 0x11, 0x12));
}

TEST_F(InputRowTest, DoesNotOfferToRemoveWhatTheMonitorReported) {
    view.display()->addInput(0x1B);
    show(0x11);
    EXPECT_THAT(view.outline(), Not(HasSubstr("minus.circle")));
}

TEST_F(InputRowTest, OffersToRemoveNothingWithoutAListOfTheUsers) {
    show(0x11);
    EXPECT_THAT(view.outline(), Not(HasSubstr("minus.circle")));
}

}  // namespace
}  // namespace vantrel::views
