// The process that keeps a light on a Linux desktop while outputs are turned off there.
#pragma once

namespace vantrel::app::LinuxGuard {

// Leaves its parent, goes on guard unless somebody is already, says so on the standard
// output, and stays until no output is turned off any more or the desktop has gone. Gives
// the exit status. To be called before the process has threads.
int run();

}  // namespace vantrel::app::LinuxGuard
