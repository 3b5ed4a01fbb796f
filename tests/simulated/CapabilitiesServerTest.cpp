#include <gtest/gtest.h>

#include "platform/simulated/CapabilitiesServer.h"
#include "simulated/MonitorBench.h"

namespace vantrel::simulated {
namespace {

using namespace std::chrono_literals;
using Kind = FragmentFault::Kind;

constexpr const char* capabilitiesAt4 = "83 F3 00 04 4B";
constexpr const char* capabilitiesAtEnd = "83 F3 00 1F 50";
constexpr const char* firstFour = "6E 87 E3 00 00 28 70 72 6F 1F";

Personality fours() {
    Personality personality;
    personality.fragmentSize = 4;
    return personality;
}

MonitorBench benchWith(Kind kind) {
    Personality personality = fours();
    personality.fragmentFaults = {{kind, {0, 2, 0}}};
    return MonitorBench(personality);
}

TEST(CapabilitiesServer, GivesThirtyTwoBytesAtATime) {
    MonitorPlan plan = ordinaryMonitor();
    plan.capabilities = std::string(40, 'A');
    MonitorBench bench(plan);
    const Bytes fragment = bench.ask(capabilitiesAt0, 38);
    // An even number of equal bytes cancels out in the checksum.
    EXPECT_EQ(Bytes(fragment.begin(), fragment.begin() + 5), bytes("6E A3 E3 00 00"));
    EXPECT_EQ(Bytes(fragment.begin() + 5, fragment.begin() + 37), Bytes(32, 'A'));
    EXPECT_EQ(fragment[37], 0x7E);
}

TEST(CapabilitiesServer, GivesTheRestAtTheEnd) {
    MonitorBench bench;
    EXPECT_EQ(
        bench.ask(capabilitiesAt0, 38),
        bytes("6E A2 E3 00 00 28 70 72 6F 74 28 6D 6F 6E 69 74 6F 72 29 76 63 70 28 31 30 20 31 32 20 31 34 "
              "20 36 30 29 29 4F 6E"));
}

TEST(CapabilitiesServer, GivesFragmentsAsShortAsItsPersonalitySays) {
    MonitorBench bench(fours());
    EXPECT_EQ(bench.ask(capabilitiesAt0, 10), bytes(firstFour));
    EXPECT_EQ(bench.ask(capabilitiesAt4, 10), bytes("6E 87 E3 00 04 74 28 6D 6F 00"));
}

TEST(CapabilitiesServer, GivesAnEmptyFragmentAtTheEnd) {
    MonitorBench bench;
    EXPECT_EQ(bench.ask(capabilitiesAtEnd, 6), bytes("6E 83 E3 00 1F 41"));
}

TEST(CapabilitiesServer, GivesAnEmptyFragmentBehindTheEnd) {
    MonitorBench bench;
    EXPECT_EQ(bench.ask("83 F3 FF FF 4F", 6), bytes("6E 83 E3 FF FF 5E"));
}

TEST(CapabilitiesServer, GivesAnEmptyFragmentOfAnEmptyString) {
    MonitorPlan plan = ordinaryMonitor();
    plan.capabilities = "";
    MonitorBench bench(plan);
    EXPECT_EQ(bench.ask(capabilitiesAt0, 6), bytes("6E 83 E3 00 00 5E"));
}

TEST(CapabilitiesServer, NeverAnswersWithoutAString) {
    MonitorPlan plan = ordinaryMonitor();
    plan.capabilities.reset();
    MonitorBench bench(plan);
    EXPECT_EQ(bench.ask(capabilitiesAt0, 6), bytes("6E 80 BE 6E 80 BE"));
}

TEST(CapabilitiesServer, KeepsFragmentsWithinWhatALengthByteCanTell) {
    MonitorPlan plan = ordinaryMonitor();
    plan.capabilities = std::string(1000, 'A');
    plan.personality.fragmentSize = 1000;
    MonitorBench bench(plan);
    EXPECT_EQ(bench.ask(capabilitiesAt0, 5), bytes("6E FF E3 00 00"));
}

TEST(CapabilitiesServer, AnswersAsLateAsItsPersonalitySays) {
    Personality personality = fours();
    personality.capabilitiesLatency = 55ms;
    MonitorBench bench(personality);
    EXPECT_EQ(bench.ask(capabilitiesAt0), bytes(nullReply));
    bench.wait(5ms);
    EXPECT_EQ(bench.read(10), bytes(firstFour));
}

TEST(CapabilitiesServer, StopsOnceSoManyBytesWereSent) {
    Personality personality = fours();
    personality.capabilitiesCutAfter = 4;
    MonitorBench bench(personality);
    EXPECT_EQ(bench.ask(capabilitiesAt0, 10), bytes(firstFour));
    EXPECT_EQ(bench.ask(capabilitiesAt4, 6), bytes("6E 80 BE 6E 80 BE"));
}

TEST(CapabilitiesServer, SendsNoByteMoreThanItsCut) {
    Personality personality = fours();
    personality.capabilitiesCutAfter = 2;
    MonitorBench bench(personality);
    EXPECT_EQ(bench.ask(capabilitiesAt0, 8), bytes("6E 85 E3 00 00 28 70 00"));
}

TEST(CapabilitiesServer, SpoilsAChecksum) {
    MonitorBench bench = benchWith(Kind::wrongChecksum);
    EXPECT_EQ(bench.ask(capabilitiesAt0, 10), bytes("6E 87 E3 00 00 28 70 72 6F E0"));
    EXPECT_EQ(bench.ask(capabilitiesAt0, 10), bytes(firstFour));
}

TEST(CapabilitiesServer, DamagesAHeader) {
    MonitorBench bench = benchWith(Kind::damagedHeader);
    EXPECT_EQ(bench.ask(capabilitiesAt0, 10), bytes("6E 80 6E 00 00 28 70 72 6F 1F"));
    EXPECT_EQ(bench.ask(capabilitiesAt0, 10), bytes(firstFour));
}

TEST(CapabilitiesServer, NamesAWrongOffsetWithAChecksumToMatch) {
    MonitorBench bench = benchWith(Kind::wrongOffset);
    EXPECT_EQ(bench.ask(capabilitiesAt0, 10), bytes("6E 87 E3 00 04 28 70 72 6F 1B"));
    EXPECT_EQ(bench.ask(capabilitiesAt0, 10), bytes(firstFour));
}

TEST(CapabilitiesServer, SaysNothing) {
    MonitorBench bench = benchWith(Kind::nullMessage);
    EXPECT_EQ(bench.ask(capabilitiesAt0, 10), bytes("6E 80 BE 6E 80 BE 6E 80 BE 6E"));
    EXPECT_EQ(bench.ask(capabilitiesAt0, 10), bytes(firstFour));
}

}  // namespace
}  // namespace vantrel::simulated
