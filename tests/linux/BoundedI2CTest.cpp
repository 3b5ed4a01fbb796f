#include <array>
#include <cerrno>
#include <chrono>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "linux/FakeI2C.h"
#include "platform/linux/BoundedI2C.h"
#include "platform/simulated/Random.h"
#include "platform/simulated/VirtualTime.h"
#include "support/RandomSeeds.h"

namespace vantrel::linux {
namespace {

using namespace std::chrono_literals;
using Bytes = std::vector<std::uint8_t>;
using runtime::MonotonicClock;
using runtime::MonotonicTime;

constexpr std::uint8_t address = 0x37;
constexpr std::uint8_t otherAddress = 0x38;

// Virtual time whose gates say that the deadline came before the opening whenever both are
// there at once, as it can happen in real time: the opening is left for the next wait.
class LateTime : public simulated::VirtualTime {
  public:
    std::unique_ptr<runtime::Gate> makeGate() override {
        return std::make_unique<LateGate>(VirtualTime::makeGate(), isLate);
    }
    // Whether it happens at each wait with a deadline.
    bool isLate = false;

  private:
    class LateGate : public runtime::Gate {
      public:
        LateGate(std::unique_ptr<runtime::Gate> inner, const bool& isLate)
            : inner_(std::move(inner)), isLate_(isLate) {}
        void open() override { inner_->open(); }
        runtime::Wake wait(std::optional<MonotonicTime> deadline) override {
            const runtime::Wake wake = inner_->wait(deadline);
            if (!isLate_ || !deadline || wake != runtime::Wake::opened) return wake;
            inner_->open();
            return runtime::Wake::deadline;
        }

      private:
        const std::unique_ptr<runtime::Gate> inner_;
        const bool& isLate_;
    };
};

class BoundedI2CTest : public testing::Test {
  protected:
    BoundedI2CTest() {
        for (const unsigned bus : {4U, 5U}) {
            devices.put(bus, address, answering(static_cast<std::uint8_t>(bus)));
            devices.put(bus, otherAddress, answering(static_cast<std::uint8_t>(bus + 0x10)));
        }
        buses.keepBuses({4, 5});
    }
    ~BoundedI2CTest() override { time.finishThreads(); }

    // Reads as so many bytes of one value, and keeps what is written.
    FakeI2C::Device answering(std::uint8_t value) {
        return {[this](std::span<const std::uint8_t> bytes) {
                    written.emplace_back(bytes.begin(), bytes.end());
                    return 0;
                },
                [value](std::span<std::uint8_t> bytes) {
                    std::fill(bytes.begin(), bytes.end(), value);
                    return 0;
                }};
    }
    int write(unsigned bus = 4, const Bytes& bytes = {1, 2, 3}) { return buses.write(bus, address, bytes); }
    std::pair<int, Bytes> read(unsigned bus = 4, std::uint8_t from = address) {
        Bytes bytes(3, 0xCC);
        const int error = buses.read(bus, from, bytes);
        return {error, bytes};
    }
    void run(const std::string& name, const std::function<void()>& body) {
        time.startThread(name, runtime::QualityOfService::userInitiated, body);
    }

