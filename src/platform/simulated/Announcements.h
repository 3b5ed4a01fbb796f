// Tells the program what happened to the computer, as work of the main loop.
//
// Order: as announced; of one announcement, callbacks in the order of registration.
// Threads: main thread. Work that still waits when this goes is dropped.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "platform/DisplayServices.h"
#include "runtime/MainLoop.h"

namespace vantrel::simulated {

class Announcements {
  public:
    using ReconfigurationCallback = platform::DisplayServices::ReconfigurationCallback;

    // The loop must outlive it.
    explicit Announcements(runtime::MainLoop& mainLoop) : mainLoop_(mainLoop) {}
    Announcements(const Announcements&) = delete;
    Announcements& operator=(const Announcements&) = delete;

    void onReconfiguration(ReconfigurationCallback callback);
    void onWake(std::function<void()> callback);

    // A begin phase and then a phase with these flags.
    void reconfiguration(platform::DisplayID display, std::uint32_t flags);
    void wake();

    // `work` for the loop, which does nothing once this has gone. Any thread may
    // call it and post the result.
    std::function<void()> whileItLasts(std::function<void()> work) const;

  private:
    runtime::MainLoop& mainLoop_;
    std::vector<ReconfigurationCallback> reconfigurationCallbacks_;
    std::vector<std::function<void()>> wakeCallbacks_;
    std::shared_ptr<int> existence_ = std::make_shared<int>(0);
};

}  // namespace vantrel::simulated
