#include <gtest/gtest.h>

#include "platform/simulated/Tape.h"
#include "simulated/MonitorBench.h"

namespace vantrel::simulated {
namespace {

using platform::Transfer;

Transfer written(std::string_view frame, std::int32_t status = 0) {
    const Bytes all = bytes(frame);
    return {{},    {}, Transfer::Direction::write, 0x37, 0x51, all, static_cast<std::uint32_t>(all.size()),
            status};
}

Transfer replied(std::string_view frame) {
    const Bytes all = bytes(frame);
    return {{}, {}, Transfer::Direction::read, 0x37, 0, all, static_cast<std::uint32_t>(all.size()), 0};
}

// What a tape has to say, as a person would write it.
std::string write(Tape& tape, std::string_view frame) {
    const Transfer* answer = tape.write(0x37, 0x51, bytes(frame));
    return answer == nullptr ? "nothing" : std::to_string(answer->status);
}

Bytes read(Tape& tape, std::size_t length = 11) {
    const Transfer* answer = tape.read(0x37, length);
    return answer == nullptr ? Bytes() : answer->bytes;
}

Bytes ask(Tape& tape, std::string_view frame) {
    return tape.write(0x37, 0x51, bytes(frame)) == nullptr ? Bytes() : read(tape);
}

TEST(Tape, SaysNothingWithoutARecording) {
    Tape tape({});
    EXPECT_EQ(write(tape, get10), "nothing");
    EXPECT_EQ(read(tape), Bytes());
}

TEST(Tape, AnswersInOrder) {
    Tape tape({written(get10, 5), written(get10), replied(nullReply), written(get10), replied(reply10Is50)});
    EXPECT_EQ(write(tape, get10), "5");
    EXPECT_EQ(write(tape, get10), "0");
    EXPECT_EQ(read(tape), bytes(nullReply));
    EXPECT_EQ(ask(tape, get10), bytes(reply10Is50));
}

TEST(Tape, RepeatsTheLastAnswerAtItsEnd) {
    Tape tape({written(get10), replied(reply10Is20), written(get10), replied(reply10Is50)});
    EXPECT_EQ(ask(tape, get10), bytes(reply10Is20));
    for (int time = 0; time < 3; ++time) EXPECT_EQ(ask(tape, get10), bytes(reply10Is50));
}

TEST(Tape, LeavesItsOrderForGoodAtAnotherRequest) {
    Tape tape({written(get10), replied(reply10Is20), written(get12), replied(reply12Is30), written(get10),
               replied(reply10Is50)});
    EXPECT_EQ(ask(tape, get12), bytes(reply12Is30));
    EXPECT_EQ(ask(tape, get10), bytes(reply10Is50));
    EXPECT_EQ(write(tape, get60), "nothing");
    EXPECT_EQ(ask(tape, get10), bytes(reply10Is50));
}

TEST(Tape, LeavesItsOrderAtAReadOfAnotherLength) {
    Tape tape({written(get10), replied(nullReply), written(get10), replied(reply10Is50)});
    EXPECT_EQ(write(tape, get10), "0");
    EXPECT_EQ(read(tape, 38), Bytes());
    EXPECT_EQ(ask(tape, get10), bytes(reply10Is50));
}

TEST(Tape, LeavesItsOrderWhenSomethingIsLeftOut) {
    Tape tape({written(get10), replied(nullReply), written(get12), replied(reply12Is30), written(get10, 7)});
    EXPECT_EQ(write(tape, get10), "0");
    EXPECT_EQ(ask(tape, get12), bytes(reply12Is30));
    EXPECT_EQ(write(tape, get10), "7");
}

TEST(Tape, TellsRequestsApartByChipAndAddress) {
    Tape tape({written(get10), replied(reply10Is50)});
    EXPECT_EQ(tape.write(0x36, 0x51, bytes(get10)), nullptr);
    EXPECT_EQ(tape.write(0x37, 0x50, bytes(get10)), nullptr);
    ASSERT_NE(tape.write(0x37, 0x51, bytes(get10)), nullptr);
    EXPECT_EQ(tape.read(0x36, 11), nullptr);
}

TEST(Tape, GivesAnAnswerOutOfOrderOnce) {
    Tape tape({written(get12), written(get10), replied(reply10Is50)});
    EXPECT_EQ(ask(tape, get10), bytes(reply10Is50));
    EXPECT_EQ(read(tape), Bytes());
}

TEST(Tape, HasNoAnswerToARequestThatNobodyReadOne) {
    Tape tape({written(get12), written(get10), replied(reply10Is50), written(get12)});
    EXPECT_EQ(ask(tape, get10), bytes(reply10Is50));
    EXPECT_EQ(write(tape, get12), "0");
    EXPECT_EQ(read(tape), Bytes());
}

TEST(Tape, SaysNothingOfAValueThatTheProgramHasSet) {
    Tape tape({written(get10), replied(reply10Is50), written(get12), replied(reply12Is30)});
    EXPECT_EQ(write(tape, set10To20), "nothing");
    EXPECT_EQ(write(tape, get10), "nothing");
    EXPECT_EQ(ask(tape, get12), bytes(reply12Is30));
}

TEST(Tape, SaysNothingAtItsEndOfAValueThatItWasRecordedToSet) {
    Tape tape({written(get10), replied(reply10Is50), written(set10To20)});
    ask(tape, get10);
    EXPECT_EQ(write(tape, set10To20), "0");
    EXPECT_EQ(write(tape, get10), "nothing");
}

TEST(Tape, KnowsAgainAValueThatItWasRecordedToReadAfterwards) {
    Tape tape({written(set10To20), written(get10), replied(reply10Is20)});
    write(tape, set10To20);
    for (int time = 0; time < 2; ++time) EXPECT_EQ(ask(tape, get10), bytes(reply10Is20));
}

TEST(Tape, SaysNothingOfAValueThatHasChangedOtherwise) {
    Tape tape({written(get10), replied(reply10Is50), written(get12), replied(reply12Is30)});
    tape.changed(0x10);
    EXPECT_EQ(write(tape, get10), "nothing");
    EXPECT_EQ(ask(tape, get12), bytes(reply12Is30));
}

TEST(Tape, SaysNothingMoreWhenItIsStopped) {
    Tape tape({written(get10), replied(reply10Is50)});
    ask(tape, get10);
    write(tape, get10);
    tape.stop();
    EXPECT_EQ(read(tape), Bytes());
    EXPECT_EQ(write(tape, get10), "nothing");
}

}  // namespace
}  // namespace vantrel::simulated
