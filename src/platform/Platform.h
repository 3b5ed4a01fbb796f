// Everything that the program takes from the operating system, bundled. `app`
// makes one and hands it down; a class takes only the members that it uses.
//
// Lifetime: the platform outlives every model, worker and thread. Whoever owns
// it calls scheduler.finishThreads() before it goes.
#pragma once

#include "platform/BaseTables.h"
#include "platform/Defaults.h"
#include "platform/DisplayServices.h"
#include "platform/Localizer.h"
#include "platform/Log.h"
#include "platform/LoginItem.h"
#include "platform/Obstacles.h"
#include "platform/PrivateFunctions.h"
#include "platform/Registry.h"
#include "platform/Workspace.h"
#include "runtime/MainLoop.h"
#include "runtime/Scheduler.h"

namespace vantrel::platform {

struct Platform {
    runtime::Scheduler& scheduler;
    runtime::MainLoop& mainLoop;
    DisplayServices& displays;
    Registry& registry;
    PrivateFunctions& functions;
    BaseTables& baseTables;
    Defaults& defaults;
    Workspace& workspace;
    Localizer& localizer;
    LoginItem& loginItem;
    Obstacles& obstacles;
    Log log;
};

}  // namespace vantrel::platform