    LateTime time;
    FakeI2C devices{time};
    std::vector<Bytes> written;
    BoundedI2C buses{devices, time};
    const MonotonicTime start = time.now();
};

TEST_F(BoundedI2CTest, WritesEveryByteToTheDevice) {
    EXPECT_EQ(write(4, {0x51, 0x82, 0x01}), 0);
    EXPECT_EQ(written, std::vector<Bytes>({{0x51, 0x82, 0x01}}));
    EXPECT_EQ(devices.counts(4), (FakeI2C::Counts{.writes = 1}));
}

TEST_F(BoundedI2CTest, ReadsWhatTheDeviceOfThatAddressOnThatBusSays) {
    EXPECT_EQ(read(4), std::pair(0, Bytes(3, 0x04)));
    EXPECT_EQ(read(5), std::pair(0, Bytes(3, 0x05)));
    EXPECT_EQ(read(5, otherAddress), std::pair(0, Bytes(3, 0x15)));
}

TEST_F(BoundedI2CTest, TransfersNothingAtAllAsAMessageOfItsOwn) {
    EXPECT_EQ(write(4, {}), 0);
    EXPECT_EQ(buses.read(4, address, {}), 0);
    EXPECT_EQ(devices.counts(4), (FakeI2C::Counts{.writes = 1, .reads = 1}));
}

TEST_F(BoundedI2CTest, FailsAsTheBusDoes) {
    for (const int error : {ENXIO, EBUSY, ENOENT, EACCES, EIO}) {
        devices.fail(4, error);
        EXPECT_EQ(write(), error);
        EXPECT_EQ(read(), std::pair(error, Bytes(3, 0xCC))) << "a failed read fills nothing";
    }
    EXPECT_EQ(buses.write(5, 0x11, Bytes{1}), ENXIO) << "nobody is there";
}

TEST_F(BoundedI2CTest, TakesAsLongAsTheTransfer) {
    devices.delay(4, 300ms);
    EXPECT_EQ(write(), 0);
    EXPECT_EQ(time.now() - start, 300ms);
    EXPECT_EQ(read().first, 0);
    EXPECT_EQ(time.now() - start, 600ms);
}

// Buses.

TEST_F(BoundedI2CTest, HasNoBusBeforeItIsToldToKeepOne) {
    BoundedI2C fresh(devices, time);
    Bytes bytes(1);
    EXPECT_EQ(fresh.write(4, address, bytes), ENODEV);
    EXPECT_EQ(fresh.read(4, address, bytes), ENODEV);
    EXPECT_EQ(devices.transfers(), 0);
}

TEST_F(BoundedI2CTest, FailsOnABusThatIsNotKeptAnyMoreAndGoesOnWithTheOthers) {
    buses.keepBuses({5});
    EXPECT_EQ(write(4), ENODEV);
    EXPECT_EQ(read(4).first, ENODEV);
    EXPECT_EQ(devices.counts(4), FakeI2C::Counts());
    EXPECT_EQ(write(5), 0);
}

TEST_F(BoundedI2CTest, TakesABusAgainThatItHadDropped) {
    buses.keepBuses({});
    buses.keepBuses({4});
    EXPECT_EQ(read(4), std::pair(0, Bytes(3, 0x04)));
    EXPECT_EQ(read(5).first, ENODEV);
}

TEST_F(BoundedI2CTest, EndsATransferAsItWouldHaveEndedWhenItsBusIsDroppedMeanwhile) {
    devices.delay(4, 1s);
    std::optional<int> outcome;
    run("caller", [&] { outcome = write(); });
    time.sleepFor(500ms);
    buses.keepBuses({});
    EXPECT_EQ(write(), ENODEV);
    time.sleepFor(600ms);
    EXPECT_EQ(outcome, 0);
    EXPECT_EQ(written.size(), 1);
}

TEST_F(BoundedI2CTest, LeavesATransferAloneWhenItsBusIsKeptOn) {
    devices.delay(4, 1s);
    std::optional<int> outcome;
    run("caller", [&] { outcome = write(); });
    time.sleepFor(500ms);
    buses.keepBuses({4});
    EXPECT_EQ(write(), EAGAIN);
    time.sleepFor(600ms);
    EXPECT_EQ(outcome, 0);
    EXPECT_EQ(write(), 0);
}

// Giving up.

TEST_F(BoundedI2CTest, GivesUpAtTheBound) {
    devices.delay(4, 10s);
    EXPECT_EQ(write(), ETIMEDOUT);
    EXPECT_EQ(time.now() - start, BoundedI2C::bound);
}

TEST_F(BoundedI2CTest, GivesUpAReadWithoutFillingAnything) {
    devices.delay(4, 10s);
    Bytes bytes(3, 0xCC);
    EXPECT_EQ(buses.read(4, address, bytes), ETIMEDOUT);
    EXPECT_EQ(time.now() - start, BoundedI2C::bound);
    time.sleepFor(20s);
    EXPECT_EQ(bytes, Bytes(3, 0xCC)) << "what came too late is nobody's";
}

TEST_F(BoundedI2CTest, WaitsForATransferThatEndsJustBeforeTheBound) {
    devices.delay(4, BoundedI2C::bound - 1us);
    EXPECT_EQ(read(), std::pair(0, Bytes(3, 0x04)));
}

TEST_F(BoundedI2CTest, WritesWhatItWasGivenThoughTheCallerHasGone) {
    devices.delay(4, 10s);
    {
        Bytes bytes{1, 2, 3};
        EXPECT_EQ(write(4, bytes), ETIMEDOUT);
        bytes.assign(3, 0xEE);
    }
    time.sleepFor(20s);
    EXPECT_EQ(written, std::vector<Bytes>({{1, 2, 3}}));
}

TEST_F(BoundedI2CTest, FailsAtOnceWhileTheKernelHasNotEndedWhatWasGivenUp) {
    devices.delay(4, 10s);
    EXPECT_EQ(write(), ETIMEDOUT);
    const auto given = time.now();
    EXPECT_EQ(write(), EAGAIN);
    EXPECT_EQ(read().first, EAGAIN);
    EXPECT_EQ(time.now(), given);
    time.sleepFor(7900ms);
    EXPECT_EQ(write(), EAGAIN) << "9.9 s of 10";
    EXPECT_EQ(devices.counts(4), (FakeI2C::Counts{.writes = 1}));
}

TEST_F(BoundedI2CTest, WorksAgainWhenTheKernelHasEndedWhatWasGivenUp) {
    devices.delay(4, 10s);
    EXPECT_EQ(write(), ETIMEDOUT);
    devices.delay(4, 0s);
    time.sleepFor(9s);
    EXPECT_EQ(write(), 0);
    EXPECT_EQ(read(), std::pair(0, Bytes(3, 0x04)));
}

TEST_F(BoundedI2CTest, TellsTheNextCallerNothingOfAResultThatCameTooLate) {
    devices.delay(4, 10s);
    EXPECT_EQ(read(4), std::pair(ETIMEDOUT, Bytes(3, 0xCC)));
    time.sleepFor(9s);
    devices.delay(4, 700ms);
    devices.fail(4, EIO);
    const auto begin = time.now();
    EXPECT_EQ(read(4, otherAddress).first, EIO) << "not the late success";
    EXPECT_EQ(time.now() - begin, 700ms) << "not ended by what came too late";
    devices.fail(4, 0);
    EXPECT_EQ(read(4, otherAddress), std::pair(0, Bytes(3, 0x14)));
}

TEST_F(BoundedI2CTest, TakesAResultThatComesJustAsItGivesUpAndTheNextOneInItsTime) {
    time.isLate = true;
    EXPECT_EQ(read(), std::pair(0, Bytes(3, 0x04)));
    time.isLate = false;
    devices.delay(4, 700ms);
    EXPECT_EQ(read(4, otherAddress), std::pair(0, Bytes(3, 0x14)));
    EXPECT_EQ(time.now() - start, 700ms);
}

TEST_F(BoundedI2CTest, GivesUpAgainAndAgain) {
    for (int time = 0; time < 3; ++time) {
        devices.delay(4, 3s);
        EXPECT_EQ(read().first, ETIMEDOUT);
        EXPECT_EQ(read().first, EAGAIN);
        this->time.sleepFor(2s);
        devices.delay(4, 0s);
        EXPECT_EQ(read(), std::pair(0, Bytes(3, 0x04)));
    }
    EXPECT_EQ(time.now() - start, 3 * (BoundedI2C::bound + 2s));
}

TEST_F(BoundedI2CTest, DoesNotHoldOneBusUpForAnother) {
    devices.delay(4, 10s);
    std::optional<int> outcome;
    run("caller", [&] { outcome = write(4); });
    time.sleepFor(1s);
    EXPECT_EQ(write(5), 0);
    EXPECT_EQ(time.now() - start, 1s);
    EXPECT_EQ(outcome, std::nullopt);
    time.sleepFor(1100ms);
    EXPECT_EQ(outcome, ETIMEDOUT);
}

TEST_F(BoundedI2CTest, KeepsABusBusyThatHangsWhenItIsDroppedAndTakenAgain) {
    devices.delay(4, 10s);
    EXPECT_EQ(write(), ETIMEDOUT);
    buses.keepBuses({5});
    EXPECT_EQ(write(), ENODEV);
    buses.keepBuses({4, 5});
    const auto again = time.now();
    EXPECT_EQ(write(), EAGAIN);
    EXPECT_EQ(time.now(), again);
    devices.delay(4, 0s);
    time.sleepFor(10s);
    EXPECT_EQ(write(), 0);
    EXPECT_EQ(devices.counts(4), (FakeI2C::Counts{.writes = 2}));
}

TEST_F(BoundedI2CTest, ForgetsABusThatHungWhileItWasDropped) {
    devices.delay(4, 3s);
    EXPECT_EQ(write(), ETIMEDOUT);
    buses.keepBuses({});
    time.sleepFor(5s);
    buses.keepBuses({});
    devices.delay(4, 0s);
    EXPECT_EQ(write(), ENODEV);
    buses.keepBuses({4});
    EXPECT_EQ(write(), 0);
}

// Several threads.

TEST_F(BoundedI2CTest, FailsAtOnceWhileAnotherTransferIsUnderWay) {
    devices.delay(4, 1s);
    std::optional<int> outcome;
    run("caller", [&] { outcome = read().first; });
    time.sleepFor(500ms);
    EXPECT_EQ(write(), EAGAIN);
    EXPECT_EQ(time.now() - start, 500ms);
    time.sleepFor(501ms);
    EXPECT_EQ(outcome, 0);
    EXPECT_EQ(devices.counts(4), (FakeI2C::Counts{.reads = 1}));
}

TEST_F(BoundedI2CTest, TellsEachCallerItsOwnResultWhenOneComesAsAnotherEnds) {
    write();  // the bus's thread is up
    devices.delay(4, 1s);
    std::optional<std::pair<int, Bytes>> first;
    std::optional<std::pair<int, Bytes>> second;
    run("first", [&] { first = read(4); });
    // Due at the moment at which the first transfer ends, before the first caller wakes.
    run("second", [&] {
        time.sleepFor(0s);
        time.sleepFor(1s);
        second = read(4, otherAddress);
        while (second->first == EAGAIN) {
            time.sleepFor(1ms);
            second = read(4, otherAddress);
        }
    });
    time.sleepFor(10s);
    EXPECT_EQ(first, std::pair(0, Bytes(3, 0x04)));
    EXPECT_EQ(second, std::pair(0, Bytes(3, 0x14)));
    EXPECT_EQ(devices.counts(4).overlaps, 0);
}

TEST_F(BoundedI2CTest, KeepsTransfersApartWhateverHowManyThreadsTry) {
    test::forRandomSeeds(20, [this](std::uint64_t seed) {
        struct Tally {
            unsigned successes = 0;
            unsigned busy = 0;
            unsigned hung = 0;
            unsigned wrong = 0;
        };
        std::array<Tally, 4> tallies;
        for (std::size_t caller = 0; caller < tallies.size(); ++caller) {
            run("caller " + std::to_string(caller), [this, seed, caller, &tally = tallies.at(caller)] {
                simulated::Random random = simulated::Random(seed).fork(caller);
                for (int turn = 0; turn < 30; ++turn) {
                    const auto bus = static_cast<unsigned>(random.uniform(4, 5));
                    if (caller == 0) devices.delay(bus, random.duration(0s, random.chance(0.1) ? 5s : 40ms));
                    const bool isOther = random.chance(0.5);
                    const auto [error, bytes] = read(bus, isOther ? otherAddress : address);
                    const auto value = static_cast<std::uint8_t>(isOther ? bus + 0x10 : bus);
                    tally.successes += error == 0 && bytes == Bytes(3, value) ? 1 : 0;
                    tally.busy += error == EAGAIN ? 1 : 0;
                    tally.hung += error == ETIMEDOUT ? 1 : 0;
                    tally.wrong += error == 0 && bytes != Bytes(3, value) ? 1 : 0;
                    time.sleepFor(random.duration(0s, 50ms));
                }
            });
        }
        time.sleepFor(std::chrono::hours(1));
        for (const Tally& tally : tallies) {
            EXPECT_EQ(tally.wrong, 0);
            EXPECT_EQ(tally.successes + tally.busy + tally.hung, 30);
            EXPECT_GT(tally.successes, 0);
        }
        EXPECT_EQ(devices.counts(4).overlaps + devices.counts(5).overlaps, 0);
    });
}

TEST_F(BoundedI2CTest, EndsItsThreadsWhenAllThreadsAreFinishedThoughItStaysItself) {
    EXPECT_EQ(write(), 0);
    time.finishThreads();
    EXPECT_EQ(time.now(), start);
}

TEST_F(BoundedI2CTest, ServesTheOtherThreadsUntilTheyAreFinished) {
    devices.delay(4, 100ms);
    int successes = 0;
    run("caller", [&] {
        for (int turn = 0; turn < 3; ++turn) {
            time.sleepFor(1s);
            successes += write() == 0 ? 1 : 0;
        }
    });
    time.finishThreads();
    EXPECT_EQ(successes, 3);
    EXPECT_EQ(written.size(), 3);
}

TEST_F(BoundedI2CTest, EndsItsThreadsWithItself) {
    auto mortal = std::make_unique<BoundedI2C>(devices, time);
    mortal->keepBuses({4});
    Bytes bytes(1);
    EXPECT_EQ(mortal->read(4, address, bytes), 0);
    devices.delay(4, 5s);
    EXPECT_EQ(mortal->read(4, address, bytes), ETIMEDOUT);
    mortal.reset();
    buses.keepBuses({});
    time.finishThreads();
    EXPECT_EQ(time.now() - start, 5s) << "the kernel is waited for";
}

}  // namespace
}  // namespace vantrel::linux
