// The desks on which whoever stands on a simulated one keeps the seam's contract: an
// ordinary one, an empty one, and one whose system lacks what it may lack. A bench is
// made of a desk and has a `platform`.
#pragma once

#include <gtest/gtest.h>

#include "platform/Platform.h"
#include "simulated/DeskBench.h"

namespace vantrel {

template <class Bench>
struct OrdinarySeam {
    platform::Platform& platform() { return bench.platform; }
    Bench bench{simulated::ordinaryDesk()};
};

template <class Bench>
struct EmptySeam {
    platform::Platform& platform() { return bench.platform; }
    Bench bench{simulated::Desk{}};
};

template <class Bench>
struct ReducedSeam {
    static simulated::Desk desk() {
        simulated::Desk desk = simulated::ordinaryDesk();
        for (simulated::DisplayPlan& plan : desk.displays) plan.transferTableCapacity = 0;
        desk.missingSymbols = {"IOAVServiceCreateWithService", "CGSConfigureDisplayEnabled",
                               "DisplayServicesGetBrightness"};
        return desk;
    }
    platform::Platform& platform() { return bench.platform; }
    Bench bench{desk()};
};

template <class Bench>
using SeamBenches = testing::Types<OrdinarySeam<Bench>, EmptySeam<Bench>, ReducedSeam<Bench>>;

}  // namespace vantrel
