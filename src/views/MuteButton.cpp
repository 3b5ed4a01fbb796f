#include "views/MuteButton.h"

#include "ui/Nodes.h"

namespace vantrel::views {
namespace {

// Values of VCP 8D (MCCS, Audio Mute).
constexpr std::uint16_t muted = 1;
constexpr std::uint16_t unmuted = 2;

}  // namespace

ui::Node muteButton(const Environment& environment, const Environment::Display& display,
                    const std::shared_ptr<model::VCPFeature>& mute) {
    const bool isMuted = mute->current.get() == muted;
    return ui::symbolButton(isMuted ? "speaker.slash.fill" : "speaker.fill",
                            environment.translated(isMuted ? "Unmute" : "Mute"))
        .onPress([display, mute, isMuted] { display->set(*mute, isMuted ? unmuted : muted); });
}

}  // namespace vantrel::views
