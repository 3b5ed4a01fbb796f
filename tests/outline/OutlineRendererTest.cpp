#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/DeathTest.h"
#include "ui/Nodes.h"
#include "ui/outline/OutlineRenderer.h"

namespace vantrel::outline {
namespace {

using namespace ui;
using testing::ElementsAre;
using testing::IsEmpty;

class OutlineRendererTest : public test::DeathTest {
  protected:
    // A column (1) of "a" (2), "b" (3) and a row (4) with "c" (5).
    OutlineRendererTest() {
        renderer.insert(noElement, 0, 1, column(0, {}));
        renderer.insert(1, 0, 2, text("a"));
        renderer.insert(1, 1, 3, text("b"));
        renderer.insert(1, 2, 4, row(0, {}));
        renderer.insert(4, 0, 5, text("c"));
        renderer.finish();
    }
    Node tree() {
        renderer.finish();
        return renderer.tree();
    }

    OutlineRenderer renderer;
};

TEST_F(OutlineRendererTest, KeepsWhatIsInserted) {
    EXPECT_EQ(renderer.tree(), column(0, {text("a"), text("b"), row(0, {text("c")})}));
}

TEST_F(OutlineRendererTest, LooksAtNoChildrenOfAnInsertedNode) {
    renderer.insert(1, 0, 6, row(0, {text("x")}));
    EXPECT_EQ(tree().children.at(0), row(0, {}));
}

TEST_F(OutlineRendererTest, MakesRoomForWhatIsInsertedBefore) {
    renderer.insert(1, 1, 6, text("x"));
    EXPECT_EQ(tree(), column(0, {text("a"), text("x"), text("b"), row(0, {text("c")})}));
}

TEST_F(OutlineRendererTest, UpdatesANodeAndLeavesItsChildren) {
    renderer.update(4, row(9, {}));
    EXPECT_EQ(tree(), column(0, {text("a"), text("b"), row(9, {text("c")})}));
}

TEST_F(OutlineRendererTest, MovesANodeWithEverythingInIt) {
    renderer.move(1, 0, 4);
    EXPECT_EQ(tree(), column(0, {row(0, {text("c")}), text("a"), text("b")}));
}

TEST_F(OutlineRendererTest, RemovesANodeWithEverythingInIt) {
    renderer.remove(4);
    EXPECT_EQ(tree(), column(0, {text("a"), text("b")}));
    EXPECT_DEATH(renderer.update(5, text("x")), "isn't shown");
}

TEST_F(OutlineRendererTest, FindsElementsFromTopToBottom) {
    const auto isText = [](const Node& node) { return std::holds_alternative<Text>(node.element); };
    EXPECT_THAT(renderer.find(isText), ElementsAre(2, 3, 5));
    EXPECT_THAT(renderer.find([](const Node&) { return false; }), IsEmpty());
}

TEST_F(OutlineRendererTest, PrintsItsTree) {
    EXPECT_EQ(renderer.outline(),
              "column\n"
              "  text \"a\"\n"
              "  text \"b\"\n"
              "  row\n"
              "    text \"c\"\n");
}

using OutlineRendererDeathTest = OutlineRendererTest;

TEST_F(OutlineRendererDeathTest, ADifferenceThatCannotBeStopsTheProgram) {
    EXPECT_DEATH(renderer.insert(9, 0, 6, text("x")), "isn't shown");
    EXPECT_DEATH(renderer.insert(1, 4, 6, text("x")), "behind the last place");
    EXPECT_DEATH(renderer.insert(1, 0, 2, text("x")), "a second time");
    EXPECT_DEATH(renderer.insert(noElement, 0, 6, text("x")), "second topmost");
    EXPECT_DEATH(renderer.insert(1, 0, noElement, text("x")), "without an identifier");
    EXPECT_DEATH(renderer.update(9, text("x")), "isn't shown");
    EXPECT_DEATH(renderer.update(2, divider()), "another kind");
    EXPECT_DEATH(renderer.move(4, 0, 2), "isn't its own");
    EXPECT_DEATH(renderer.move(1, 3, 2), "behind the last place");
    EXPECT_DEATH(renderer.remove(9), "isn't shown");
}

TEST_F(OutlineRendererDeathTest, ATreeThatIsNotFinishedStopsTheProgram) {
    renderer.update(2, text("x"));
    EXPECT_DEATH(renderer.tree(), "to its end");
    EXPECT_DEATH(OutlineRenderer().tree(), "to its end");
}

}  // namespace
}  // namespace vantrel::outline
