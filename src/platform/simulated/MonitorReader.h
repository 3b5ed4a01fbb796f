// The part of a desk file that says what a monitor has.
#pragma once

#include <optional>
#include <vector>

#include "platform/simulated/Desk.h"
#include "platform/simulated/DeskFile.h"
#include "platform/simulated/JSONPlace.h"

namespace vantrel::simulated::MonitorReader {

std::optional<MonitorPlan> read(const JSONPlace& place);
std::vector<DeskFile::Words> vocabulary();

}  // namespace vantrel::simulated::MonitorReader
