#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <utility>

#include "platform/simulated/Random.h"
#include "support/DeathTest.h"
#include "support/RandomSeeds.h"
#include "support/VirtualLoop.h"
#include "ui/Host.h"
#include "ui/Nodes.h"
#include "ui/outline/OutlineRenderer.h"

namespace vantrel::ui {
namespace {

using runtime::Observable;
using testing::ElementsAre;
using testing::IsEmpty;

// Notes what a renderer is told, and keeps it as OutlineRenderer does.
class NotingRenderer : public outline::OutlineRenderer {
  public:
    std::vector<std::string> told;

    void insert(ElementID parent, std::size_t position, ElementID element, const Node& node) override {
        told.push_back("insert " + nameOf(node) + " at " + std::to_string(position));
        names_[element] = nameOf(node);
        OutlineRenderer::insert(parent, position, element, node);
    }
    void update(ElementID element, const Node& node) override {
        told.push_back("update " + nameOf(node));
        names_[element] = nameOf(node);
        OutlineRenderer::update(element, node);
    }
    void move(ElementID parent, std::size_t position, ElementID element) override {
        told.push_back("move " + names_[element] + " to " + std::to_string(position));
        OutlineRenderer::move(parent, position, element);
    }
    void remove(ElementID element) override {
        told.push_back("remove " + names_[element]);
        OutlineRenderer::remove(element);
    }
    void finish() override {
        told.push_back("finish");
        OutlineRenderer::finish();
    }

  private:
    static std::string nameOf(const Node& node) {
        if (const auto* shown = std::get_if<Text>(&node.element)) return shown->text;
        return node.id.empty() ? "root" : node.id;
    }

    std::map<ElementID, std::string> names_;
};

// Shows what it is given.
class Shelf : public Component {
  public:
    explicit Shelf(Node tree) { show(std::move(tree)); }

    void show(Node tree) {
        tree_ = std::move(tree);
        revision_.set(revision_.get() + 1);
    }
    Node body() override {
        revision_.get();
        return tree_;
    }

  private:
    Node tree_;
    Observable<int> revision_{0};
};

// One text for each letter, with the letter as its key.
Node letters(const std::string& shown) {
    std::vector<Node> nodes;
    for (const char letter : shown) nodes.push_back(text({letter}).key({letter}));
    return column(0, std::move(nodes));
}

class HostTest : public testing::Test {
  protected:
    void show(Node tree) {
        renderer.told.clear();
        shelf.show(std::move(tree));
        virtualLoop.loop.runDue();
    }
    void start(Node tree) {
        shelf.show(std::move(tree));
        host.emplace(virtualLoop.loop, shelf, renderer);
        renderer.told.clear();
    }
    ElementID element(const std::string& key) {
        return renderer.find([&](const Node& node) { return node.id == key; }).at(0);
    }

