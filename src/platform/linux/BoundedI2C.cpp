#include "platform/linux/BoundedI2C.h"

#include <algorithm>
#include <cerrno>
#include <string>
#include <utility>
#include <vector>

#include "runtime/SerialQueue.h"

namespace vantrel::linux {

// One bus: its thread, and at most one transfer on it.
class BoundedI2C::Lane {
  public:
    Lane(runtime::Scheduler& scheduler, Bus bus)
        : scheduler_(scheduler),
          state_(std::make_shared<State>()),
          queue_(scheduler, "org.vantrel.i2c-" + std::to_string(bus),
                 runtime::QualityOfService::userInitiated) {
        state_->ended = scheduler.makeGate();
    }

    // `transfer` may outlive the call: it owns what it works on.
    int run(std::function<int()> transfer) {
        std::uint64_t ticket = 0;
        {
            const std::lock_guard lock(state_->mutex);
            if (state_->isBusy) return EAGAIN;
            state_->isBusy = true;
            ticket = ++state_->ticket;
        }
        queue_.submit([state = state_, transfer = std::move(transfer)] { state->end(transfer()); });
        const runtime::MonotonicTime deadline = scheduler_.now() + bound;
        while (true) {
            const runtime::Wake wake = state_->ended->wait(deadline);
            const std::lock_guard lock(state_->mutex);
            if (!state_->isBusy && state_->ticket == ticket) return state_->result;
            // What opened the gate may be the end of one that was given up before.
            if (wake != runtime::Wake::opened) return ETIMEDOUT;
        }
    }

  private:
    struct State {
        std::mutex mutex;
        bool isBusy = false;
        // Of the last transfer that began.
        std::uint64_t ticket = 0;
        int result = 0;
        std::unique_ptr<runtime::Gate> ended;

        void end(int outcome) {
            const std::lock_guard lock(mutex);
            result = outcome;
            isBusy = false;
            ended->open();
        }
    };

    runtime::Scheduler& scheduler_;
    std::shared_ptr<State> state_;
    runtime::SerialQueue queue_;
};

void BoundedI2C::keepBuses(const std::set<Bus>& buses) {
    const std::lock_guard lock(mutex_);
    std::erase_if(lanes_, [&buses](const auto& lane) { return !buses.contains(lane.first); });
    for (const Bus bus : buses) {
        if (!lanes_.contains(bus)) lanes_.emplace(bus, std::make_shared<Lane>(scheduler_, bus));
    }
}

std::shared_ptr<BoundedI2C::Lane> BoundedI2C::lane(Bus bus) const {
    const std::lock_guard lock(mutex_);
    const auto found = lanes_.find(bus);
    return found != lanes_.end() ? found->second : nullptr;
}

int BoundedI2C::write(Bus bus, std::uint8_t address, std::span<const std::uint8_t> bytes) {
    const auto lane = this->lane(bus);
    if (lane == nullptr) return ENODEV;
    return lane->run(
        [&devices = devices_, bus, address, copy = std::vector<std::uint8_t>(bytes.begin(), bytes.end())] {
            return devices.write(bus, address, copy);
        });
}

int BoundedI2C::read(Bus bus, std::uint8_t address, std::span<std::uint8_t> bytes) {
    const auto lane = this->lane(bus);
    if (lane == nullptr) return ENODEV;
    const auto filled = std::make_shared<std::vector<std::uint8_t>>(bytes.size());
    const int error = lane->run(
        [&devices = devices_, bus, address, filled] { return devices.read(bus, address, *filled); });
    if (error == 0) std::copy(filled->begin(), filled->end(), bytes.begin());
    return error;
}

}  // namespace vantrel::linux
