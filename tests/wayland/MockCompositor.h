// A Wayland compositor without a screen, on a thread of its own, that the test tells how
// to misbehave.
//
// Threads: the test's; what run() is given runs on the compositor's.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>
#include <wayland-server.h>

#include "support/PeerThread.h"
#include "support/TemporaryFolder.h"
#include "wayland/MockDesk.h"
#include "wayland/MockKDEManagement.h"
#include "wayland/MockOutputs.h"
#include "wayland/MockWlrManagement.h"

namespace vantrel::wayland {

class MockCompositor {
  public:
    // Which protocols it has.
    struct Protocols {
        std::uint32_t outputVersion = 4;
        bool hasGammaControl = true;
        bool hasWlr = true;
        bool hasKDE = false;
    };

    MockCompositor(const Protocols& protocols, const std::vector<MockMonitor>& monitors);
    ~MockCompositor() { die(); }
    MockCompositor(const MockCompositor&) = delete;
    MockCompositor& operator=(const MockCompositor&) = delete;

    // For WAYLAND_DISPLAY.
    const std::string& socket() const { return socket_; }

    // Returns when it has been done.
    void run(std::function<void(MockDesk& desk)> work);
    // run(), and tells the clients of what has changed then.
    void change(std::function<void(MockDesk& desk)> work);
    // A copy.
    MockMonitor monitor(const std::string& name);
    void finishWlr();
    void seizeControl(const std::string& name);

    // Reads nothing from its clients until it goes on.
    void pause() { thread_.pause(); }
    void goOn() { thread_.goOn(); }
    // Closes all connections, without a word.
    void die();

  private:
    void serve();

    test::TemporaryFolder folder_;
    const std::string socket_;
    MockDesk desk_;
    std::optional<MockOutputs> outputs_;
    std::optional<MockWlrManagement> wlr_;
    std::optional<MockKDEManagement> kde_;
    wl_event_source* workSource_ = nullptr;
    test::PeerThread thread_;
};

}  // namespace vantrel::wayland
