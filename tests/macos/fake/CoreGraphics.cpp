// The displays of the desk as the window server shows them.
#include <CoreGraphics/CoreGraphics.h>
#include <algorithm>

#include "macos/fake/FakeMac.h"
#include "runtime/Fatal.h"

namespace vantrel::macos::fake {
namespace {

constexpr std::uint32_t noDisplay = 0xFFFFFFFF;

bool fails(const char* function) { return FakeMac::current().calls().fails(function); }

platform::DisplayServices& displays() { return FakeMac::current().desk().displays; }

// The desk says 0 for a display that it doesn't have.
std::uint32_t number(const char* function, std::uint32_t ofTheDesk) {
    return fails(function) || ofTheDesk == 0 ? noDisplay : ofTheDesk;
}

}  // namespace
}  // namespace vantrel::macos::fake

using namespace vantrel::macos::fake;
using vantrel::platform::TransferTable;

extern "C" {

CGError CGGetOnlineDisplayList(uint32_t most, CGDirectDisplayID* list, uint32_t* count) {
    if (fails("CGGetOnlineDisplayList")) {
        // What a failure leaves behind means nothing.
        *count = 2;
        return kCGErrorFailure;
    }
    if (list != nullptr) FakeMac::current().list();
    const auto online = displays().onlineDisplays();
    if (list == nullptr) {
        *count = static_cast<uint32_t>(online.size());
    } else {
        *count = std::min(most, static_cast<uint32_t>(online.size()));
        std::copy_n(online.begin(), *count, list);
    }
    return kCGErrorSuccess;
}

boolean_t CGDisplayIsBuiltin(CGDirectDisplayID display) {
    return !fails("CGDisplayIsBuiltin") && displays().isBuiltIn(display);
}
uint32_t CGDisplayVendorNumber(CGDirectDisplayID display) {
    return number("CGDisplayVendorNumber", displays().vendorNumber(display));
}
uint32_t CGDisplayModelNumber(CGDirectDisplayID display) {
    return number("CGDisplayModelNumber", displays().modelNumber(display));
}
uint32_t CGDisplaySerialNumber(CGDirectDisplayID display) {
    return number("CGDisplaySerialNumber", displays().serialNumber(display));
}

uint32_t CGDisplayGammaTableCapacity(CGDirectDisplayID display) {
    return fails("CGDisplayGammaTableCapacity") ? 0 : displays().transferTableCapacity(display);
}

CGError CGGetDisplayTransferByTable(CGDirectDisplayID display, uint32_t capacity, CGGammaValue* red,
                                    CGGammaValue* green, CGGammaValue* blue, uint32_t* samples) {
    if (fails("CGGetDisplayTransferByTable")) return kCGErrorFailure;
    const auto table = displays().transferTable(display, capacity);
    if (!table) return kCGErrorIllegalArgument;
    std::copy(table->red.begin(), table->red.end(), red);
    std::copy(table->green.begin(), table->green.end(), green);
    std::copy(table->blue.begin(), table->blue.end(), blue);
    *samples = static_cast<uint32_t>(table->red.size());
    return kCGErrorSuccess;
}

CGError CGSetDisplayTransferByTable(CGDirectDisplayID display, uint32_t samples, const CGGammaValue* red,
                                    const CGGammaValue* green, const CGGammaValue* blue) {
    if (fails("CGSetDisplayTransferByTable")) return kCGErrorFailure;
    displays().setTransferTable(display,
                                {{red, red + samples}, {green, green + samples}, {blue, blue + samples}});
    return kCGErrorSuccess;
}

void CGDisplayRestoreColorSyncSettings(void) {
    if (!fails("CGDisplayRestoreColorSyncSettings")) displays().restoreColorSyncSettings();
}

CGError CGBeginDisplayConfiguration(CGDisplayConfigRef* configuration) {
    if (fails("CGBeginDisplayConfiguration")) return kCGErrorFailure;
    const auto begun = displays().beginConfiguration();
    if (!begun) return kCGErrorFailure;
    *configuration = static_cast<CGDisplayConfigRef>(*begun);
    return kCGErrorSuccess;
}
CGError CGCancelDisplayConfiguration(CGDisplayConfigRef configuration) {
    displays().cancelConfiguration(configuration);
    return kCGErrorSuccess;
}
CGError CGCompleteDisplayConfiguration(CGDisplayConfigRef configuration, CGConfigureOption option) {
    vantrel::runtime::require(option == kCGConfigureForSession,
                              "a change that goes with the program, or stays for ever");
    if (fails("CGCompleteDisplayConfiguration")) {
        // The transaction has ended all the same.
        displays().cancelConfiguration(configuration);
        return kCGErrorFailure;
    }
    return displays().completeConfiguration(configuration, option) ? kCGErrorSuccess : kCGErrorFailure;
}

CGError CGDisplayRegisterReconfigurationCallback(CGDisplayReconfigurationCallBack callback, void* info) {
    if (fails("CGDisplayRegisterReconfigurationCallback")) return kCGErrorFailure;
    FakeMac::current().addListener(callback, info);
    return kCGErrorSuccess;
}
CGError CGDisplayRemoveReconfigurationCallback(CGDisplayReconfigurationCallBack callback, void* info) {
    FakeMac::current().removeListener(callback, info);
    return kCGErrorSuccess;
}

}  // extern "C"
