#include <cerrno>
#include <chrono>
#include <cstdint>
#include <gtest/gtest.h>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "linux/InventoryRig.h"
#include "platform/linux/AVServices.h"
#include "platform/simulated/Random.h"
#include "support/RandomSeeds.h"

namespace vantrel::linux {
namespace {

using namespace std::chrono_literals;
using Bytes = std::vector<std::uint8_t>;

constexpr std::uint32_t chip = 0x37;

class AVServicesTest : public InventoryRig {
  protected:
    AVServicesTest() {
        add("card0-DP-1", 4, Wiring::child);
        add("card0-DP-2", 5, Wiring::link);
        plug("card0-DP-1", edidOf(1, 2, 3));
        plug("card0-DP-2", edidOf(1, 2, 4));
        for (const unsigned bus : {4U, 5U}) {
            devices.put(bus, 0x37,
                        {[this, bus](std::span<const std::uint8_t> bytes) {
                             written.emplace_back(bus, Bytes(bytes.begin(), bytes.end()));
                             return 0;
                         },
                         [bus](std::span<std::uint8_t> bytes) {
                             std::fill(bytes.begin(), bytes.end(), static_cast<std::uint8_t>(bus));
                             return 0;
                         }});
        }
        left = idOf("card0-DP-1");
        right = idOf("card0-DP-2");
    }
    // What was given up may still reach a monitor.
    ~AVServicesTest() override { time.finishThreads(); }

    std::int32_t write(const void* service, std::uint32_t to = chip) {
        return services.write(service, to, 0x51, Bytes{0x82, 0x01});
    }
    std::int32_t read(const void* service, std::uint32_t from = chip) {
        Bytes bytes(2);
        return services.read(service, from, bytes);
    }

