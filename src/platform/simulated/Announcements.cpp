#include "platform/simulated/Announcements.h"

#include <cstddef>

namespace vantrel::simulated {
namespace {

// A callback may register another one, which hears of it too.
template <class Callback, class... Arguments>
void callAll(const std::vector<Callback>& callbacks, Arguments... arguments) {
    for (std::size_t index = 0; index < callbacks.size(); ++index) {
        const Callback callback = callbacks[index];
        callback(arguments...);
    }
}

}  // namespace

void Announcements::onReconfiguration(ReconfigurationCallback callback) {
    reconfigurationCallbacks_.push_back(std::move(callback));
}

void Announcements::onWake(std::function<void()> callback) { wakeCallbacks_.push_back(std::move(callback)); }

void Announcements::reconfiguration(platform::DisplayID display, std::uint32_t flags) {
    for (const std::uint32_t phase : {platform::DisplayServices::beginConfigurationFlag, flags}) {
        mainLoop_.post(
            whileItLasts([this, display, phase] { callAll(reconfigurationCallbacks_, display, phase); }));
    }
}

void Announcements::wake() {
    mainLoop_.post(whileItLasts([this] { callAll(wakeCallbacks_); }));
}

std::function<void()> Announcements::whileItLasts(std::function<void()> work) const {
    return [work = std::move(work), existence = std::weak_ptr(existence_)] {
        if (!existence.expired()) work();
    };
}

}  // namespace vantrel::simulated
