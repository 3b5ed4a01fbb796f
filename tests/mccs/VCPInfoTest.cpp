#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unordered_set>

#include "mccs/VCPInfo.h"

namespace vantrel::mccs {
namespace {

using text::Text;
using Group = VCPInfo::Group;
using Kind = VCPInfo::Kind;
using testing::ElementsAre;

TEST(VCPInfo, GroupsComeInTheOrderOfTheSections) {
    EXPECT_THAT(VCPInfo::allGroups, ElementsAre(Group::main, Group::picture, Group::color, Group::audio,
                                                Group::system, Group::info, Group::vendor));
}

TEST(VCPInfo, GroupsAreNumberedFromZero) {
    int expected = 0;
    for (const Group group : VCPInfo::allGroups) EXPECT_EQ(static_cast<int>(group), expected++);
    EXPECT_EQ(expected, 7);
}

TEST(VCPInfo, EveryGroupComesBackFromItsNumber) {
    EXPECT_EQ(VCPInfo::groupFromRawValue(0), Group::main);
    EXPECT_EQ(VCPInfo::groupFromRawValue(1), Group::picture);
    EXPECT_EQ(VCPInfo::groupFromRawValue(2), Group::color);
    EXPECT_EQ(VCPInfo::groupFromRawValue(3), Group::audio);
    EXPECT_EQ(VCPInfo::groupFromRawValue(4), Group::system);
    EXPECT_EQ(VCPInfo::groupFromRawValue(5), Group::info);
    EXPECT_EQ(VCPInfo::groupFromRawValue(6), Group::vendor);
}

TEST(VCPInfo, SevenIsNoGroup) { EXPECT_EQ(VCPInfo::groupFromRawValue(7), std::nullopt); }

TEST(VCPInfo, ANegativeNumberIsNoGroup) { EXPECT_EQ(VCPInfo::groupFromRawValue(-1), std::nullopt); }

TEST(VCPInfo, EveryGroupHasATranslatedTitle) {
    EXPECT_EQ(VCPInfo::title(Group::main), Text::translated("Main"));
    EXPECT_EQ(VCPInfo::title(Group::picture), Text::translated("Picture"));
    EXPECT_EQ(VCPInfo::title(Group::color), Text::translated("Color"));
    EXPECT_EQ(VCPInfo::title(Group::audio), Text::translated("Audio"));
    EXPECT_EQ(VCPInfo::title(Group::system), Text::translated("System"));
    EXPECT_EQ(VCPInfo::title(Group::info), Text::translated("Info"));
    EXPECT_EQ(VCPInfo::title(Group::vendor), Text::translated("Vendor specific"));
}

TEST(VCPInfo, KindsComeInTheirOrder) {
    EXPECT_LT(Kind::continuous, Kind::choice);
    EXPECT_LT(Kind::choice, Kind::action);
    EXPECT_LT(Kind::action, Kind::readOnly);
}

TEST(VCPInfo, KindsAndGroupsCanBeHashed) {
    EXPECT_EQ((std::unordered_set<Kind>{Kind::choice, Kind::action, Kind::choice}).size(), 2U);
    EXPECT_EQ((std::unordered_set<Group>{Group::main, Group::main, Group::info}).size(), 2U);
}

}  // namespace
}  // namespace vantrel::mccs
