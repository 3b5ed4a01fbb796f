#include "ddc/DDCWorker.h"

#include <deque>
#include <mutex>
#include <unordered_map>

#include "platform/Log.h"
#include "runtime/Fatal.h"

namespace vantrel::ddc {

// Shared with the blocks on the queue. The channel is used on the queue only;
// the lock guards the rest and is never held across a transfer.
struct DDCWorker::State {
    explicit State(DDCChannel opened) : channel(std::move(opened)) {}

    DDCChannel channel;
    std::mutex lock;
    // The newest value of each code that is not written yet, and the codes in
    // the order in which they came: the same codes in both.
    std::unordered_map<std::uint8_t, std::uint16_t> pending;
    std::deque<std::uint8_t> pendingOrder;
    // A drain is on the queue or running.
    bool draining = false;
};

DDCWorker::DDCWorker(runtime::Scheduler& scheduler, const runtime::MainLoop& loop, DDCChannel channel,
                     const std::string& label)
    : state_(std::make_shared<State>(std::move(channel))),
      loop_(loop.poster()),
      queue_(scheduler, std::string(platform::Log::subsystem) + ".ddc." + label,
             runtime::QualityOfService::userInitiated) {}

DDCChannel& DDCWorker::channelOf(State& state) { return state.channel; }

void DDCWorker::write(std::uint8_t code, std::uint16_t value) {
    {
        const std::lock_guard lock(state_->lock);
        if (!state_->pending.contains(code)) state_->pendingOrder.push_back(code);
        state_->pending[code] = value;
        if (std::exchange(state_->draining, true)) return;
    }
    queue_.submit([state = state_] { drain(*state); });
}

void DDCWorker::drain(State& state) {
    std::unique_lock lock(state.lock);
    while (!state.pendingOrder.empty()) {
        const std::uint8_t code = state.pendingOrder.front();
        state.pendingOrder.pop_front();
        const auto value = state.pending.extract(code);
        runtime::require(!value.empty(), "a pending VCP code without a value");
        lock.unlock();
        state.channel.write(code, value.mapped());
        lock.lock();
    }
    state.draining = false;
}

}  // namespace vantrel::ddc