    test::VirtualLoop virtualLoop;
    NotingRenderer renderer;
    Shelf shelf{column(0, {})};
    std::optional<Host> host;
};

// The tree

TEST_F(HostTest, ShowsTheFirstTreeAtOnceFromTheTopDown) {
    shelf.show(column(0, {text("a"), row(0, {text("b"), text("c")}).key("row"), text("d")}));
    host.emplace(virtualLoop.loop, shelf, renderer);
    EXPECT_THAT(renderer.told, ElementsAre("insert root at 0", "insert a at 0", "insert row at 1",
                                           "insert b at 0", "insert c at 1", "insert d at 2", "finish"));
}

TEST_F(HostTest, ShowsAChangeInALaterPassOfTheLoop) {
    start(letters("a"));
    shelf.show(letters("b"));
    EXPECT_THAT(renderer.told, IsEmpty());
    virtualLoop.loop.runDue();
    EXPECT_EQ(renderer.tree(), letters("b"));
}

TEST_F(HostTest, TellsOnlyOfTheNodesThatDiffer) {
    start(column(0, {text("a").key("1"), text("b").key("2"), text("c").key("3")}));
    show(column(0, {text("a").key("1"), text("x").key("2"), text("c").key("3")}));
    EXPECT_THAT(renderer.told, ElementsAre("update x", "finish"));
}

TEST_F(HostTest, RemovesBeforeItInserts) {
    start(letters("abc"));
    show(letters("xbyc"));
    EXPECT_THAT(renderer.told, ElementsAre("remove a", "insert x at 0", "insert y at 2", "finish"));
}

TEST_F(HostTest, MovesWhatHasAnotherPlace) {
    start(letters("abc"));
    show(letters("cab"));
    EXPECT_THAT(renderer.told, ElementsAre("move c to 0", "finish"));
}

TEST_F(HostTest, KnowsNodesWithoutAKeyByTheirPlace) {
    start(column(0, {text("a"), text("b")}));
    show(column(0, {text("b")}));
    EXPECT_THAT(renderer.told, ElementsAre("remove b", "update b", "finish"));
}

TEST_F(HostTest, CountsPlacesOfEachKindByItself) {
    start(column(0, {text("a"), text("b")}));
    show(column(0, {text("a"), divider(), text("b")}));
    EXPECT_THAT(renderer.told, ElementsAre("insert root at 1", "finish"));
}

TEST_F(HostTest, ReplacesANodeThatBecomesAnotherKindOfThing) {
    start(column(0, {text("a").key("k")}));
    const ElementID before = element("k");
    show(column(0, {divider().key("k")}));
    EXPECT_THAT(renderer.told, ElementsAre("remove a", "insert k at 0", "finish"));
    EXPECT_NE(element("k"), before);
}

TEST_F(HostTest, KeepsTheElementOfAKeyWhereverItMoves) {
    start(letters("abc"));
    const ElementID before = element("c");
    show(letters("cxa"));
    EXPECT_EQ(element("c"), before);
}

TEST_F(HostTest, GivesAnElementThatComesBackANewName) {
    start(letters("ab"));
    const ElementID before = element("b");
    show(letters("a"));
    show(letters("ab"));
    EXPECT_NE(element("b"), before);
}

TEST_F(HostTest, RemovesWhatIsInANodeWithIt) {
    start(column(0, {row(0, {text("a"), text("b")}).key("row")}));
    show(column(0, {}));
    EXPECT_THAT(renderer.told, ElementsAre("remove row", "finish"));
}

TEST_F(HostTest, HasTheTreeThatIsShown) {
    start(column(0, {row(3, {text("a")}), divider()}));
    EXPECT_EQ(host->tree(), column(0, {row(3, {text("a")}), divider()}));
}

Node randomTree(simulated::Random& random, int depth) {
    std::string keys = "abcdefgh";
    std::vector<Node> children;
    for (auto count = random.uniform(0, 6); count > 0; --count) {
        const std::string key(1, keys[random.uniform(0, keys.size() - 1)]);
        std::erase(keys, key[0]);
        Node child = spacer();
        switch (random.uniform(0, depth > 0 ? 4 : 3)) {
            case 0:
                child = text(std::string(1, static_cast<char>('A' + random.uniform(0, 3))));
                break;
            case 1:
                child = Node{Switch{.title = "Switch", .isOn = random.chance(0.5)}};
                break;
            case 2:
                child = divider().enabled(random.chance(0.5));
                break;
            case 3:
                child = Node{Slider{.value = static_cast<double>(random.uniform(0, 2))}};
                break;
            default:
                child = randomTree(random, depth - 1);
        }
        children.push_back(random.chance(0.7) ? std::move(child).key(key) : std::move(child));
    }
    return column(static_cast<int>(random.uniform(0, 1)), std::move(children));
}

TEST_F(HostTest, ToldByDifferencesARendererHasTheTreeAfterEveryChange) {
    test::forRandomSeeds(200, [](std::uint64_t seed) {
        simulated::Random random(seed);
        test::VirtualLoop virtualLoop;
        outline::OutlineRenderer renderer;
        Shelf shelf(randomTree(random, 3));
        Host host(virtualLoop.loop, shelf, renderer);
        for (int change = 0; change < 20; ++change) {
            const Node next = randomTree(random, 3);
            shelf.show(next);
            virtualLoop.loop.runDue();
            ASSERT_EQ(renderer.tree(), next) << renderer.outline();
            ASSERT_EQ(host.tree(), next);
        }
    });
}

// When the tree is made

class Sum : public Component {
  public:
    Observable<int> a{1};
    Observable<int> b{2};
    Observable<int> unread{3};

