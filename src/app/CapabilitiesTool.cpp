#include "app/CapabilitiesTool.h"

#include <iterator>
#include <string>

#include "app/ExitStatus.h"
#include "ddc/CapabilitiesText.h"
#include "mccs/MonitorCapabilities.h"
#include "mccs/MonitorCapabilitiesJSON.h"

namespace vantrel::app::CapabilitiesTool {

int run(std::istream& input, std::ostream& output) {
    std::string bytes{std::istreambuf_iterator<char>(input), {}};
    if (bytes.ends_with('\n')) {
        bytes.pop_back();
        if (bytes.ends_with('\r')) bytes.pop_back();
    }
    const auto capabilities = mccs::MonitorCapabilities::parse(ddc::capabilitiesText(bytes));
    if (!capabilities) {
        output << "none\n";
        return ExitStatus::nothing;
    }
    output << mccs::MonitorCapabilitiesJSON::encode(*capabilities) << "\n";
    return ExitStatus::success;
}

}  // namespace vantrel::app::CapabilitiesTool
