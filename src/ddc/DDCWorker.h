// Serialises all traffic with one monitor on a queue of its own, so that
// transfers never block the main thread and never interleave.
//
// Writes collapse: a slider asks for dozens of values in the time of one
// transfer, and only the newest value of each code is worth sending. Codes are
// written in the order in which they were first asked for.
//
// Threads: made and destroyed on the main thread; write() from any thread.
// Lifetime: what was asked for is still sent after the worker is destroyed;
// destroying it never waits for the monitor.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include "ddc/DDCChannel.h"
#include "runtime/QueueCall.h"
#include "runtime/SerialQueue.h"

namespace vantrel::ddc {

class DDCWorker {
  public:
    // `label` names the queue; it is the display identifier in decimal.
    DDCWorker(runtime::Scheduler& scheduler, const runtime::MainLoop& loop, DDCChannel channel,
              const std::string& label);

    // Returns at once; the transfer follows on the queue.
    void write(std::uint8_t code, std::uint16_t value);

    // Runs `body` with the channel on the queue, after everything submitted
    // before, and gives a task its result:
    //
    //     auto reading = worker.run([](DDCChannel& channel) { return channel.read(0x10, 4); });
    //     const auto result = co_await reading;
    template <class Body>
    auto run(Body body) {
        using Result = std::invoke_result_t<Body&, DDCChannel&>;
        std::function<Result()> call = [state = state_, body = std::move(body)]() mutable {
            return body(channelOf(*state));
        };
        return runtime::QueueCall<Result>(queue_, loop_, std::move(call));
    }

    const std::string& queueLabel() const { return queue_.label(); }

  private:
    struct State;

    static DDCChannel& channelOf(State& state);
    static void drain(State& state);

    std::shared_ptr<State> state_;
    runtime::MainLoop::Poster loop_;
    runtime::SerialQueue queue_;
};

}  // namespace vantrel::ddc
