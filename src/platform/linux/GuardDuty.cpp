#include "platform/linux/GuardDuty.h"

namespace vantrel::linux {

GuardDuty::GuardDuty(Desktop& desktop, Session& session, OutputSwitch& outputs, runtime::MainLoop& mainLoop)
    : desktop_(desktop), session_(session), outputs_(outputs), mainLoop_(mainLoop) {
    desktop_.onChange([this] { look(); });
    session_.onLid([this] { look(); });
}

GuardDuty::~GuardDuty() {
    desktop_.onChange({});
    session_.onLid({});
}

bool GuardDuty::isNeeded() { return !outputs_.isIdle() && !desktop_.outputs().empty(); }

void GuardDuty::run() {
    outputs_.keepLight();
    if (isNeeded()) mainLoop_.run();
}

void GuardDuty::look() {
    outputs_.keepLight();
    if (!isNeeded()) mainLoop_.quit();
}

}  // namespace vantrel::linux
