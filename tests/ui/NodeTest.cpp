#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/DeathTest.h"
#include "ui/Node.h"
#include "ui/Nodes.h"

namespace vantrel::ui {
namespace {

using testing::ElementsAre;

template <class E>
bool isInteractiveKind() {
    return isInteractive(Node{.element = E{}});
}

TEST(Node, IsEqualToOneThatDoesSomethingElse) {
    EXPECT_EQ(button("Quit").onPress([] {}), button("Quit").onPress([] { FAIL(); }));
    EXPECT_EQ(button("Quit").onPress([] {}), button("Quit"));
}

TEST(Node, IsNotEqualToOneThatShowsSomethingElse) {
    EXPECT_NE(text("Alder"), text("Birch"));
    EXPECT_NE(text("Alder"), text("Alder", Font::caption));
    EXPECT_NE(text("Alder"), text("Alder").key("name"));
    EXPECT_NE(text("Alder"), text("Alder").enabled(false));
    EXPECT_NE(text("Alder"), text("Alder").withHelp("A tree"));
    EXPECT_NE(text("Alder"), text("Alder").named("A tree"));
    EXPECT_NE(text("Alder"), text("Alder").padding(1));
    EXPECT_NE(text("Alder"), text("Alder").withContextMenu({"Forget"}, [](std::size_t) {}));
    EXPECT_NE(text(""), image(""));
}

TEST(Node, IsNotEqualToOneWithOtherChildren) {
    EXPECT_NE(column(0, {text("Alder")}), column(0, {text("Birch")}));
    EXPECT_NE(column(0, {text("Alder")}), column(0, {}));
}

TEST(Node, TakesWhatItIsToldInARow) {
    const Node node =
        text("Alder").key("name").padding(1, 2).width(3).height(4).heightBetween(5, 6).fillWidth();
    EXPECT_EQ(node.id, "name");
    EXPECT_EQ(node.layout, (Layout{.horizontalPadding = 1,
                                   .verticalPadding = 2,
                                   .width = 3,
                                   .height = 4,
                                   .minimumHeight = 5,
                                   .maximumHeight = 6,
                                   .fillsWidth = true}));
}

TEST(Node, IsPaddedOnAllSidesByOneLength) {
    EXPECT_EQ(text("Alder").padding(7).layout, (Layout{.horizontalPadding = 7, .verticalPadding = 7}));
}

TEST(Node, TellsWhoDoesNotSeeIt) {
    EXPECT_EQ(text("").named("Brightness").valued("42%").described("Of the panel").accessibility,
              (Accessibility{.name = "Brightness", .value = "42%", .description = "Of the panel"}));
}

TEST(Node, OfAButtonIsNamedAsItsTitle) { EXPECT_EQ(button("Quit").accessibility.name, "Quit"); }

TEST(Node, OfASymbolButtonIsNamedAndExplained) {
    const Node node = symbolButton("xmark", "Dismiss");
    EXPECT_EQ(node.accessibility.name, "Dismiss");
    EXPECT_EQ(node.help, "Dismiss");
}

TEST(Node, HandsItsHandlerWhatThePersonDid) {
    std::vector<std::string> done;
    const auto deliver = [](const Node& node, const Event& event) { node.handler.function(event); };
    deliver(button("Quit").onPress([&] { done.push_back("pressed"); }), Pressed{});
    deliver(Node{Switch{}}.onToggle([&](bool isOn) { done.push_back(isOn ? "on" : "off"); }), Toggled{true});
    deliver(Node{Slider{}}.onSlide([&](double value) { done.push_back(std::to_string(value)); }), Slid{0.5});
    deliver(Node{Picker{}}.onChoose([&](std::size_t option) { done.push_back(std::to_string(option)); }),
            Chosen{2});
    deliver(Node{TextField{}}.onEdit([&](const std::string& text) { done.push_back(text); }), Edited{"PC"});
    deliver(
        text("").withContextMenu({"Forget"}, [&](std::size_t item) { done.push_back(std::to_string(item)); }),
        ContextChosen{0});
    deliver(text("").onResize([&](Size size) { done.push_back(std::to_string(size.width)); }),
            Resized{{340, 200}});
    EXPECT_THAT(done, ElementsAre("pressed", "on", "0.500000", "2", "PC", "0", "340.000000"));
}

TEST(Node, ReportsItsSizeOnlyWhenAsked) {
    EXPECT_TRUE(text("").onResize([](Size) {}).layout.reportsSize);
    EXPECT_FALSE(text("").layout.reportsSize);
}

TEST(Node, IsInteractiveWhenAPersonCanOperateIt) {
    EXPECT_TRUE(isInteractiveKind<Disclosure>());
    EXPECT_TRUE(isInteractiveKind<Button>());
    EXPECT_TRUE(isInteractiveKind<Tile>());
    EXPECT_TRUE(isInteractiveKind<Switch>());
    EXPECT_TRUE(isInteractiveKind<Slider>());
    EXPECT_TRUE(isInteractiveKind<Picker>());
    EXPECT_TRUE(isInteractiveKind<Menu>());
    EXPECT_TRUE(isInteractiveKind<TextField>());
}

TEST(Node, IsNotInteractiveWhenItIsOnlyLookedAt) {
    EXPECT_FALSE(isInteractiveKind<Stack>());
    EXPECT_FALSE(isInteractiveKind<Grid>());
    EXPECT_FALSE(isInteractiveKind<Scroll>());
    EXPECT_FALSE(isInteractiveKind<Form>());
    EXPECT_FALSE(isInteractiveKind<Section>());
    EXPECT_FALSE(isInteractiveKind<Text>());
    EXPECT_FALSE(isInteractiveKind<Image>());
    EXPECT_FALSE(isInteractiveKind<Spacer>());
    EXPECT_FALSE(isInteractiveKind<Divider>());
    EXPECT_FALSE(isInteractiveKind<Progress>());
}

class NodeDeathTest : public test::DeathTest {};

TEST_F(NodeDeathTest, AnEventOfAnotherKindOfControlStopsTheProgram) {
    const Node node = Node{Switch{}}.onToggle([](bool) {});
    EXPECT_DEATH(node.handler.function(Slid{1}), "event of another kind");
}

}  // namespace
}  // namespace vantrel::ui
