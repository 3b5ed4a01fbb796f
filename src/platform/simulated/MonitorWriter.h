// The part of a desk file that says what a monitor has, written.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>

#include "platform/simulated/Desk.h"

namespace vantrel::simulated::MonitorWriter {

// As DeskWriter writes it.
nlohmann::ordered_json object(const MonitorPlan& monitor);
// A text where one shows all of the bytes.
nlohmann::ordered_json bytes(const std::string& bytes);

}  // namespace vantrel::simulated::MonitorWriter