    AnswerLog answers;
    AVServices services{inventory, buses, answers};
    std::vector<std::pair<unsigned, Bytes>> written;
    platform::DisplayID left = 0;
    platform::DisplayID right = 0;
};

// Handles.

TEST_F(AVServicesTest, GivesAHandleOfADisplayThatABusLeadsTo) {
    EXPECT_EQ(services.live(), 0);
    const void* service = services.create(left);
    EXPECT_NE(service, nullptr);
    EXPECT_EQ(services.live(), 1);
    services.release(service);
    EXPECT_EQ(services.live(), 0);
}

TEST_F(AVServicesTest, GivesNoHandleOfAnUnknownDisplay) {
    EXPECT_EQ(services.create(0), nullptr);
    EXPECT_EQ(services.create(left + 1), nullptr);
    EXPECT_EQ(services.live(), 0);
}

TEST_F(AVServicesTest, GivesAHandleOfADisplayWithoutABusThatLeadsNowhere) {
    tree.removeAdapter(4);
    EXPECT_NE(idOf("card0-DP-1"), 0);
    const void* service = services.create(left);
    EXPECT_NE(service, nullptr);
    EXPECT_EQ(write(service), ENODEV);
    EXPECT_EQ(read(service), ENODEV);
    EXPECT_EQ(devices.transfers(), 0);
    services.release(service);
    EXPECT_EQ(services.live(), 0);
}

TEST_F(AVServicesTest, GivesNoHandleOfABuiltInPanel) {
    add("card0-eDP-1", 7, Wiring::child);
    plug("card0-eDP-1", edidOf(1, 2, 5));
    EXPECT_EQ(services.create(idOf("card0-eDP-1")), nullptr);
}

TEST_F(AVServicesTest, GivesAHandleOfItsOwnEachTime) {
    const void* first = services.create(left);
    const void* second = services.create(left);
    EXPECT_NE(first, second);
    EXPECT_EQ(services.live(), 2);
    services.release(first);
    EXPECT_EQ(services.live(), 1);
    EXPECT_EQ(write(second), 0);
    services.release(second);
}

// Transfers.

TEST_F(AVServicesTest, WritesTheDataAddressAsTheFirstByte) {
    const void* service = services.create(left);
    EXPECT_EQ(services.write(service, chip, 0x51, Bytes{0x82, 0x01, 0x10}), 0);
    EXPECT_EQ(services.write(service, chip, 0x00, {}), 0);
    EXPECT_EQ(written, (std::vector<std::pair<unsigned, Bytes>>{{4, {0x51, 0x82, 0x01, 0x10}}, {4, {0x00}}}));
    services.release(service);
}

TEST_F(AVServicesTest, ReadsAsManyBytesAsThereIsRoomFor) {
    const void* service = services.create(right);
    Bytes bytes(4, 0xCC);
    EXPECT_EQ(services.read(service, chip, std::span(bytes).first(3)), 0);
    EXPECT_EQ(bytes, Bytes({5, 5, 5, 0xCC}));
    services.release(service);
}

TEST_F(AVServicesTest, ReachesEachDisplayOnItsOwnBus) {
    const void* first = services.create(left);
    const void* second = services.create(right);
    EXPECT_EQ(write(second), 0);
    EXPECT_EQ(write(first), 0);
    EXPECT_EQ(written.front().first, 5);
    EXPECT_EQ(written.back().first, 4);
    services.release(first);
    services.release(second);
}

TEST_F(AVServicesTest, FailsAsTheBusDoes) {
    const void* service = services.create(left);
    for (const int error : {ENXIO, EBUSY, ENOENT, EACCES}) {
        devices.fail(4, error);
        EXPECT_EQ(write(service), error);
        EXPECT_EQ(read(service), error);
    }
    devices.fail(4, 0);
    EXPECT_EQ(write(service, 0x38), ENXIO);
    services.release(service);
}

TEST_F(AVServicesTest, IsNotHeldUpByABusThatHangs) {
    const void* service = services.create(left);
    devices.delay(4, 10s);
    EXPECT_EQ(write(service), ETIMEDOUT);
    EXPECT_EQ(read(service), EAGAIN);
    EXPECT_EQ(time.now().time_since_epoch(), BoundedI2C::bound);
    services.release(service);
}

TEST_F(AVServicesTest, RefusesAddressesThatNoChipHas) {
    const void* service = services.create(left);
    for (const std::uint32_t address : {0x78U, 0x7FU, 0x80U, 0x100U, 0x137U, 0x80000037U, 0xFFFFFFFFU}) {
        EXPECT_EQ(write(service, address), EINVAL) << address;
        EXPECT_EQ(read(service, address), EINVAL) << address;
    }
    EXPECT_EQ(devices.transfers(), 0);
    EXPECT_EQ(write(service, 0x77), ENXIO) << "the highest one that may be there";
    services.release(service);
}

// Adapters that go.

TEST_F(AVServicesTest, FailsWhenTheAdapterHasGone) {
    const void* service = services.create(left);
    tree.removeAdapter(4);
    EXPECT_EQ(write(service), ENODEV);
    EXPECT_EQ(read(service), ENODEV);
    EXPECT_EQ(devices.transfers(), 0);
    services.release(service);
}

TEST_F(AVServicesTest, FailsWhenTheAdapterWasRenumberedUntilAFreshHandleIsTaken) {
    const void* service = services.create(right);
    tree.renumber(5, 9);
    devices.renumber(5, 9);
    EXPECT_EQ(write(service), ENODEV);
    inventory.look();
    EXPECT_EQ(write(service), ENODEV);
    const void* fresh = services.create(right);
    EXPECT_EQ(write(fresh), 0);
    services.release(service);
    services.release(fresh);
}

TEST_F(AVServicesTest, NeverReachesAnotherMonitorUnderTheOldNumber) {
    const void* service = services.create(left);
    tree.removeAdapter(4);
    tree.renumber(5, 4);
    devices.renumber(5, 4);
    inventory.look();
    EXPECT_EQ(write(service), ENODEV);
    EXPECT_EQ(written.size(), 0);
    const void* other = services.create(right);
    EXPECT_EQ(write(other), 0);
    services.release(service);
    services.release(other);
}

// The same bus below the same graphics device, but the kernel says that it is another's now.
TEST_F(AVServicesTest, NeverReachesAnotherMonitorThatHasItsPlaceToo) {
    add("card0-DP-3", 6, Wiring::link);
    plug("card0-DP-3", edidOf(1, 2, 5));
    ASSERT_NE(idOf("card0-DP-3"), right);
    const void* service = services.create(right);
    for (const auto& [from, to] : {std::pair(5U, 9U), std::pair(6U, 5U)}) {
        tree.renumber(from, to);
        devices.renumber(from, to);
    }
    inventory.look();
    EXPECT_EQ(write(service), ENODEV);
    EXPECT_EQ(written.size(), 0);
    const void* fresh = services.create(right);
    EXPECT_EQ(write(fresh), 0);
    services.release(service);
    services.release(fresh);
}

TEST_F(AVServicesTest, FailsOnceTheMonitorWasSeenToBeUnplugged) {
    const void* service = services.create(left);
    unplug("card0-DP-1");
    inventory.look();
    EXPECT_EQ(write(service), ENODEV);
    plug("card0-DP-1", edidOf(1, 2, 3));
    inventory.look();
    EXPECT_EQ(write(service), 0);
    services.release(service);
}

// What is remembered of the answers.

TEST_F(AVServicesTest, NotesHowTheTransfersWent) {
    const void* service = services.create(left);
    devices.fail(4, ENXIO);
    for (int turn = 0; turn < 4; ++turn) {
        write(service);
        read(service);
    }
    EXPECT_EQ(answers.lastingFailure(left), ENXIO);
    EXPECT_EQ(answers.lastingFailure(right), std::nullopt);
    tree.removeAdapter(4);
    write(service);
    EXPECT_EQ(answers.lastingFailure(left), ENODEV);
    services.release(service);
}

TEST_F(AVServicesTest, NotesThatTheMonitorAcknowledges) {
    const void* service = services.create(left);
    for (int turn = 0; turn < 8; ++turn) answers.note(left, ENXIO);
    EXPECT_EQ(write(service), 0);
    EXPECT_EQ(answers.lastingFailure(left), std::nullopt);
    services.release(service);
}

TEST_F(AVServicesTest, NotesNothingOfTheProgramsOwnMistakes) {
    const void* service = services.create(left);
    for (int turn = 0; turn < 8; ++turn) write(service, 0x78);
    EXPECT_EQ(answers.lastingFailure(left), std::nullopt);
    services.release(service);
}

// Several threads.

TEST_F(AVServicesTest, ServesSeveralThreadsAtATime) {
    test::forRandomSeeds(5, [this](std::uint64_t seed) {
        int successes = 0;
        for (unsigned caller = 0; caller < 4; ++caller) {
            time.startThread("caller", runtime::QualityOfService::userInitiated,
                             [this, seed, caller, &successes] {
                                 simulated::Random random = simulated::Random(seed).fork(caller);
                                 for (int turn = 0; turn < 20; ++turn) {
                                     const bool isLeft = random.chance(0.5);
                                     const void* service = services.create(isLeft ? left : right);
                                     time.sleepFor(random.duration(0s, 5ms));
                                     Bytes bytes(1);
                                     const int error = services.read(service, chip, bytes);
                                     ASSERT_TRUE(error == 0 || error == EAGAIN) << error;
                                     if (error == 0) {
                                         ASSERT_EQ(bytes, Bytes{static_cast<std::uint8_t>(isLeft ? 4 : 5)});
                                     }
                                     successes += error == 0 ? 1 : 0;
                                     services.release(service);
                                 }
                             });
        }
        time.sleepFor(10s);
        EXPECT_GE(successes, 20);
        EXPECT_EQ(services.live(), 0);
        EXPECT_EQ(devices.counts(4).overlaps + devices.counts(5).overlaps, 0);
    });
}

// Mistakes of the program.

class AVServicesDeathTest : public AVServicesTest {
  protected:
    void SetUp() override { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

TEST_F(AVServicesDeathTest, AHandleIsReleasedOnce) {
    const void* service = services.create(left);
    services.release(service);
    EXPECT_DEATH(services.release(service), "released that nobody holds");
}

TEST_F(AVServicesDeathTest, OnlyHandlesAreReleased) {
    EXPECT_DEATH(services.release(nullptr), "released that nobody holds");
    EXPECT_DEATH(services.release(this), "released that nobody holds");
}

TEST_F(AVServicesDeathTest, OnlyLiveHandlesAreUsed) {
    const void* service = services.create(left);
    services.release(service);
    EXPECT_DEATH(write(service), "that nobody holds");
    EXPECT_DEATH(read(service), "that nobody holds");
    EXPECT_DEATH(write(service, 0x78), "that nobody holds");
    EXPECT_DEATH(read(nullptr), "that nobody holds");
}

}  // namespace
}  // namespace vantrel::linux
