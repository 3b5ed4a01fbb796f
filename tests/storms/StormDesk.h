// A random desk: one to eight monitors, each with some of the faults that
// monitors have.
#pragma once

#include "platform/simulated/Desk.h"
#include "platform/simulated/Random.h"
#include "storms/Seen.h"

namespace vantrel::storms {

struct StormDesk {
    static StormDesk any(simulated::Random random, Counts& counts);

    simulated::Desk desk;
    // Every external display speaks DDC/CI and differs from all others in
    // vendor, product and serial number, so that nobody can mistake one for another.
    bool isClean = true;
    // Nothing that DDC/CI needs is missing.
    bool hasDDC = true;
};

}  // namespace vantrel::storms
