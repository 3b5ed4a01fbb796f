#include <gtest/gtest.h>

#include "platform/recording/Recording.h"
#include "support/SteppingClock.h"

namespace vantrel::recording {
namespace {

using namespace std::chrono_literals;
using platform::Transfer;

// Handles of links, of which only the address matters.
constexpr char handles[4] = {};

// A walk as the program goes it. Entries are opened as their objects.
struct Program {
    explicit Program(Recording& recorded) : recording(recorded), walk(recorded.beginWalk()) {}

    Recording::Place look(const std::string& name, const std::string& identity = "") {
        Recording::Place place = recording.lookedInto(walk, name);
        if (!identity.empty()) recording.read(place, "identity", identity);
        return place;
    }
    void open(const Recording::Place& place, std::uint32_t object, const void* service) {
        recording.named(place, object);
        recording.opened(object, service);
    }
    void openMonitor(const std::string& identity, std::uint32_t object, const void* service) {
        look("framebuffer", identity);
        open(look("proxy"), object, service);
    }

    Recording& recording;
    std::shared_ptr<Recording::Walk> walk;
};

Transfer write(std::uint8_t byte) { return {{}, {}, Transfer::Direction::write, 0x37, 0x51, {byte}, 1, 0}; }

struct Bench {
    // Of the transfers through a link, the bytes.
    std::vector<std::uint8_t> bytesOf(std::size_t link) const {
        std::vector<std::uint8_t> bytes;
        for (const Transfer& transfer : recording.transfers(link)) bytes.push_back(transfer.bytes.front());
        return bytes;
    }
    void transfer(const void* service, std::uint8_t byte) {
        recording.transferred(service, write(byte), recording.now());
    }

    test::SteppingClock clock;
    Recording recording{clock};
};

using Bytes = std::vector<std::uint8_t>;

TEST(Recording, HasNothingBeforeAWalk) {
    Bench bench;
    EXPECT_EQ(bench.recording.entries(), std::vector<Recording::Entry>());
    EXPECT_EQ(bench.recording.link(&handles[0]), std::nullopt);
}

TEST(Recording, HasTheEntriesOfTheFirstWalkWithTheirLinks) {
    Bench bench;
    Program program(bench.recording);
    program.look("panel");
    program.openMonitor("A", 7, &handles[0]);
    program.openMonitor("B", 9, &handles[1]);
    const std::vector<Recording::Entry> expected{
        {"panel", {}, std::nullopt},
        {"framebuffer", {{"identity", "A"}}, std::nullopt},
        {"proxy", {}, 0},
        {"framebuffer", {{"identity", "B"}}, std::nullopt},
        {"proxy", {}, 1},
    };
    EXPECT_EQ(bench.recording.entries(), expected);
    EXPECT_EQ(bench.recording.link(&handles[0]), 0U);
    EXPECT_EQ(bench.recording.link(&handles[1]), 1U);
    Program(bench.recording).look("later");
    EXPECT_EQ(bench.recording.entries(), expected);
}

TEST(Recording, KeepsTheTransfersOfEachLinkInOrder) {
    Bench bench;
    Program program(bench.recording);
    program.openMonitor("A", 7, &handles[0]);
    program.openMonitor("B", 9, &handles[1]);
    bench.transfer(&handles[0], 1);
    bench.transfer(&handles[1], 2);
    bench.transfer(&handles[0], 3);
    EXPECT_EQ(bench.bytesOf(0), (Bytes{1, 3}));
    EXPECT_EQ(bench.bytesOf(1), (Bytes{2}));
}

TEST(Recording, CountsTimesFromItsStart) {
    test::SteppingClock clock;
    clock.sleepFor(5s);
    Recording recording(clock);
    Program(recording).openMonitor("A", 7, &handles[0]);
    clock.sleepFor(1500us);
    const auto began = recording.now();
    clock.sleepFor(360us);
    recording.transferred(&handles[0], write(1), began);
    Transfer expected = write(1);
    expected.at = 1500us;
    expected.took = 360us;
    EXPECT_EQ(recording.transfers(0), std::vector{expected});
}

TEST(Recording, KnowsALinkAgainUnderAnotherHandle) {
    Bench bench;
    Program first(bench.recording);
    first.openMonitor("A", 7, &handles[0]);
    first.openMonitor("B", 9, &handles[1]);
    // The objects of entries that are gone may be others'; A has been unplugged.
    Program(bench.recording).openMonitor("B", 7, &handles[2]);
    bench.transfer(&handles[2], 1);
    EXPECT_EQ(bench.bytesOf(0), Bytes());
    EXPECT_EQ(bench.bytesOf(1), Bytes{1});
}

TEST(Recording, KnowsAHandleThatStandsForAnotherLinkNow) {
    Bench bench;
    Program first(bench.recording);
    first.openMonitor("A", 7, &handles[0]);
    first.openMonitor("B", 9, &handles[1]);
    Program(bench.recording).openMonitor("B", 9, &handles[0]);
    bench.transfer(&handles[0], 1);
    EXPECT_EQ(bench.bytesOf(1), Bytes{1});
}

TEST(Recording, TellsTwinsApartByTheirOrder) {
    Bench bench;
    Program first(bench.recording);
    first.openMonitor("A", 7, &handles[0]);
    first.openMonitor("A", 9, &handles[1]);
    Program second(bench.recording);
    second.openMonitor("A", 7, &handles[2]);
    second.openMonitor("A", 9, &handles[3]);
    EXPECT_EQ(bench.recording.link(&handles[2]), 0U);
    EXPECT_EQ(bench.recording.link(&handles[3]), 1U);
}

TEST(Recording, LeavesOutALinkThatTheFirstWalkDidNotOpen) {
    Bench bench;
    Program(bench.recording).openMonitor("A", 7, &handles[0]);
    Program(bench.recording).openMonitor("C", 7, &handles[0]);
    EXPECT_EQ(bench.recording.link(&handles[0]), std::nullopt);
    bench.transfer(&handles[0], 1);
    EXPECT_EQ(bench.bytesOf(0), Bytes());
}

TEST(Recording, LeavesOutAServiceOfAnEntryThatNobodyLookedInto) {
    Bench bench;
    bench.recording.opened(7, &handles[0]);
    bench.transfer(&handles[0], 1);
    EXPECT_EQ(bench.recording.link(&handles[0]), std::nullopt);
}

TEST(Recording, HasOneLinkForAnEntryThatIsOpenedTwice) {
    Bench bench;
    Program program(bench.recording);
    const Recording::Place proxy = program.look("proxy");
    program.open(proxy, 7, &handles[0]);
    program.open(proxy, 7, &handles[1]);
    EXPECT_EQ(bench.recording.link(&handles[0]), 0U);
    EXPECT_EQ(bench.recording.link(&handles[1]), 0U);
}

}  // namespace
}  // namespace vantrel::recording
