// The part of a desk file that says how a monitor behaves.
#pragma once

#include <optional>
#include <vector>

#include "platform/simulated/DeskFile.h"
#include "platform/simulated/JSONPlace.h"
#include "platform/simulated/Personality.h"

namespace vantrel::simulated::PersonalityReader {

std::optional<Personality> read(const JSONPlace& place);
std::vector<DeskFile::Words> vocabulary();

}  // namespace vantrel::simulated::PersonalityReader