    Node body() override { return column(0, {text(std::to_string(a.get() + b.get()))}); }
};

class HostBuildsTest : public testing::Test {
  protected:
    test::VirtualLoop virtualLoop;
    outline::OutlineRenderer renderer;
    Sum sum;
    std::optional<Host> host{std::in_place, virtualLoop.loop, sum, renderer};
};

TEST_F(HostBuildsTest, OnceForAllChangesOfAPass) {
    sum.a.set(5);
    sum.b.set(6);
    sum.a.set(7);
    virtualLoop.loop.runDue();
    EXPECT_EQ(host->builds(), 2U);
    EXPECT_EQ(renderer.tree(), column(0, {text("13")}));
}

TEST_F(HostBuildsTest, AgainForAChangeInALaterPass) {
    sum.a.set(5);
    virtualLoop.loop.runDue();
    sum.b.set(6);
    virtualLoop.loop.runDue();
    EXPECT_EQ(host->builds(), 3U);
}

TEST_F(HostBuildsTest, NotForAnEqualValue) {
    sum.a.set(1);
    virtualLoop.loop.runDue();
    EXPECT_EQ(host->builds(), 1U);
}

TEST_F(HostBuildsTest, NotForWhatItsBodyDidNotRead) {
    sum.unread.set(9);
    virtualLoop.loop.runDue();
    EXPECT_EQ(host->builds(), 1U);
}

TEST_F(HostBuildsTest, NotOnceItIsGone) {
    sum.a.set(5);
    host.reset();
    virtualLoop.loop.runDue();
    EXPECT_EQ(renderer.tree(), column(0, {text("3")}));
}

// Events

TEST_F(HostTest, AnEventGoesToTheHandlerOfItsNode) {
    std::vector<std::string> pressed;
    start(column(0, {button("A").key("a").onPress([&] { pressed.push_back("a"); }),
                     row(0, {button("B").key("b").onPress([&] { pressed.push_back("b"); })})}));
    host->deliver(element("b"), Pressed{});
    EXPECT_THAT(pressed, ElementsAre("b"));
}

TEST_F(HostTest, AnEventGoesToTheHandlerOfTheNewestTree) {
    std::vector<std::string> pressed;
    start(column(0, {button("A").key("a").onPress([&] { pressed.push_back("old"); })}));
    show(column(0, {button("A").key("a").onPress([&] { pressed.push_back("new"); })}));
    EXPECT_THAT(renderer.told, ElementsAre("finish"));
    host->deliver(element("a"), Pressed{});
    EXPECT_THAT(pressed, ElementsAre("new"));
}

TEST_F(HostTest, AnEventForANodeThatIsGoneIsDropped) {
    bool isPressed = false;
    start(column(0, {button("A").key("a").onPress([&] { isPressed = true; })}));
    const ElementID before = element("a");
    show(column(0, {}));
    host->deliver(before, Pressed{});
    EXPECT_FALSE(isPressed);
}

TEST_F(HostTest, AnEventForADisabledNodeIsDropped) {
    bool isPressed = false;
    start(column(0, {button("A").key("a").enabled(false).onPress([&] { isPressed = true; })}));
    host->deliver(element("a"), Pressed{});
    EXPECT_FALSE(isPressed);
}

TEST_F(HostTest, AnEventForANodeWithoutAHandlerIsDropped) {
    start(column(0, {button("A").key("a")}));
    host->deliver(element("a"), Pressed{});
    virtualLoop.loop.runDue();
    EXPECT_THAT(renderer.told, IsEmpty());
}

TEST_F(HostTest, AHandlerMayChangeTheTreeThatItIsPartOf) {
    start(column(0, {button("A").key("a").onPress([this] { shelf.show(letters("b")); })}));
    host->deliver(element("a"), Pressed{});
    virtualLoop.loop.runDue();
    EXPECT_EQ(renderer.tree(), letters("b"));
}

TEST_F(HostTest, AControlWhoseMoveWasNotAcceptedIsToldAgain) {
    start(column(0, {Node{Switch{.isOn = true}}.key("output").onToggle([](bool) {})}));
    host->deliver(element("output"), Toggled{false});
    virtualLoop.loop.runDue();
    EXPECT_THAT(renderer.told, ElementsAre("update output", "finish"));
    EXPECT_EQ(renderer.tree(), column(0, {Node{Switch{.isOn = true}}.key("output")}));
}

TEST_F(HostTest, AControlIsToldAgainOnlyOnce) {
    start(column(0, {Node{Slider{}}.key("level").onSlide([](double) {}), text("a")}));
    host->deliver(element("level"), Slid{0.25});
    host->deliver(element("level"), Slid{0.5});
    virtualLoop.loop.runDue();
    EXPECT_THAT(renderer.told, ElementsAre("update level", "finish"));
    show(column(0, {Node{Slider{}}.key("level"), text("b")}));
    EXPECT_THAT(renderer.told, ElementsAre("update b", "finish"));
}

TEST_F(HostTest, APressOrASizeIsNothingToTakeBack) {
    start(column(0, {button("A").key("a").onPress([] {}), text("b").key("b").onResize([](Size) {})}));
    host->deliver(element("a"), Pressed{});
    host->deliver(element("b"), Resized{{10, 10}});
    virtualLoop.loop.runDue();
    EXPECT_THAT(renderer.told, IsEmpty());
}

// Mistakes of a view

class HostDeathTest : public test::DeathTest {};

TEST_F(HostDeathTest, TwoNodesOfOneKindWithOneKeyStopTheProgram) {
    test::VirtualLoop virtualLoop;
    outline::OutlineRenderer renderer;
    Shelf shelf(letters("aa"));
    EXPECT_DEATH(Host(virtualLoop.loop, shelf, renderer), "the same key");
}

TEST_F(HostDeathTest, ATopmostNodeOfAnotherKindStopsTheProgram) {
    test::VirtualLoop virtualLoop;
    outline::OutlineRenderer renderer;
    Shelf shelf(letters("a"));
    const Host host(virtualLoop.loop, shelf, renderer);
    shelf.show(text("a"));
    EXPECT_DEATH(virtualLoop.loop.runDue(), "topmost node");
}

}  // namespace
}  // namespace vantrel::ui
