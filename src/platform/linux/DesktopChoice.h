// Which of the desktops that answer is the one to work with: GNOME's compositor speaks
// Wayland, but lets nobody change its outputs there; it does on D-Bus.
// Threads: main thread.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/linux/Desktop.h"

namespace vantrel::linux::DesktopChoice {

// Gives nothing where no such desktop is.
using Opener = std::function<std::unique_ptr<Desktop>()>;

// The first that can turn outputs off and on, or else the first with a way to a transfer
// table, or else the first; without any, a NoDesktop. Opened in this order, and none after
// one that can turn outputs off; those that aren't chosen are closed again.
std::unique_ptr<Desktop> choose(const std::vector<Opener>& openers);

}  // namespace vantrel::linux::DesktopChoice
