// The part of a desk file that says how a monitor behaves.
#pragma once

#include <optional>
#include <vector>

#include "platform/simulated/DeskFile.h"
#include "platform/simulated/JSONPlace.h"
#include "platform/simulated/Personality.h"

namespace vantrel::simulated {

std::optional<Personality> readPersonality(const JSONPlace& place);
std::vector<DeskFile::Words> personalityVocabulary();

}  // namespace vantrel::simulated
