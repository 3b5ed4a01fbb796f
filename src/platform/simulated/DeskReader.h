// A whole desk from the root of a JSON tree. Mistakes go to the place; after
// one the desk is not usable.
#pragma once

#include <vector>

#include "platform/simulated/Desk.h"
#include "platform/simulated/DeskFile.h"
#include "platform/simulated/JSONPlace.h"

namespace vantrel::simulated::DeskReader {

Desk read(const JSONPlace& root);
std::vector<DeskFile::Words> vocabulary();

}  // namespace vantrel::simulated::DeskReader
