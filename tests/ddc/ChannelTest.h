// The base of DDCChannel's tests: a channel to the monitor "Left" over a scripted
// bus, in virtual time. The registry is empty until a test connects something.
#pragma once

#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "Replies.h"
#include "ddc/DDCChannel.h"
#include "platform/simulated/VirtualTime.h"
#include "support/DeathTest.h"
#include "support/RecordingLogSink.h"
#include "support/ScriptedBus.h"

namespace vantrel::ddc {

class ChannelTest : public test::DeathTest {
  protected:
    using Kind = test::BusEvent::Kind;
    using Timeline = std::vector<std::string>;
    using LogLines = std::vector<test::LogLine>;

    static constexpr const char* edidUUID = "10ACE0A1-0000-0000-0C1E-0104B5351E78";
    static constexpr std::uint32_t serial = 7;

    // Only one at a time has a handle; the one before gives its handle back.
    DDCChannel& makeChannel(const std::optional<std::string>& uuid = edidUUID,
                            std::optional<std::uint32_t> number = serial) {
        channel.emplace(Transport(bus, bus, bus.functions(), platform::Log(sink)),
                        AVServiceLocator::Entry{bus.open(monitor), uuid, number, std::nullopt}, "Left");
        return *channel;
    }

    static test::LogLine line(platform::LogLevel level, std::string text) {
        return {"org.vantrel.Vantrel", "ddc", level, std::move(text)};
    }
    static test::LogLine debug(std::string text) { return line(platform::LogLevel::debug, std::move(text)); }
    static test::LogLine standard(std::string text) {
        return line(platform::LogLevel::standard, std::move(text));
    }
    static test::LogLine error(std::string text) { return line(platform::LogLevel::error, std::move(text)); }
    // What a reconnect says that finds so many links, none of them fitting.
    static test::LogLine noReconnect(int count) {
        return error("Left: DDC failed and no matching AV service to reconnect to (" + std::to_string(count) +
                     " external)");
    }
    static test::LogLine reconnected() { return standard("Left: reconnected to a fresh AV service handle"); }

    // What was logged, and what happened at the bus, since the last call.
    LogLines takeLog() {
        const LogLines all = sink.lines();
        LogLines news(all.begin() + static_cast<std::ptrdiff_t>(takenLines_), all.end());
        takenLines_ = all.size();
        return news;
    }
    Timeline takeTimeline() {
        Timeline timeline = bus.journal.timeline();
        bus.journal.clear();
        return timeline;
    }

    std::chrono::milliseconds elapsed() const {
        return std::chrono::duration_cast<std::chrono::milliseconds>(time.now().time_since_epoch());
    }

    simulated::VirtualTime time;
    test::RecordingLogSink sink;
    test::ScriptedService monitor;
    test::ScriptedBus bus{time};
    std::optional<DDCChannel> channel;

  private:
    std::size_t takenLines_ = 0;
};

}  // namespace vantrel::ddc
