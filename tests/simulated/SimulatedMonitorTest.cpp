#include <gtest/gtest.h>

#include "platform/simulated/SimulatedMonitor.h"
#include "simulated/MonitorBench.h"

namespace vantrel::simulated {
namespace {

using namespace std::chrono_literals;

constexpr auto notResponding = static_cast<std::int32_t>(0xE00002EDU);

TEST(SimulatedMonitor, AnswersAGetRequest) {
    MonitorBench bench;
    EXPECT_EQ(bench.ask(get10), bytes(reply10Is50));
}

TEST(SimulatedMonitor, ObeysASetRequest) {
    MonitorBench bench;
    EXPECT_EQ(bench.write(set10To20), 0);
    EXPECT_EQ(bench.ask(get10), bytes(reply10Is20));
    EXPECT_EQ(bench.monitor.value(0x10), 20);
}

TEST(SimulatedMonitor, HasNoReplyToASetRequest) {
    MonitorBench bench;
    EXPECT_EQ(bench.ask(set10To20), bytes(nullReply));
}

TEST(SimulatedMonitor, ReadsAndSwitchesItsInputWithCode60) {
    MonitorBench bench;
    EXPECT_EQ(bench.ask(get60), bytes(reply60Is0F));
    bench.write(set60To11);
    EXPECT_EQ(bench.ask(get60), bytes(reply60Is11));
    EXPECT_EQ(bench.monitor.shownInput(), 0x11);
}

TEST(SimulatedMonitor, KeepsCode60AsAPlainCodeWithoutInputs) {
    MonitorPlan plan = ordinaryMonitor();
    plan.inputs.reset();
    plan.features[0x60] = {0, 0x0F, 0x11, false};
    MonitorBench bench(plan);
    bench.write(set60To11);
    EXPECT_EQ(bench.ask(get60), bytes(reply60Is11));
    EXPECT_EQ(bench.monitor.shownInput(), std::nullopt);
}

// How replies wait to be read.

TEST(SimulatedMonitor, SaysNothingWithoutARequest) {
    MonitorBench bench;
    EXPECT_EQ(bench.read(), bytes(nullReply));
}

TEST(SimulatedMonitor, SaysNothingUntilItsReplyIsReady) {
    MonitorBench bench;
    bench.write(get10);
    bench.wait(39ms);
    EXPECT_EQ(bench.read(), bytes(nullReply));
    bench.wait(1ms);
    EXPECT_EQ(bench.read(), bytes(reply10Is50));
}

TEST(SimulatedMonitor, GivesAReplyOnce) {
    MonitorBench bench;
    bench.ask(get10);
    EXPECT_EQ(bench.read(), bytes(nullReply));
}

TEST(SimulatedMonitor, FillsALongReadWithNullMessages) {
    MonitorBench bench;
    EXPECT_EQ(bench.ask(get10, 16), bytes("6E 88 02 00 10 00 00 64 00 32 F2 6E 80 BE 6E 80"));
}

TEST(SimulatedMonitor, CutsAReplyThatIsLongerThanTheRead) {
    MonitorBench bench;
    EXPECT_EQ(bench.ask(get10, 4), bytes("6E 88 02 00"));
    EXPECT_EQ(bench.read(3), bytes("6E 80 BE"));
}

TEST(SimulatedMonitor, KeepsItsReplyOverAReadOfNoBytes) {
    MonitorBench bench;
    bench.ask(get10, 0);
    EXPECT_EQ(bench.read(), bytes(reply10Is50));
}

TEST(SimulatedMonitor, ForgetsAReplyThatNobodyReadWhenAskedAnew) {
    MonitorBench bench;
    bench.write(get10);
    bench.wait(50ms);
    EXPECT_EQ(bench.ask(get12), bytes(reply12Is30));
}

TEST(SimulatedMonitor, CountsTheLatencyFromTheLastCopyOfARequest) {
    MonitorBench bench;
    bench.write(get10);
    bench.wait(10ms);
    bench.write(get10);
    bench.wait(39ms);
    EXPECT_EQ(bench.read(), bytes(nullReply));
    bench.wait(1ms);
    EXPECT_EQ(bench.read(), bytes(reply10Is50));
}

TEST(SimulatedMonitor, AnswersAsLateAsItsPersonalitySays) {
    Personality personality;
    personality.replyLatency = 55ms;
    MonitorBench bench(personality);
    EXPECT_EQ(bench.ask(get10), bytes(nullReply));
    bench.wait(5ms);
    EXPECT_EQ(bench.read(), bytes(reply10Is50));
}

TEST(SimulatedMonitor, AnswersEarlierOrLaterWithinItsJitter) {
    Personality personality;
    personality.latencyJitter = 20ms;
    MonitorBench bench(personality);
    int early = 0;
    for (int request = 0; request < 40; ++request) {
        bench.write(get10);
        bench.wait(50ms);
        if (bench.read() == bytes(reply10Is50)) {
            ++early;
            continue;
        }
        bench.wait(10ms);
        EXPECT_EQ(bench.read(), bytes(reply10Is50));
    }
    EXPECT_GT(early, 5);
    EXPECT_LT(early, 35);
}

TEST(SimulatedMonitor, KeepsTheBusBusyForEveryByte) {
    Personality personality;
    personality.byteTime = 90us;
    MonitorBench bench(personality);
    const runtime::MonotonicTime start = bench.time.now();
    bench.write(get10);
    EXPECT_EQ(bench.time.now() - start, 360us);
    bench.read(11);
    EXPECT_EQ(bench.time.now() - start, 1350us);
}

// What it does not listen to.

TEST(SimulatedMonitor, AcknowledgesNothingAtAnotherChip) {
    MonitorBench bench;
    EXPECT_EQ(bench.monitor.write(0x50, 0x51, bytes(get10)), notResponding);
    Bytes read(11);
    EXPECT_EQ(bench.monitor.read(0x50, read), notResponding);
}

TEST(SimulatedMonitor, IgnoresAMessageFromAnotherSource) {
    MonitorBench bench;
    // The right checksum for the source 50.
    EXPECT_EQ(bench.monitor.write(0x37, 0x50, bytes("82 01 10 AD")), 0);
    bench.wait(50ms);
    EXPECT_EQ(bench.read(), bytes(nullReply));
}

TEST(SimulatedMonitor, IgnoresAWrongChecksum) {
    MonitorBench bench;
    EXPECT_EQ(bench.ask("82 01 10 AD"), bytes(nullReply));
}

TEST(SimulatedMonitor, ObeysAWrongChecksumIfThatIsItsManner) {
    Personality personality;
    personality.ignoresWrongChecksums = false;
    MonitorBench bench(personality);
    EXPECT_EQ(bench.ask("82 01 10 AD"), bytes(reply10Is50));
}

TEST(SimulatedMonitor, IgnoresAMessageThatEndsTooEarly) {
    MonitorBench bench;
    EXPECT_EQ(bench.ask("82 01 10"), bytes(nullReply));
}

TEST(SimulatedMonitor, IgnoresALengthWithoutItsFlag) {
    MonitorBench bench;
    EXPECT_EQ(bench.ask("02 01 10 2C"), bytes(nullReply));
}

TEST(SimulatedMonitor, IgnoresAnEmptyWriteAndAnEmptyMessage) {
    MonitorBench bench;
    EXPECT_EQ(bench.ask(""), bytes(nullReply));
    EXPECT_EQ(bench.ask("80 BF"), bytes(nullReply));
}

TEST(SimulatedMonitor, IgnoresACommandOfTheWrongLength) {
    MonitorBench bench;
    EXPECT_EQ(bench.ask("83 01 10 00 AD"), bytes(nullReply));
    EXPECT_EQ(bench.ask("83 03 10 14 BB"), bytes(nullReply));
    EXPECT_EQ(bench.monitor.value(0x10), 50);
}

TEST(SimulatedMonitor, IgnoresAnUnknownCommand) {
    MonitorBench bench;
    EXPECT_EQ(bench.ask("81 07 B9"), bytes(nullReply));
}

TEST(SimulatedMonitor, ObeysAMessageWithBytesBehindIt) {
    MonitorBench bench;
    EXPECT_EQ(bench.ask("82 01 10 AC 00 00"), bytes(reply10Is50));
}

// Not acknowledging.

TEST(SimulatedMonitor, AcknowledgesNothingWhenDead) {
    Personality personality;
    personality.dead = true;
    MonitorBench bench(personality);
    EXPECT_EQ(bench.write(get10), notResponding);
    EXPECT_EQ(bench.read(), Bytes());
    EXPECT_EQ(bench.monitor.counters().notAcknowledged, 2);
}

TEST(SimulatedMonitor, DoesNotAcknowledgeTheTransfersOfItsRule) {
    Personality personality;
    personality.nak.every = 2;
    MonitorBench bench(personality);
    EXPECT_EQ(bench.write(get10), notResponding);
    EXPECT_EQ(bench.write(get10), 0);
    bench.wait(50ms);
    EXPECT_EQ(bench.read(), Bytes());
    EXPECT_EQ(bench.read(), bytes(reply10Is50));
}

TEST(SimulatedMonitor, AcknowledgesNothingDuringASpan) {
    Personality personality;
    personality.nakDuring = {{1s, 2s}, {5s, 1s}};
    MonitorBench bench(personality);
    EXPECT_EQ(bench.write(get10), 0);
    bench.wait(1s);
    EXPECT_EQ(bench.write(get10), notResponding);
    bench.wait(2s);
    EXPECT_EQ(bench.write(get10), 0);
    bench.wait(2s);
    EXPECT_EQ(bench.write(get10), notResponding);
}

TEST(SimulatedMonitor, AcknowledgesNothingWhileItIsOff) {
    MonitorBench bench;
    bench.monitor.setPower(SimulatedMonitor::Power::off);
    EXPECT_EQ(bench.write(get10), notResponding);
    bench.monitor.setPower(SimulatedMonitor::Power::on);
    EXPECT_EQ(bench.ask(get10), bytes(reply10Is50));
}

TEST(SimulatedMonitor, IsDeafForAWhileAfterWaking) {
    Personality personality;
    personality.deafAfterWake = 3s;
    MonitorBench bench(personality);
    EXPECT_EQ(bench.ask(get10), bytes(reply10Is50));
    bench.monitor.wake();
    EXPECT_EQ(bench.write(set10To20), 0);
    EXPECT_EQ(bench.ask(get10), bytes(nullReply));
    bench.wait(3s);
    EXPECT_EQ(bench.ask(get10), bytes(reply10Is50));
}

// Codes that it does not have.

TEST(SimulatedMonitor, SaysThatACodeIsUnsupported) {
    MonitorBench bench;
    EXPECT_EQ(bench.ask(get99), bytes("6E 88 02 01 99 00 00 00 00 00 2C"));
}

TEST(SimulatedMonitor, AnswersAnUnsupportedCodeWithANullMessage) {
    Personality personality;
    personality.unsupported = UnsupportedReply::nullMessage;
    MonitorBench bench(personality);
    EXPECT_EQ(bench.ask(get99), bytes(nullReply));
    EXPECT_EQ(bench.ask(get10), bytes(reply10Is50));
}

TEST(SimulatedMonitor, AnswersAnUnsupportedCodeWithTheLastValue) {
    Personality personality;
    personality.unsupported = UnsupportedReply::lastValue;
    MonitorBench bench(personality);
    bench.ask(get10);
    EXPECT_EQ(bench.ask(get99), bytes("6E 88 02 00 99 00 00 64 00 32 7B"));
    EXPECT_EQ(bench.ask(get99), bytes("6E 88 02 00 99 00 00 64 00 32 7B"));
}

TEST(SimulatedMonitor, AnswersAnUnsupportedCodeWithZeros) {
    Personality personality;
    personality.unsupported = UnsupportedReply::zeros;
    MonitorBench bench(personality);
    bench.ask(get10);
    EXPECT_EQ(bench.ask(get99), bytes("6E 88 02 00 99 00 00 00 00 00 2D"));
}

TEST(SimulatedMonitor, DoesNotAcknowledgeAnUnsupportedCode) {
    Personality personality;
    personality.unsupported = UnsupportedReply::nak;
    MonitorBench bench(personality);
    EXPECT_EQ(bench.write(get99), notResponding);
    EXPECT_EQ(bench.ask(get10), bytes(reply10Is50));
}

// Writes and inputs over the wire.

TEST(SimulatedMonitor, TakesARequestOnlyOnceItWasWrittenOftenEnough) {
    Personality personality;
    personality.writesNeeded = 2;
    MonitorBench bench(personality);
    bench.write(set10To20);
    EXPECT_EQ(bench.monitor.value(0x10), 50);
    bench.write(set10To20);
    EXPECT_EQ(bench.monitor.value(0x10), 20);
}

TEST(SimulatedMonitor, TakesARequestOnlyAfterAGet) {
    Personality personality;
    personality.writesNeedARead = true;
    MonitorBench bench(personality);
    bench.write(set10To20);
    EXPECT_EQ(bench.monitor.value(0x10), 50);
    bench.ask(get12);
    bench.write(set10To20);
    bench.write(set10To40);
    EXPECT_EQ(bench.monitor.value(0x10), 20);
}

TEST(SimulatedMonitor, LosesWrites) {
    Personality personality;
    personality.writesLost.every = 2;
    MonitorBench bench(personality);
    EXPECT_EQ(bench.write(set10To20), 0);
    EXPECT_EQ(bench.monitor.value(0x10), 50);
    EXPECT_EQ(bench.write(set10To40), 0);
    EXPECT_EQ(bench.monitor.value(0x10), 40);
}

TEST(SimulatedMonitor, TakesAWrittenValueBack) {
    Personality personality;
    personality.writesRevertAfter = 1s;
    MonitorBench bench(personality);
    bench.write(set10To20);
    EXPECT_EQ(bench.ask(get10), bytes(reply10Is20));
    bench.wait(1s);
    EXPECT_EQ(bench.ask(get10), bytes(reply10Is50));
}

TEST(SimulatedMonitor, ReadsItsInputsAsTheirReadingsSay) {
    Personality personality;
    personality.inputReadings = {{0x0F, 0x0F0F}};
    MonitorBench bench(personality);
    EXPECT_EQ(bench.ask(get60), bytes("6E 88 02 00 60 00 00 11 0F 0F C5"));
}

TEST(SimulatedMonitor, GivesNullMessagesAndObeysNothingWhileItSwitchesSilently) {
    Personality personality;
    personality.inputSwitch.time = 2s;
    personality.inputSwitch.silent = true;
    MonitorBench bench(personality);
    bench.write(set60To11);
    EXPECT_EQ(bench.write(set10To20), 0);
    EXPECT_EQ(bench.ask(get60), bytes(nullReply));
    bench.wait(2s);
    EXPECT_EQ(bench.read(), bytes(nullReply));
    EXPECT_EQ(bench.ask(get60), bytes(reply60Is11));
    EXPECT_EQ(bench.monitor.value(0x10), 50);
}

TEST(SimulatedMonitor, CanNotBeCalledBackWhenItIsSilentOnOtherInputs) {
    Personality personality;
    personality.silentOnOtherInputs = true;
    MonitorBench bench(personality);
    bench.write(set60To11);
    EXPECT_EQ(bench.ask(get60), bytes(nullReply));
    bench.write(set60To0F);
    EXPECT_EQ(bench.monitor.shownInput(), 0x11);
    bench.monitor.pressInputButton(0x0F);
    EXPECT_EQ(bench.ask(get60), bytes(reply60Is0F));
}

TEST(SimulatedMonitor, AcknowledgesNothingDuringItsPulseAndTellsOfIt) {
    Personality personality;
    personality.inputSwitch.pulse = 2s;
    personality.inputSwitch.pulseAfter = 1s;
    MonitorBench bench(personality);
    const runtime::MonotonicTime start = bench.time.now();
    std::vector<Pulse> pulses;
    bench.monitor.onPulse([&pulses](const Pulse& pulse) { pulses.push_back(pulse); });
    bench.write(set60To11);
    EXPECT_EQ(pulses, (std::vector<Pulse>{{start + 1s, start + 3s}}));
    EXPECT_EQ(bench.write(get60), 0);
    bench.wait(1s);
    EXPECT_EQ(bench.write(get60), notResponding);
    EXPECT_EQ(bench.read(), Bytes());
    bench.wait(2s);
    EXPECT_EQ(bench.read(), bytes(nullReply));
    EXPECT_EQ(bench.ask(get60), bytes(reply60Is11));
}

TEST(SimulatedMonitor, ChangesAValueInItsOwnMenu) {
    MonitorBench bench;
    bench.monitor.adjust(0x10, 20);
    EXPECT_EQ(bench.ask(get10), bytes(reply10Is20));
}

TEST(SimulatedMonitor, IsWellBehavedOnceHealthy) {
    Personality personality;
    personality.dead = true;
    personality.nak.every = 1;
    personality.nakDuring = {{0s, 100s}};
    personality.replyFaults = {{ReplyFault::Kind::wrongChecksum, {0, 1, 0}, {}, 4, 0x6E}};
    personality.unsupported = UnsupportedReply::zeros;
    personality.writesNeeded = 9;
    personality.silentOnOtherInputs = true;
    personality.deafAfterWake = 100s;
    personality.staleAfterReconfiguration = true;
    personality.inputReadings = {{0x11, 0x0011}};
    MonitorBench bench(personality);
    bench.monitor.wake();
    bench.monitor.becomeHealthy();
    bench.write(set10To20);
    bench.write(set60To11);
    EXPECT_EQ(bench.ask(get10), bytes(reply10Is20));
    EXPECT_EQ(bench.ask(get60), bytes(reply60Is11));
    EXPECT_EQ(bench.ask(get99), bytes("6E 88 02 01 99 00 00 00 00 00 2C"));
    EXPECT_FALSE(bench.monitor.handlesGoStale());
}

// What it tells of its bus.

TEST(SimulatedMonitor, CountsWhatItSaw) {
    MonitorBench bench;
    bench.ask(get10);
    bench.write(set10To20);
    bench.write(capabilitiesAt0);
    bench.write("82 01 10 00");
    MonitorCounters expected;
    expected.writes = 4;
    expected.reads = 1;
    expected.ignored = 1;
    expected.getRequests = 1;
    expected.setRequests = 1;
    expected.capabilitiesRequests = 1;
    expected.replies = 1;
    EXPECT_EQ(bench.monitor.counters(), expected);
}

TEST(SimulatedMonitor, KeepsATraceOnceAskedTo) {
    MonitorBench bench;
    bench.write(set10To40);
    bench.monitor.recordTrace();
    const runtime::MonotonicTime start = bench.time.now();
    bench.ask(get10, 3);
    bench.monitor.setPower(SimulatedMonitor::Power::off);
    bench.read(3);
    using Direction = WireRecord::Direction;
    EXPECT_EQ(bench.monitor.trace(),
              (std::vector<WireRecord>{{start, Direction::write, bytes(get10), 0},
                                       {start + 50ms, Direction::read, bytes("6E 88 02"), 0},
                                       {start + 50ms, Direction::read, {}, notResponding}}));
}

TEST(SimulatedMonitor, CountsTransfersThatOverlap) {
    Personality personality;
    personality.byteTime = 1ms;
    MonitorBench bench(personality);
    bench.time.startThread("other host", runtime::QualityOfService::userInitiated,
                           [&bench] { bench.write(get12); });
    bench.write(get10);
    bench.time.finishThreads();
    EXPECT_EQ(bench.monitor.counters().overlaps, 1);
}

}  // namespace
}  // namespace vantrel::simulated
