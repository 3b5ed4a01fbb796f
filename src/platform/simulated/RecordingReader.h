// The part of a desk file that says what a monitor was seen to answer.
#pragma once

#include <optional>
#include <vector>

#include "platform/Transfer.h"
#include "platform/simulated/DeskFile.h"
#include "platform/simulated/JSONPlace.h"

namespace vantrel::simulated::RecordingReader {

std::optional<std::vector<platform::Transfer>> read(const JSONPlace& place);
std::vector<DeskFile::Words> vocabulary();

}  // namespace vantrel::simulated::RecordingReader
