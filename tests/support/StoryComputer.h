// The computer of a story, with a desk of simulated monitors in virtual time: what happens to
// it, whatever its platform is. Displays go by the desk's numbers here, and by its platform's
// own in the program.
// Threads: main thread. Lifetime: it outlives what uses its platform.
#pragma once

#include <memory>
#include <optional>

#include "platform/Platform.h"
#include "platform/simulated/Desk.h"
#include "platform/simulated/SimulatedDisplayServices.h"
#include "platform/simulated/SimulatedMonitor.h"
#include "platform/simulated/VirtualTime.h"
#include "support/RecordingLogSink.h"

namespace vantrel::test {

class StoryComputer {
  public:
    using DisplayID = platform::DisplayID;

    virtual ~StoryComputer() = default;

    virtual simulated::VirtualTime& time() = 0;
    virtual platform::Platform& platform() = 0;
    virtual const RecordingLogSink& log() const = 0;
    // The program has ended and is about to begin again.
    virtual void startAgain() = 0;

    // What the program calls a display of the desk.
    virtual DisplayID id(DisplayID display) const = 0;
    virtual simulated::SimulatedMonitor& monitor(DisplayID display) = 0;
    virtual bool hasPicture(DisplayID display) = 0;
    virtual std::optional<platform::TransferTable> table(DisplayID display) = 0;
    // What the program has taken and not given back.
    virtual std::size_t liveServices() const = 0;

    virtual void plug(DisplayID display) = 0;
    virtual void unplug(DisplayID display) = 0;
    virtual void openLid() = 0;
    virtual void closeLid() = 0;
    virtual void sleep() = 0;
    virtual void wake() = 0;
    // How the system refuses to turn outputs off or on from now on, as far as it has a choice.
    virtual void refuse(simulated::Refusal refusal) = 0;
};

using MakeStoryComputer = std::unique_ptr<StoryComputer> (*)(simulated::Desk);

template <class Computer>
std::unique_ptr<StoryComputer> makeStoryComputer(simulated::Desk desk) {
    return std::make_unique<Computer>(std::move(desk));
}

}  // namespace vantrel::test
