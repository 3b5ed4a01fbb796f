// A system that the program knows no way through to real monitors on.
#include "app/ExitStatus.h"
#include "app/ThisComputer.h"

namespace vantrel::app {

std::unique_ptr<Computer> ThisComputer::make(runtime::Scheduler&, runtime::MainLoop&) { return nullptr; }

int ThisComputer::guardOutputs() { return ExitStatus::nothing; }

bool ThisComputer::isKnown() { return false; }

}  // namespace vantrel::app
