// A Mac with a simulated desk of monitors: what stands behind the C interfaces of
// the platform in these tests. One at a time.
//
// Threads: as the interfaces allow it; what tests change on the main thread.
// Lifetime: it outlives what uses the interfaces, and the computer outlives it.
#pragma once

#include <CoreGraphics/CoreGraphics.h>
#include <IOKit/IOKitLib.h>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <os/log.h>
#include <string>
#include <utility>
#include <vector>

#include "macos/fake/Calls.h"
#include "platform/Platform.h"
#include "platform/macos/CFHandle.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "runtime/Scheduler.h"

namespace vantrel::macos::fake {

class FakeRunLoop;

struct LoggedLine {
    std::string subsystem;
    std::string category;
    os_log_type_t type;
    std::string text;
    bool operator==(const LoggedLine&) const = default;
};

class FakeMac {
  public:
    FakeMac(simulated::SimulatedPlatform& computer, runtime::Scheduler& scheduler);
    FakeMac(const FakeMac&) = delete;
    FakeMac& operator=(const FakeMac&) = delete;
    ~FakeMac();

    // The one alive; without one the test stops.
    static FakeMac& current();

    // What the desk's own platform offers.
    platform::Platform& desk() { return desk_; }
    Calls& calls() { return calls_; }
    FakeRunLoop& runLoop() { return *runLoop_; }

    // The application's preferences. The objects are held here.
    std::map<std::string, CFHandle<CFTypeRef>>& preferences() { return preferences_; }
    // The main bundle's table of the user's language; nothing: there is no bundle.
    std::optional<std::map<std::string, std::string>>& translations() { return translations_; }
    // What every registry entry shows under a key, instead of what the desk says.
    std::map<std::string, CFHandle<CFTypeRef>>& properties() { return properties_; }

    // Happens once, between the question how many displays there are and the next.
    void beforeListing(std::function<void()> event) { beforeListing_ = std::move(event); }
    void list() {
        if (const auto event = std::exchange(beforeListing_, nullptr)) event();
    }

    // Tells those who registered, at once and on this thread.
    void announce(platform::DisplayID display, std::uint32_t flags);
    void addListener(CGDisplayReconfigurationCallBack callback, void* info);
    void removeListener(CGDisplayReconfigurationCallBack callback, void* info);

    // The unified log.
    os_log_t log(const std::string& subsystem, const std::string& category);
    void write(os_log_t log, os_log_type_t type, std::string text);
    std::vector<LoggedLine> logged() const;
    std::size_t logsMade() const;

  private:
    struct SilentSink : platform::LogSink {
        void write(std::string_view, std::string_view, platform::LogLevel, std::string_view) override {}
    };
    using Listener = std::pair<CGDisplayReconfigurationCallBack, void*>;

    SilentSink sink_;
    platform::Platform desk_;
    Calls calls_;
    std::unique_ptr<FakeRunLoop> runLoop_;
    std::map<std::string, CFHandle<CFTypeRef>> preferences_;
    std::optional<std::map<std::string, std::string>> translations_{std::in_place};
    std::map<std::string, CFHandle<CFTypeRef>> properties_;
    std::function<void()> beforeListing_;
    std::shared_ptr<int> existence_ = std::make_shared<int>(0);

    mutable std::mutex mutex_;
    std::vector<Listener> listeners_;
    std::vector<std::pair<std::string, std::string>> logs_;
    std::vector<LoggedLine> logged_;
};

// Objects of the I/O registry that are held.
std::size_t liveRegistryObjects();

}  // namespace vantrel::macos::fake
