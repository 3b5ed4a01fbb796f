#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/qt/PopoverPlacement.h"

namespace vantrel::qt {
namespace {

const QRect screen(0, 0, 1920, 1080);

TEST(PopoverPlacement, HangsBelowAnIconInAPanelAtTheTop) {
    EXPECT_EQ(popoverPlace({1000, 4, 24, 24}, {340, 500}, screen, screen.adjusted(0, 32, 0, 0), 6),
              QRect(842, 38, 340, 500));
}

TEST(PopoverPlacement, StandsOnAnIconInAPanelAtTheBottom) {
    const QRect place =
        popoverPlace({1000, 1050, 24, 24}, {340, 500}, screen, screen.adjusted(0, 0, 0, -36), 6);
    EXPECT_EQ(place.bottom(), 1080 - 36 - 6 - 1);
}

TEST(PopoverPlacement, StandsBesideAnIconInAPanelAtTheSide) {
    EXPECT_EQ(popoverPlace({10, 500, 24, 24}, {340, 500}, screen, screen.adjusted(48, 0, 0, 0), 6).left(),
              54);
    EXPECT_EQ(popoverPlace({1886, 500, 24, 24}, {340, 500}, screen, screen.adjusted(0, 0, -48, 0), 6).right(),
              1920 - 48 - 6 - 1);
}

TEST(PopoverPlacement, StaysOnTheScreenInEveryCorner) {
    const QRect available = screen.adjusted(0, 32, 0, -32);
    for (const QPoint corner : {QPoint(0, 0), QPoint(1919, 0), QPoint(0, 1079), QPoint(1919, 1079)}) {
        EXPECT_TRUE(
            available.contains(popoverPlace({corner, QSize(1, 1)}, {340, 500}, screen, available, 6)));
    }
}

TEST(PopoverPlacement, IsNoLargerThanTheScreen) {
    const QRect available = screen.adjusted(0, 32, 0, 0);
    EXPECT_EQ(popoverPlace({1900, 4, 24, 24}, {340, 3000}, screen, available, 6), QRect(1580, 38, 340, 1042));
}

TEST(PopoverPlacement, LeavesTheIconFreeOfAPanelThatTakesNoPartOfTheScreen) {
    EXPECT_EQ(popoverPlace({1896, 0, 24, 28}, {340, 3000}, screen, screen, 6), QRect(1580, 34, 340, 1046));
}

TEST(PopoverPlacement, CoversWhatIsInTheMiddleWhenItIsTooLargeForTheRest) {
    EXPECT_EQ(popoverPlace({900, 500, 1, 1}, {340, 900}, screen, screen, 6).size(), QSize(340, 900));
}

TEST(PopoverPlacement, UsesTheScreenThatTheIconIsOn) {
    const QRect second(1920, 200, 2560, 1440);
    const QRect place =
        popoverPlace({4400, 204, 24, 24}, {340, 500}, second, second.adjusted(0, 32, 0, 0), 6);
    EXPECT_TRUE(second.contains(place));
    EXPECT_EQ(place.top(), 238);
}

TEST(PopoverPlacement, HangsAtAPointerWithoutAPanelByTheNearerEdge) {
    EXPECT_GT(popoverPlace({900, 20, 1, 1}, {340, 500}, screen, screen, 6).top(), 20);
    EXPECT_LT(popoverPlace({900, 1060, 1, 1}, {340, 500}, screen, screen, 6).bottom(), 1060);
}

}  // namespace
}  // namespace vantrel::qt
