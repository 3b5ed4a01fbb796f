#include <cstdint>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

#include "platform/linux/EDID.h"
#include "platform/linux/OutputMatch.h"

namespace vantrel::linux {
namespace {

using Bytes = std::vector<std::uint8_t>;
using Matches = std::map<platform::DisplayID, std::string>;

const Bytes none;

// Only compared here, so any bytes will do.
Bytes edid(std::uint8_t monitor, std::size_t blocks = 1) {
    Bytes bytes(EDID::blockSize * blocks, 0);
    bytes[0] = monitor;
    return bytes;
}

Inventory::Display display(platform::DisplayID id, const std::string& connector, const Bytes& edid = none) {
    Inventory::Display display;
    display.id = id;
    display.connector.name = connector;
    display.connector.isConnected = true;
    display.connector.edid = edid;
    return display;
}

Desktop::Output output(const std::string& name, const Bytes& edid = none) {
    Desktop::Output output;
    output.name = name;
    output.edid = edid;
    output.isConnected = true;
    return output;
}

TEST(OutputMatch, FindsEachDisplayByEDIDAndName) {
    EXPECT_EQ(OutputMatch::match({display(1, "DP-1", edid(1)), display(2, "DP-2", edid(2))},
                                 {output("DP-2", edid(2)), output("DP-1", edid(1))}),
              (Matches{{1, "DP-1"}, {2, "DP-2"}}));
}

TEST(OutputMatch, TellsEqualMonitorsApartByTheirConnectors) {
    EXPECT_EQ(OutputMatch::match({display(1, "DP-1", edid(7)), display(2, "DP-2", edid(7))},
                                 {output("DP-2", edid(7)), output("DP-1", edid(7))}),
              (Matches{{1, "DP-1"}, {2, "DP-2"}}));
}

TEST(OutputMatch, GoesByTheEDIDWhereTheNamesSayNothing) {
    EXPECT_EQ(OutputMatch::match({display(1, "DP-1", edid(1)), display(2, "DP-2", edid(2))},
                                 {output("DisplayPort-1", edid(2)), output("DisplayPort-0", edid(1))}),
              (Matches{{1, "DisplayPort-0"}, {2, "DisplayPort-1"}}));
}

TEST(OutputMatch, TrustsTheEDIDMoreThanTheName) {
    // Two graphics devices, each with a first DisplayPort, that the desktop numbers through.
    EXPECT_EQ(OutputMatch::match({display(1, "DP-2", edid(1)), display(2, "DP-1", edid(2))},
                                 {output("DP-1", edid(1)), output("DP-2", edid(2))}),
              (Matches{{1, "DP-1"}, {2, "DP-2"}}));
}

TEST(OutputMatch, GivesNoOutputToAWeakerLikenessBeforeTheSureOneHasHadIt) {
    EXPECT_EQ(OutputMatch::match({display(1, "DP-9", edid(7)), display(2, "DP-1", edid(7))},
                                 {output("DP-1", edid(7)), output("DP-3", edid(7))}),
              (Matches{{1, "DP-3"}, {2, "DP-1"}}));
    EXPECT_EQ(
        OutputMatch::match({display(1, "DP-1"), display(2, "DP-2", edid(7))}, {output("DP-1", edid(7))}),
        (Matches{{2, "DP-1"}}));
}

TEST(OutputMatch, GoesByTheNameWhereOneSideTellsNoEDID) {
    EXPECT_EQ(OutputMatch::match({display(1, "DP-1", edid(1))}, {output("DP-1")}), (Matches{{1, "DP-1"}}));
    EXPECT_EQ(OutputMatch::match({display(1, "DP-1")}, {output("DP-1", edid(1))}), (Matches{{1, "DP-1"}}));
    EXPECT_EQ(OutputMatch::match({display(1, "DP-1")}, {output("DP-1")}), (Matches{{1, "DP-1"}}));
}

TEST(OutputMatch, BelievesNoNameAgainstTheEDIDs) {
    EXPECT_EQ(OutputMatch::match({display(1, "DP-1", edid(1))}, {output("DP-1", edid(2))}), Matches());
}

TEST(OutputMatch, ComparesTheBaseBlockOnly) {
    EXPECT_EQ(OutputMatch::match({display(1, "DP-1", edid(1, 2))}, {output("X", edid(1))}),
              (Matches{{1, "X"}}));
    EXPECT_EQ(OutputMatch::match({display(1, "DP-1", edid(1))}, {output("X", edid(1, 2))}),
              (Matches{{1, "X"}}));
    EXPECT_EQ(OutputMatch::match({display(1, "DP-1", Bytes(127))}, {output("X", Bytes(127))}), Matches());
}

TEST(OutputMatch, SeesEveryByteOfTheBaseBlock) {
    Bytes other = edid(1);
    other.back() = 1;
    EXPECT_EQ(OutputMatch::match({display(1, "DP-1", edid(1))}, {output("X", other)}), Matches());
}

TEST(OutputMatch, TakesTheNamesOfOtherDriversForEqual) {
    EXPECT_EQ(OutputMatch::match({display(1, "HDMI-A-1")}, {output("HDMI-1")}), (Matches{{1, "HDMI-1"}}));
    EXPECT_EQ(OutputMatch::match({display(1, "HDMI-A-1")}, {output("HDMI-A-1")}), (Matches{{1, "HDMI-A-1"}}));
    EXPECT_EQ(OutputMatch::match({display(1, "HDMI-A-1")}, {output("HDMI-2")}), Matches());
}

TEST(OutputMatch, LeavesOutWhatTheDesktopDoesNotKnow) {
    EXPECT_EQ(OutputMatch::match({display(1, "DP-1", edid(1)), display(2, "DP-2", edid(2))},
                                 {output("DP-2", edid(2))}),
              (Matches{{2, "DP-2"}}));
    EXPECT_EQ(OutputMatch::match({display(1, "DP-1")}, {}), Matches());
    EXPECT_EQ(OutputMatch::match({}, {output("DP-1")}), Matches());
}

TEST(OutputMatch, UsesNoOutputTwice) {
    EXPECT_EQ(OutputMatch::match({display(1, "DP-1", edid(7)), display(2, "DP-2", edid(7))},
                                 {output("DP-1", edid(7))}),
              (Matches{{1, "DP-1"}}));
}

TEST(OutputMatch, SkipsOutputsWithoutAMonitor) {
    Desktop::Output empty = output("DP-1", edid(1));
    empty.isConnected = false;
    EXPECT_EQ(OutputMatch::match({display(1, "DP-1", edid(1))}, {empty}), Matches());
}

TEST(OutputMatch, ShortensNamesAsDesktopsDo) {
    EXPECT_EQ(OutputMatch::shortName("HDMI-A-1"), "HDMI-1");
    EXPECT_EQ(OutputMatch::shortName("DP-1"), "DP-1");
    EXPECT_EQ(OutputMatch::shortName("HDMI-1"), "HDMI-1");
    EXPECT_EQ(OutputMatch::shortName("eDP-1"), "eDP-1");
    EXPECT_EQ(OutputMatch::shortName(""), "");
}

}  // namespace
}  // namespace vantrel::linux
