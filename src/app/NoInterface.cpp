// A program without a toolkit to draw with.
#include "app/ExitStatus.h"
#include "app/Interface.h"

namespace vantrel::app {

int Interface::run(const CommandLine&, std::optional<simulated::Desk>, std::ostream& errors) {
    errors << "vantrel: this build has no interface; --probe prints what the monitors answer (see --help)\n";
    return ExitStatus::mistake;
}

int Interface::draw(const CommandLine&, std::ostream&, std::ostream& errors) {
    errors << "vantrel: this build has no interface to draw\n";
    return ExitStatus::mistake;
}

}  // namespace vantrel::app
