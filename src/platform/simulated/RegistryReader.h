// The part of a desk file that says what the registry shows.
#pragma once

#include <optional>
#include <vector>

#include "platform/simulated/Desk.h"
#include "platform/simulated/DeskFile.h"
#include "platform/simulated/JSONPlace.h"

namespace vantrel::simulated::RegistryReader {

std::optional<std::vector<RegistryEntryPlan>> read(const JSONPlace& place,
                                                   const std::vector<DisplayPlan>& displays);
std::vector<DeskFile::Words> vocabulary();

}  // namespace vantrel::simulated::RegistryReader
