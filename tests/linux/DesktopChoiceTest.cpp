#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "linux/FakeDesktop.h"
#include "platform/linux/DesktopChoice.h"

namespace vantrel::linux {
namespace {

struct Offer {
    std::string identity;
    bool switches;
    std::uint32_t tableCapacity;
};

class DesktopChoiceTest : public testing::Test {
  protected:
    DesktopChoice::Opener with(const Offer& offer) {
        return [this, offer] {
            opened.push_back(offer.identity);
            auto desktop = std::make_unique<FakeDesktop>();
            desktop->identityText = offer.identity;
            desktop->switches = offer.switches;
            auto output = FakeDesktop::outputOf("DP-1", {});
            output.tableCapacity = offer.tableCapacity;
            desktop->add(output);
            return desktop;
        };
    }
    static DesktopChoice::Opener without() {
        return [] { return nullptr; };
    }
    static std::string chosen(const std::vector<DesktopChoice::Opener>& openers) {
        return DesktopChoice::choose(openers)->identity();
    }

    std::vector<std::string> opened;
};

TEST_F(DesktopChoiceTest, IsNoneWhereNoneAnswers) {
    EXPECT_EQ(chosen({}), "none");
    EXPECT_EQ(chosen({without(), without()}), "none");
}

TEST_F(DesktopChoiceTest, IsTheFirstThatTurnsOutputsOff) {
    EXPECT_EQ(chosen({without(), with({"tables", false, 256}), with({"first", true, 0}),
                      with({"second", true, 256})}),
              "first");
}

TEST_F(DesktopChoiceTest, DoesNotEvenOpenTheOthersThen) {
    chosen({with({"first", true, 256}), with({"second", true, 256})});
    EXPECT_EQ(opened, std::vector<std::string>{"first"});
}

TEST_F(DesktopChoiceTest, IsOneWithTablesWhereNoneTurnsOutputsOff) {
    EXPECT_EQ(chosen({with({"lists", false, 0}), with({"tables", false, 256}), with({"more", false, 1024})}),
              "tables");
}

TEST_F(DesktopChoiceTest, IsTheFirstThatOnlyListsWhereNoneDoesMore) {
    EXPECT_EQ(chosen({with({"lists", false, 0}), with({"lists, too", false, 0})}), "lists");
}

}  // namespace
}  // namespace vantrel::linux
