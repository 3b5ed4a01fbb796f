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
    if (again_) mainLoop_.cancel(*again_);
}

bool GuardDuty::isNeeded() { return !outputs_.isIdle() && desktop_.isThere(); }

void GuardDuty::run() {
    keepLight();
    if (isNeeded()) mainLoop_.run();
}

void GuardDuty::look() {
    keepLight();
    if (!isNeeded()) mainLoop_.quit();
}

void GuardDuty::keepLight() {
    if (again_) mainLoop_.cancel(*again_);
    again_.reset();
    if (outputs_.keepLight()) return;
    again_ = mainLoop_.after(OutputSwitch::pause, [this] {
        again_.reset();
        look();
    });
}

}  // namespace vantrel::linux
