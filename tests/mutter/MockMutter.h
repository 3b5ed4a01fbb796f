// org.gnome.Mutter.DisplayConfig on a thread of its own, which takes layouts by Mutter's
// rules, or misbehaves when it is told to.
//
// Threads: the test's; what run() is given runs on the service's.
#pragma once

#include <functional>
#include <string>
#include <systemd/sd-bus.h>
#include <vector>

#include "mutter/MockScreen.h"
#include "support/PeerThread.h"

namespace vantrel::mutter {

class MockMutter {
  public:
    struct Desk {
        std::vector<MockScreen> screens;
        std::vector<MockScreen::Logical> logical;
        std::uint32_t serial = 10;
        std::uint32_t layoutMode = 1;
        bool canChangeLayoutMode = false;
        bool needsOneScale = false;
        bool isApplyAllowed = true;
        bool hasTables = true;

        // What happens to the next configurations.
        int refusals = 0;
        int interruptions = 0;
        bool isSilent = false;
        // Configurations that came this far, and what the last one said.
        int configurations = 0;
        std::uint32_t lastMethod = 0;
        std::uint32_t lastLayoutMode = 0;
        std::vector<std::string> lastProperties;

        MockScreen& screen(const std::string& connector);
        // The part of the desktop that it shows; none when it is dark.
        const MockScreen::Logical* find(const std::string& connector) const;
        const MockScreen::Mode* mode(const std::string& connector, const std::string& id) const;
    };

    explicit MockMutter(Desk desk);
    ~MockMutter();
    MockMutter(const MockMutter&) = delete;
    MockMutter& operator=(const MockMutter&) = delete;

    // Returns when it has been done.
    void run(std::function<void(Desk& desk)> work);
    // run(), then tells everybody that the monitors are others.
    void change(std::function<void(Desk& desk)> work);
    // A copy.
    Desk desk();
    // Goes from the bus, and comes back.
    void leave();
    void comeBack();
    void pause() { thread_.pause(); }
    void goOn() { thread_.goOn(); }

  private:
    struct Methods;

    void serve();
    void announce();

    Desk desk_;
    sd_bus* bus_ = nullptr;
    test::PeerThread thread_;
};

}  // namespace vantrel::mutter
