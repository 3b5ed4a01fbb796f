#include "platform/macos/MacDisplayServices.h"

#include <CoreGraphics/CoreGraphics.h>
#include <algorithm>
#include <utility>

#include "platform/macos/MacScreens.h"

namespace vantrel::macos {

using platform::DisplayID;
using platform::TransferTable;

static_assert(MacDisplayServices::beginConfigurationFlag == kCGDisplayBeginConfigurationFlag);
static_assert(MacDisplayServices::addFlag == kCGDisplayAddFlag);
static_assert(MacDisplayServices::removeFlag == kCGDisplayRemoveFlag);
static_assert(MacDisplayServices::configureForSession == kCGConfigureForSession);

struct MacDisplayServices::Listeners : std::enable_shared_from_this<Listeners> {
    explicit Listeners(runtime::MainLoop::Poster mainLoop) : poster(std::move(mainLoop)) {}

    static void reconfigured(CGDirectDisplayID display, CGDisplayChangeSummaryFlags flags, void* listeners) {
        const auto* self = static_cast<Listeners*>(listeners);
        // What still waits when the listeners are gone is for nobody.
        self->poster.post([weak = self->weak_from_this(), display, flags] {
            if (const auto listeners = weak.lock()) listeners->call(display, flags);
        });
    }

    // A callback may register another one, which hears of it too.
    void call(DisplayID display, std::uint32_t flags) const {
        for (std::size_t index = 0; index < callbacks.size(); ++index) {
            const ReconfigurationCallback callback = callbacks[index];
            callback(display, flags);
        }
    }

    runtime::MainLoop::Poster poster;
    std::vector<ReconfigurationCallback> callbacks;
};

namespace {

// The number that stands for a display that isn't there.
std::uint32_t known(std::uint32_t number) { return number == 0xFFFFFFFF ? 0 : number; }

}  // namespace

MacDisplayServices::MacDisplayServices(runtime::MainLoop& mainLoop)
    : listeners_(std::make_shared<Listeners>(mainLoop.poster())) {}

MacDisplayServices::~MacDisplayServices() {
    if (isRegistered_) CGDisplayRemoveReconfigurationCallback(&Listeners::reconfigured, listeners_.get());
}

std::vector<DisplayID> MacDisplayServices::onlineDisplays() {
    std::uint32_t count = 0;
    if (CGGetOnlineDisplayList(0, nullptr, &count) != kCGErrorSuccess) return {};
    std::vector<DisplayID> displays(count);
    std::uint32_t listed = 0;
    if (CGGetOnlineDisplayList(count, displays.data(), &listed) != kCGErrorSuccess) return {};
    // Displays may come and go between the two calls.
    displays.resize(std::min(count, listed));
    return displays;
}

bool MacDisplayServices::isBuiltIn(DisplayID display) { return CGDisplayIsBuiltin(display) != 0; }

std::uint32_t MacDisplayServices::vendorNumber(DisplayID display) {
    return known(CGDisplayVendorNumber(display));
}

std::uint32_t MacDisplayServices::modelNumber(DisplayID display) {
    return known(CGDisplayModelNumber(display));
}

std::uint32_t MacDisplayServices::serialNumber(DisplayID display) {
    return known(CGDisplaySerialNumber(display));
}

std::optional<std::string> MacDisplayServices::screenName(DisplayID display) {
    return MacScreens::name(display);
}

std::uint32_t MacDisplayServices::transferTableCapacity(DisplayID display) {
    return CGDisplayGammaTableCapacity(display);
}

std::optional<TransferTable> MacDisplayServices::transferTable(DisplayID display, std::uint32_t capacity) {
    const std::vector<float> channel(capacity);
    TransferTable table{channel, channel, channel};
    std::uint32_t samples = 0;
    const CGError error = CGGetDisplayTransferByTable(display, capacity, table.red.data(), table.green.data(),
                                                      table.blue.data(), &samples);
    if (error != kCGErrorSuccess) return std::nullopt;
    for (auto* values : {&table.red, &table.green, &table.blue}) values->resize(std::min(samples, capacity));
    return table;
}

void MacDisplayServices::setTransferTable(DisplayID display, const TransferTable& table) {
    const std::size_t samples = table.red.size();
    if (table.green.size() != samples || table.blue.size() != samples) return;
    CGSetDisplayTransferByTable(display, static_cast<std::uint32_t>(samples), table.red.data(),
                                table.green.data(), table.blue.data());
}

void MacDisplayServices::restoreColorSyncSettings() { CGDisplayRestoreColorSyncSettings(); }

std::optional<MacDisplayServices::Configuration> MacDisplayServices::beginConfiguration() {
    CGDisplayConfigRef configuration = nullptr;
    if (CGBeginDisplayConfiguration(&configuration) != kCGErrorSuccess) return std::nullopt;
    return configuration;
}

bool MacDisplayServices::completeConfiguration(Configuration configuration, std::uint32_t option) {
    return CGCompleteDisplayConfiguration(static_cast<CGDisplayConfigRef>(configuration),
                                          static_cast<CGConfigureOption>(option)) == kCGErrorSuccess;
}

void MacDisplayServices::cancelConfiguration(Configuration configuration) {
    CGCancelDisplayConfiguration(static_cast<CGDisplayConfigRef>(configuration));
}

void MacDisplayServices::onReconfiguration(ReconfigurationCallback callback) {
    listeners_->callbacks.push_back(std::move(callback));
    if (isRegistered_) return;
    isRegistered_ = CGDisplayRegisterReconfigurationCallback(&Listeners::reconfigured, listeners_.get()) ==
                    kCGErrorSuccess;
}

}  // namespace vantrel::macos
