#include "platform/linux/BoundedI2C.h"

#include <algorithm>
#include <cerrno>
#include <string>
#include <utility>
#include <vector>

namespace vantrel::linux {

// One bus: its thread, and at most one transfer on it.
class BoundedI2C::Lane {
  public:
    Lane(runtime::Scheduler& scheduler, Bus bus) : scheduler_(scheduler), state_(std::make_shared<State>()) {
        state_->begun = scheduler.makeGate();
        state_->ended = scheduler.makeGate();
        scheduler.startServant(
            "org.vantrel.i2c-" + std::to_string(bus), runtime::QualityOfService::userInitiated,
            [state = state_] { state->serve(); }, [state = state_] { state->close(); });
    }
    Lane(const Lane&) = delete;
    Lane& operator=(const Lane&) = delete;
    ~Lane() { state_->close(); }

    // `transfer` may outlive the call: it owns what it works on.
    int run(std::function<int()> transfer) {
        {
            const std::lock_guard lock(state_->mutex);
            if (state_->phase != Phase::free) return EAGAIN;
            state_->phase = Phase::underWay;
            state_->transfer = std::move(transfer);
        }
        state_->begun->open();
        const runtime::MonotonicTime deadline = scheduler_.now() + bound;
        while (true) {
            const runtime::Wake wake = state_->ended->wait(deadline);
            const std::lock_guard lock(state_->mutex);
            if (state_->phase == Phase::ended) {
                state_->phase = Phase::free;
                return state_->result;
            }
            // What opened the gate may be the end of one that nobody waited for at the gate.
            if (wake == runtime::Wake::opened) continue;
            state_->phase = Phase::givenUp;
            return ETIMEDOUT;
        }
    }

    bool isFree() const {
        const std::lock_guard lock(state_->mutex);
        return state_->phase == Phase::free;
    }

  private:
    // Free again only when its caller has the result, or doesn't want it any more.
    enum class Phase { free, underWay, ended, givenUp };

    struct State {
        std::mutex mutex;
        bool isClosed = false;
        Phase phase = Phase::free;
        // Until it has begun.
        std::function<int()> transfer;
        int result = 0;
        std::unique_ptr<runtime::Gate> begun;
        std::unique_ptr<runtime::Gate> ended;

        // The body of the thread.
        void serve() {
            for (;;) {
                std::unique_lock lock(mutex);
                if (isClosed) return;
                const auto next = std::exchange(transfer, nullptr);
                lock.unlock();
                if (next) {
                    end(next());
                } else {
                    begun->wait(std::nullopt);
                }
            }
        }

        void close() {
            {
                const std::lock_guard lock(mutex);
                isClosed = true;
            }
            begun->open();
        }

        void end(int outcome) {
            const std::lock_guard lock(mutex);
            if (phase == Phase::givenUp) {
                phase = Phase::free;
                return;
            }
            result = outcome;
            phase = Phase::ended;
            ended->open();
        }
    };

    runtime::Scheduler& scheduler_;
    const std::shared_ptr<State> state_;
};

void BoundedI2C::keepBuses(const std::set<Bus>& buses) {
    const std::lock_guard lock(mutex_);
    kept_ = buses;
    // One that hangs still does when its bus is kept again.
    std::erase_if(lanes_,
                  [this](const auto& lane) { return !kept_.contains(lane.first) && lane.second->isFree(); });
    for (const Bus bus : kept_) {
        if (!lanes_.contains(bus)) lanes_.emplace(bus, std::make_shared<Lane>(scheduler_, bus));
    }
}

std::shared_ptr<BoundedI2C::Lane> BoundedI2C::lane(Bus bus) const {
    const std::lock_guard lock(mutex_);
    return kept_.contains(bus) ? lanes_.at(bus) : nullptr;
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
