// The operating system's view of the displays: who is online, who they are,
// their colour transfer tables, and changes to the configuration.
//
// Threads: main thread, except vendorNumber, modelNumber and serialNumber,
// which may be called from any thread.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vantrel::platform {

using DisplayID = std::uint32_t;

// Samples from 0 to 1 per channel; the three lists have the same length.
struct TransferTable {
    std::vector<float> red;
    std::vector<float> green;
    std::vector<float> blue;
    bool operator==(const TransferTable&) const = default;
};

class DisplayServices {
  public:
    // A configuration transaction in progress, as the private display-enable
    // function takes it. Ends with completeConfiguration or cancelConfiguration.
    using Configuration = void*;

    // Change flags of a reconfiguration, as the callback receives them.
    static constexpr std::uint32_t beginConfigurationFlag = 1;
    static constexpr std::uint32_t addFlag = 1U << 4;
    static constexpr std::uint32_t removeFlag = 1U << 5;
    using ReconfigurationCallback = std::function<void(DisplayID, std::uint32_t flags)>;

    // A completed change lasts until the user logs out and is not permanent.
    static constexpr std::uint32_t configureForSession = 1;

    virtual ~DisplayServices() = default;

    // In the system's order; empty when the system can't tell.
    virtual std::vector<DisplayID> onlineDisplays() = 0;
    virtual bool isBuiltIn(DisplayID) = 0;
    // Numbers of the EDID; 0 for an unknown display.
    virtual std::uint32_t vendorNumber(DisplayID) = 0;
    virtual std::uint32_t modelNumber(DisplayID) = 0;
    virtual std::uint32_t serialNumber(DisplayID) = 0;
    // The localized name of the screen that this display carries, if any.
    virtual std::optional<std::string> screenName(DisplayID) = 0;

    // Samples per channel that a table can hold; 0 when there is no table.
    virtual std::uint32_t transferTableCapacity(DisplayID) = 0;
    // At most `capacity` samples per channel; nothing when it can't be read.
    virtual std::optional<TransferTable> transferTable(DisplayID, std::uint32_t capacity) = 0;
    virtual void setTransferTable(DisplayID, const TransferTable&) = 0;
    // Gives every display the table that the system's colour settings ask for.
    virtual void restoreColorSyncSettings() = 0;

    // Nothing when the system refuses.
    virtual std::optional<Configuration> beginConfiguration() = 0;
    // True when the system took the change. Ends the transaction either way.
    virtual bool completeConfiguration(Configuration, std::uint32_t option) = 0;
    virtual void cancelConfiguration(Configuration) = 0;

    // Called on the main thread for every phase of every reconfiguration, for
    // the life of the process: there is no way to take a callback back.
    virtual void onReconfiguration(ReconfigurationCallback) = 0;
};

}  // namespace vantrel::platform
