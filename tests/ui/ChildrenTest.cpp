#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "ui/Children.h"

namespace vantrel::ui {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Card {
    Card(std::string cardName, std::vector<std::string>& cardsGone)
        : name(std::move(cardName)), gone(cardsGone) {}
    Card(const Card&) = delete;
    Card& operator=(const Card&) = delete;
    ~Card() { gone.push_back(name); }

    std::string name;
    std::vector<std::string>& gone;
};

class ChildrenTest : public testing::Test {
  protected:
    void show(const std::vector<int>& keys) {
        const auto pass = cards.pass();
        for (const int key : keys) pass.at(key, maker(key));
    }
    std::function<std::unique_ptr<Card>()> maker(int key) {
        return [this, key] {
            made.push_back(key);
            return std::make_unique<Card>(std::to_string(key), gone);
        };
    }

    std::vector<int> made;
    std::vector<std::string> gone;
    Children<int, Card> cards;
};

TEST_F(ChildrenTest, MakesEachOnFirstUse) {
    show({3, 1});
    EXPECT_THAT(made, ElementsAre(3, 1));
}

TEST_F(ChildrenTest, KeepsTheOnesThatAreShownAgain) {
    show({1, 2});
    show({2, 1});
    EXPECT_THAT(made, ElementsAre(1, 2));
    EXPECT_THAT(gone, IsEmpty());
}

TEST_F(ChildrenTest, GivesTheSameOneForTheSameKey) {
    const auto pass = cards.pass();
    EXPECT_EQ(&pass.at(1, maker(1)), &pass.at(1, maker(1)));
}

TEST_F(ChildrenTest, LetsGoOfWhatAPassDidNotAskFor) {
    show({1, 2, 3});
    show({2});
    EXPECT_THAT(gone, ElementsAre("1", "3"));
}

TEST_F(ChildrenTest, KeepsEverythingWhileThePassLasts) {
    show({1});
    const auto pass = cards.pass();
    pass.at(2, maker(2));
    EXPECT_THAT(gone, IsEmpty());
}

TEST_F(ChildrenTest, MakesANewOneForAKeyThatWasGone) {
    show({1});
    show({});
    show({1});
    EXPECT_THAT(made, ElementsAre(1, 1));
}

TEST_F(ChildrenTest, LetsGoOfEverythingWhenAPassAsksForNothing) {
    show({1, 2});
    show({});
    EXPECT_THAT(gone, ElementsAre("1", "2"));
}

}  // namespace
}  // namespace vantrel::ui
