#include "macos/fake/FakeMac.h"

#include <algorithm>

#include "macos/fake/FakeRunLoop.h"
#include "runtime/Fatal.h"

namespace vantrel::macos::fake {
namespace {

std::atomic<FakeMac*> alive = nullptr;

}  // namespace

FakeMac::FakeMac(simulated::SimulatedPlatform& computer, runtime::Scheduler& scheduler)
    : desk_(computer.platform(sink_)), runLoop_(std::make_unique<FakeRunLoop>(scheduler)) {
    runtime::require(alive.exchange(this) == nullptr, "two Macs at the same time");
    desk_.displays.onReconfiguration(
        [this, existence = std::weak_ptr(existence_)](platform::DisplayID display, std::uint32_t flags) {
            if (!existence.expired()) announce(display, flags);
        });
}

FakeMac::~FakeMac() {
    runtime::require(listeners_.empty(), "a reconfiguration callback was left behind");
    preferences_.clear();
    properties_.clear();
    runLoop_.reset();
    alive = nullptr;
}

FakeMac& FakeMac::current() {
    FakeMac* mac = alive;
    runtime::require(mac != nullptr, "a function of the Mac was called, and there is none");
    return *mac;
}

void FakeMac::announce(platform::DisplayID display, std::uint32_t flags) {
    std::vector<Listener> listeners;
    {
        const std::lock_guard lock(mutex_);
        listeners = listeners_;
    }
    for (const auto& [callback, info] : listeners) callback(display, flags, info);
}

void FakeMac::addListener(CGDisplayReconfigurationCallBack callback, void* info) {
    const std::lock_guard lock(mutex_);
    listeners_.emplace_back(callback, info);
}

void FakeMac::removeListener(CGDisplayReconfigurationCallBack callback, void* info) {
    const std::lock_guard lock(mutex_);
    const auto removed = std::erase(listeners_, Listener(callback, info));
    runtime::require(removed == 1, "a reconfiguration callback was taken back that nobody registered");
}

os_log_t FakeMac::log(const std::string& subsystem, const std::string& category) {
    const std::lock_guard lock(mutex_);
    logs_.emplace_back(subsystem, category);
    // Counts from 1: a log is never null.
    return reinterpret_cast<os_log_t>(logs_.size());
}

void FakeMac::write(os_log_t log, os_log_type_t type, std::string text) {
    const std::lock_guard lock(mutex_);
    const auto& [subsystem, category] = logs_.at(reinterpret_cast<std::size_t>(log) - 1);
    logged_.push_back({subsystem, category, type, std::move(text)});
}

std::vector<LoggedLine> FakeMac::logged() const {
    const std::lock_guard lock(mutex_);
    return logged_;
}

std::size_t FakeMac::logsMade() const {
    const std::lock_guard lock(mutex_);
    return logs_.size();
}

}  // namespace vantrel::macos::fake
