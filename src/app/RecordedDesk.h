// A desk to simulate, from a recording of the real one: what `--record` keeps.
#pragma once

#include "platform/Platform.h"
#include "platform/recording/Recording.h"
#include "platform/simulated/Desk.h"

namespace vantrel::app::RecordedDesk {

// `platform` is the one that the recording was made through: it is asked who is online,
// and which display each link belongs to. A link that belongs to none gets a display
// whose output is off. Main thread; no transfers.
simulated::Desk make(platform::Platform& platform, const recording::Recording& recording);

}  // namespace vantrel::app::RecordedDesk
