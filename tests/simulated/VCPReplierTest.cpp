// One test per fault of a reply, with the bytes that a host reads.
#include <gtest/gtest.h>

#include "platform/simulated/VCPReplier.h"
#include "simulated/MonitorBench.h"

namespace vantrel::simulated {
namespace {

using Kind = ReplyFault::Kind;

ReplyFault always(Kind kind) {
    ReplyFault fault;
    fault.kind = kind;
    fault.when.every = 1;
    return fault;
}

MonitorBench benchWith(std::vector<ReplyFault> faults) {
    Personality personality;
    personality.replyFaults = std::move(faults);
    return MonitorBench(personality);
}

TEST(VCPReplier, SpoilsTheChecksum) {
    MonitorBench bench = benchWith({always(Kind::wrongChecksum)});
    EXPECT_EQ(bench.ask(get10), bytes("6E 88 02 00 10 00 00 64 00 32 0D"));
}

TEST(VCPReplier, AnswersTheQuestionBeforeThisOne) {
    MonitorBench bench = benchWith({always(Kind::previousCode)});
    EXPECT_EQ(bench.ask(get10), bytes(nullReply));
    EXPECT_EQ(bench.ask(get12), bytes(reply10Is50));
    EXPECT_EQ(bench.ask(get12), bytes(reply12Is30));
}

TEST(VCPReplier, LosesTheFirstBytes) {
    MonitorBench bench = benchWith({always(Kind::lostFirstBytes)});
    EXPECT_EQ(bench.ask(get10), bytes("10 00 00 64 00 32 F2 6E 80 BE 6E"));
}

TEST(VCPReplier, LosesAWholeReplyOfFewerBytes) {
    ReplyFault fault = always(Kind::lostFirstBytes);
    fault.bytes = 99;
    MonitorBench bench = benchWith({fault});
    EXPECT_EQ(bench.ask(get10), bytes(nullReply));
}

TEST(VCPReplier, DoublesTheSource) {
    MonitorBench bench = benchWith({always(Kind::doubledSource)});
    EXPECT_EQ(bench.ask(get10), bytes("6E 6E 88 02 00 10 00 00 64 00 32"));
}

TEST(VCPReplier, DoublesTheLength) {
    MonitorBench bench = benchWith({always(Kind::doubledLength)});
    EXPECT_EQ(bench.ask(get10), bytes("6E 88 88 02 00 10 00 00 64 00 32"));
}

TEST(VCPReplier, SaysLengthNineWithAChecksumToMatch) {
    MonitorBench bench = benchWith({always(Kind::lengthNine)});
    EXPECT_EQ(bench.ask(get10), bytes("6E 89 02 00 10 00 00 64 00 32 F3"));
}

TEST(VCPReplier, EndsTooEarly) {
    ReplyFault fault = always(Kind::cut);
    fault.bytes = 8;
    MonitorBench bench = benchWith({fault});
    EXPECT_EQ(bench.ask(get10), bytes("6E 88 02 00 10 00 00 64 80 BE 6E"));
}

TEST(VCPReplier, EchoesTheRequest) {
    MonitorBench bench = benchWith({always(Kind::echo)});
    EXPECT_EQ(bench.ask(get10), bytes("6E 82 01 10 AC 00 00 00 00 00 00"));
}

TEST(VCPReplier, SaysNothing) {
    MonitorBench bench = benchWith({always(Kind::nullMessage)});
    EXPECT_EQ(bench.ask(get10), bytes(nullReply));
}

TEST(VCPReplier, ShiftsNullMessages) {
    MonitorBench bench = benchWith({always(Kind::rotatedNulls)});
    EXPECT_EQ(bench.ask(get10), bytes("80 BE 6E 80 BE 6E 80 BE 6E 80 BE"));
}

TEST(VCPReplier, RepeatsOneByte) {
    ReplyFault fault = always(Kind::constantBytes);
    fault.value = 0x08;
    MonitorBench bench = benchWith({fault});
    EXPECT_EQ(bench.ask(get10), bytes("08 08 08 08 08 08 08 08 08 08 08"));
}

TEST(VCPReplier, RepeatsTheLastValueUnderAnotherCode) {
    ReplyFault fault = always(Kind::lastValue);
    fault.codes = {0x12};
    MonitorBench bench = benchWith({fault});
    bench.ask(get10);
    EXPECT_EQ(bench.ask(get12), bytes("6E 88 02 00 12 00 00 64 00 32 F0"));
}

TEST(VCPReplier, SpoilsOnlyTheCodesOfTheFault) {
    ReplyFault fault = always(Kind::nullMessage);
    fault.codes = {0x12};
    MonitorBench bench = benchWith({fault});
    EXPECT_EQ(bench.ask(get10), bytes(reply10Is50));
    EXPECT_EQ(bench.ask(get12), bytes(nullReply));
}

TEST(VCPReplier, CountsOccasionsPerReplyThatIsReadAndNotPerRequest) {
    ReplyFault fault;
    fault.kind = Kind::nullMessage;
    fault.when.every = 2;
    MonitorBench bench = benchWith({fault});
    bench.write(get10);
    EXPECT_EQ(bench.ask(get10), bytes(nullReply));
    bench.write(get10);
    EXPECT_EQ(bench.ask(get10), bytes(reply10Is50));
    bench.write(get10);
    EXPECT_EQ(bench.ask(get10), bytes(nullReply));
}

TEST(VCPReplier, LetsTheFirstOfSeveralFaultsSpoilAReply) {
    MonitorBench bench = benchWith({always(Kind::echo), always(Kind::wrongChecksum)});
    EXPECT_EQ(bench.ask(get10), bytes("6E 82 01 10 AC 00 00 00 00 00 00"));
}

}  // namespace
}  // namespace vantrel::simulated
