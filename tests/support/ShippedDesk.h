// The desks that come with the program, for tests. A mistake in one stops the test.
#pragma once

#include <string_view>
#include <utility>
#include <variant>

#include "platform/simulated/DeskFile.h"
#include "platform/simulated/ShippedDesks.h"
#include "runtime/Fatal.h"

namespace vantrel::test {

inline simulated::Desk shippedDesk(std::string_view name) {
    auto desk = simulated::DeskFile::readText(simulated::ShippedDesks::text(name).value(), name);
    if (const auto* error = std::get_if<simulated::DeskFileError>(&desk)) runtime::fatal(error->line());
    return std::get<simulated::Desk>(std::move(desk));
}

}  // namespace vantrel::test
