#include <gtest/gtest.h>

#include "ui/Nodes.h"
#include "ui/outline/Outline.h"

namespace vantrel::outline {
namespace {

using namespace ui;

// The only line of an outline.
std::string line(const Node& node) {
    const std::string outline = outlineOf(node);
    return outline.substr(0, outline.find('\n'));
}

TEST(Outline, HasALineForEachNodeBelowItsParent) {
    const Node tree = column(10, {text("Vantrel"), row(8, {spacer(), divider()}), Node{Progress{}}});
    EXPECT_EQ(outlineOf(tree),
              "column\n"
              "  text \"Vantrel\"\n"
              "  row\n"
              "    spacer\n"
              "    divider\n"
              "  progress\n");
}

TEST(Outline, TellsPanelsFromPlainStacks) {
    EXPECT_EQ(line({.element = Stack{.background = Background::card}}), "column card");
    EXPECT_EQ(line({.element = Stack{.background = Background::warning}}), "column warning");
}

TEST(Outline, OfContainersSaysHowTheyHoldTheirChildren) {
    EXPECT_EQ(line(Node{Grid{.columns = 2}}), "grid of 2");
    EXPECT_EQ(line(Node{Scroll{.maximumHeight = 240}}), "scroll up to 240");
    EXPECT_EQ(line(Node{Form{}}), "form");
    EXPECT_EQ(line(Node{Section{.title = "General"}}), "section \"General\"");
    EXPECT_EQ(line(Node{Section{}}), "section");
}

TEST(Outline, OfADisclosureSaysWhetherItIsOpen) {
    EXPECT_EQ(line(Node{Disclosure{.title = "More", .isOpen = true}}), "disclosure \"More\" open");
    EXPECT_EQ(line(Node{Disclosure{.title = "More"}}), "disclosure \"More\" closed");
}

TEST(Outline, OfATextSaysWhatItIsFor) {
    EXPECT_EQ(line(text("DDC/CI", Font::caption, Tone::secondary)), "text \"DDC/CI\" secondary");
    EXPECT_EQ(line(text("No", Font::caption, Tone::warning)), "text \"No\" warning");
    EXPECT_EQ(line(Node{Text{.text = "(vcp(10))", .isSelectable = true}}), "text \"(vcp(10))\" selectable");
    EXPECT_EQ(line(text("")), "text \"\"");
}

TEST(Outline, KeepsEveryTextInItsLine) {
    EXPECT_EQ(line(text("one\n\"two\" \\")), R"(text "one\n\"two\" \\")");
}

TEST(Outline, OfAPictureNamesIt) {
    EXPECT_EQ(line(image("display")), "image display");
    EXPECT_EQ(line(image("sun.max.fill", Font::body, Tone::warning)), "image sun.max.fill warning");
}

TEST(Outline, OfAButtonHasTitlePictureAndStyle) {
    EXPECT_EQ(line(button("Cancel")), "button \"Cancel\"");
    EXPECT_EQ(line(button("Turn On", Button::Style::prominent)), "button \"Turn On\" prominent");
    EXPECT_EQ(line(symbolButton("xmark", "Dismiss")), "button xmark borderless, named \"Dismiss\", help");
}

TEST(Outline, OfATileSaysWhatIsChosenAndMarked) {
    EXPECT_EQ(line(Node{Tile{.title = "HDMI 1", .symbol = "cable.connector.horizontal", .isSelected = true}}),
              "tile \"HDMI 1\" cable.connector.horizontal selected");
    EXPECT_EQ(line(Node{Tile{.title = "USB-C",
                             .symbol = "cable.connector",
                             .badge = "laptopcomputer",
                             .badgeHelp = "The Mac"}}),
              "tile \"USB-C\" cable.connector, badge laptopcomputer \"The Mac\"");
}

TEST(Outline, OfASwitchSaysHowItStands) {
    EXPECT_EQ(line(Node{Switch{.title = "Open at Login", .isOn = true}}), "switch \"Open at Login\" on");
    EXPECT_EQ(line(Node{Switch{}}), "switch off");
}

TEST(Outline, OfASliderHasItsNumbersInFull) {
    EXPECT_EQ(line(Node{Slider{.value = 0.425, .minimum = 0, .maximum = 65535}}),
              "slider 0.425 of 0...65535");
}

TEST(Outline, OfAPickerMarksTheChosenOption) {
    EXPECT_EQ(line(Node{Picker{.title = "Mode", .options = {"A", "B"}, .selected = 1}}),
              "picker \"Mode\" [\"A\", *\"B\"]");
    EXPECT_EQ(line(Node{Picker{.symbol = "dial.medium", .options = {"A"}, .note = "Why"}}),
              "picker dial.medium [\"A\"], note \"Why\"");
}

TEST(Outline, OfAMenuListsItsOptions) {
    EXPECT_EQ(line(Node{Menu{.title = "Add Input", .options = {"VGA 1", "VGA 2"}}}),
              "menu \"Add Input\" [\"VGA 1\", \"VGA 2\"]");
}

TEST(Outline, OfATextFieldHasItsTextAndItsPlaceholder) {
    EXPECT_EQ(line(Node{TextField{.text = "", .placeholder = "Nickname"}}),
              "text field \"\", placeholder \"Nickname\"");
}

TEST(Outline, SaysWhatIsDisabled) {
    EXPECT_EQ(line(button("Try Again").enabled(false)), "button \"Try Again\", disabled");
}

TEST(Outline, HasTheNameOnlyWhereItCannotBeSeen) {
    EXPECT_EQ(line(Node{Switch{.title = "Sound"}}.named("Sound")), "switch \"Sound\" off");
    EXPECT_EQ(line(Node{Switch{.title = "Sound"}}.named("Volume")), "switch \"Sound\" off, named \"Volume\"");
}

TEST(Outline, HasWhatIsSaidOfTheNode) {
    EXPECT_EQ(line(image("display").named("A").valued("B").described("C").withHelp("D").key("E")),
              "image display, value \"B\", named \"A\", described \"C\", help \"D\", key \"E\"");
}

TEST(Outline, ListsAContextMenu) {
    EXPECT_EQ(line(text("").withContextMenu({"Forget"}, [](std::size_t) {})),
              "text \"\", context menu [\"Forget\"]");
}

}  // namespace
}  // namespace vantrel::outline
