// What became of a desk on an emulated kernel, for programs that judge it: values of
// the monitors, and how often who was asked.
#pragma once

#include <string>

#include "linux/kernel/EmulatedKernel.h"

namespace vantrel::test {

// JSON: "displays" with their "id", "connector", "node", "values" of VCP codes and
// "counters"; "strayWrites".
std::string kernelReport(EmulatedKernel& kernel, const simulated::Desk& desk);

}  // namespace vantrel::test
