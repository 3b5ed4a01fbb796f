// Any bytes are a desk that keeps its promises and can be written again, or one mistake
// told in one line.
#include <algorithm>
#include <cstdint>
#include <set>
#include <string_view>

#include "platform/simulated/DeskFile.h"
#include "platform/simulated/DeskWriter.h"
#include "runtime/Fatal.h"

using namespace vantrel;
using namespace vantrel::simulated;

namespace {

bool contains(const std::vector<std::uint16_t>& inputs, std::uint16_t input) {
    return std::find(inputs.begin(), inputs.end(), input) != inputs.end();
}

void checkOccurrence(const Occurrence& occurrence) {
    runtime::require(occurrence.probability >= 0 && occurrence.probability <= 1,
                     "a probability is from 0 to 1");
}

void checkMonitor(const MonitorPlan& monitor) {
    const Personality& personality = monitor.personality;
    runtime::require(personality.writesNeeded > 0, "a write has an effect at last");
    runtime::require(personality.fragmentSize > 0 && personality.fragmentSize <= 32,
                     "a fragment has its bytes");
    for (const Duration duration :
         {personality.replyLatency, personality.capabilitiesLatency, personality.latencyJitter,
          personality.byteTime, personality.writesRevertAfter, personality.inputSwitch.time,
          personality.inputSwitch.pulse, personality.inputSwitch.pulseAfter, personality.deafAfterWake}) {
        runtime::require(duration >= Duration::zero() && duration <= std::chrono::hours(24),
                         "time goes forward");
    }
    checkOccurrence(personality.nak);
    checkOccurrence(personality.writesLost);
    for (const ReplyFault& fault : personality.replyFaults) {
        checkOccurrence(fault.when);
        runtime::require(fault.bytes <= 11, "a fault is within the reply");
    }
    if (monitor.capabilities)
        runtime::require(monitor.capabilities->size() <= 0xFFFF, "an offset has 16 bits");
    runtime::require(monitor.recording.size() <= MonitorPlan::mostTransfers, "a recording has an end");
    Duration before{0};
    for (const platform::Transfer& transfer : monitor.recording) {
        runtime::require(transfer.length <= MonitorPlan::longestTransfer, "a transfer has an end");
        const bool hasBytes =
            transfer.status == 0 || transfer.direction == platform::Transfer::Direction::write;
        runtime::require(transfer.bytes.size() == (hasBytes ? transfer.length : 0),
                         "a transfer has its bytes");
        runtime::require(transfer.at >= before && transfer.took >= Duration::zero(), "time goes forward");
        before = transfer.at;
    }
    if (!monitor.inputs) return;
    const InputPlan& inputs = *monitor.inputs;
    runtime::require(!monitor.features.contains(0x60), "VCP code 60 comes from the inputs");
    runtime::require(contains(inputs.available, inputs.shown), "the shown input is there");
    runtime::require(contains(inputs.available, inputs.computer), "the computer's input is there");
}

void checkDesk(const Desk& desk) {
    std::set<platform::DisplayID> ids;
    int builtIn = 0;
    for (const DisplayPlan& display : desk.displays) {
        runtime::require(display.id != 0, "0 is no display");
        runtime::require(ids.insert(display.id).second, "ids are one to one");
        builtIn += display.isBuiltIn ? 1 : 0;
        if (display.monitor) checkMonitor(*display.monitor);
    }
    runtime::require(builtIn <= 1, "a computer has one panel");
    for (const RegistryEntryPlan& entry : desk.registry) {
        const bool isOther = entry.kind == RegistryEntryPlan::Kind::other;
        runtime::require(isOther || ids.contains(entry.display), "the registry shows the desk's displays");
    }
}

// Whatever a desk file can say, but for personalities, a recorded desk can.
void checkWriter(Desk desk) {
    for (DisplayPlan& display : desk.displays) {
        if (display.monitor) display.monitor->personality = Personality();
    }
    const DeskFileResult read = DeskFile::readText(DeskWriter::text(desk), "x.json");
    const auto* again = std::get_if<Desk>(&read);
    runtime::require(again != nullptr && *again == desk, "a desk that is written reads the same");
}

void checkError(const DeskFileError& error) {
    runtime::require(!error.reason.empty(), "a mistake has a reason");
    const std::string line = error.line();
    const auto isPrintable = [](char character) { return character >= 0x20 && character < 0x7F; };
    runtime::require(std::all_of(line.begin(), line.end(), isPrintable), "a mistake is one printable line");
    runtime::require(line.size() < 4096, "a mistake is short");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const DeskFileResult result = DeskFile::readText(text, "x.json");
    if (const auto* desk = std::get_if<Desk>(&result)) {
        checkDesk(*desk);
        checkWriter(*desk);
    }
    if (const auto* error = std::get_if<DeskFileError>(&result)) checkError(*error);
    return 0;
}
