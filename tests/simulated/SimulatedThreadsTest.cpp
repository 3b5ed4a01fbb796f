// The simulated computer in real time with threads that really run at the same
// time: what a data race detector looks at.
#include <atomic>
#include <gtest/gtest.h>

#include "platform/simulated/SimulatedPlatform.h"
#include "runtime/RealScheduler.h"
#include "simulated/DeskBench.h"

namespace vantrel::simulated {
namespace {

using namespace std::chrono_literals;

Desk busyDesk() {
    Desk desk = ordinaryDesk();
    for (const std::size_t index : {1U, 2U}) {
        Personality& personality = desk.displays[index].monitor->personality;
        personality.replyLatency = 0us;
        personality.byteTime = 1us;
        personality.nak.probability = 0.1;
        personality.inputSwitch.pulse = 1ms;
        personality.staleAfterReconfiguration = true;
    }
    return desk;
}

// Talks to the monitor whose proxy comes `place`-th among those of the walk.
void converse(platform::Platform& platform, int place, int rounds) {
    for (int round = 0; round < rounds; ++round) {
        auto walk = platform.registry.iterateServicePlane();
        int proxies = 0;
        while (const auto entry = walk->next()) {
            if (entry->name() != "DCPAVServiceProxy" || proxies++ != place) continue;
            const void* handle = platform.functions.avCreate()(nullptr, entry->object());
            if (handle == nullptr) continue;
            const platform::AVService service(platform.registry, handle);
            for (const char* request : {set60To11, get10, set60To0F, set10To20}) {
                const Bytes frame = bytes(request);
                Bytes reply(11);
                platform.functions.avWrite()(handle, 0x37, 0x51, frame.data(),
                                             static_cast<std::uint32_t>(frame.size()));
                platform.functions.avRead()(handle, 0x37, 0, reply.data(), 11);
            }
        }
    }
}

TEST(SimulatedThreads, ServeSeveralThreadsWhileTheDeskChanges) {
    runtime::RealScheduler scheduler;
    runtime::MainLoop loop(scheduler);
    SimulatedPlatform simulated(busyDesk(), scheduler, loop);
    SilentSink sink;
    platform::Platform platform = simulated.platform(sink);
    std::atomic<int> callbacks = 0;
    platform.displays.onReconfiguration([&callbacks](platform::DisplayID, std::uint32_t) { ++callbacks; });

    for (const int place : {1, 2}) {
        scheduler.startThread("host", runtime::QualityOfService::userInitiated,
                              [&platform, place] { converse(platform, place, 40); });
    }
    for (int change = 0; change < 40; ++change) {
        loop.runDue();
        simulated.world().unplug(3);
        simulated.monitor(2).adjust(0x12, 10);
        platform.displays.onlineDisplays();
        simulated.world().plug(3);
        simulated.world().reconfigure(2, 2);
        simulated.monitor(3).counters();
    }
    scheduler.finishThreads();
    loop.runDue();

    EXPECT_EQ(simulated.liveServices(), 0);
    EXPECT_GT(callbacks, 0);
    EXPECT_GT(simulated.monitor(2).counters().writes, 0);
}

}  // namespace
}  // namespace vantrel::simulated
