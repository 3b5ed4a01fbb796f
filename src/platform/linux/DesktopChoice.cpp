#include "platform/linux/DesktopChoice.h"

#include <algorithm>
#include <utility>

#include "platform/linux/NoDesktop.h"

namespace vantrel::linux {
namespace {

bool hasTables(Desktop& desktop) {
    const auto outputs = desktop.outputs();
    return std::any_of(outputs.begin(), outputs.end(),
                       [](const Desktop::Output& output) { return output.tableCapacity > 0; });
}

enum class Use { none, listed, tables, switching };

Use useOf(Desktop& desktop) {
    if (desktop.canSwitch()) return Use::switching;
    return hasTables(desktop) ? Use::tables : Use::listed;
}

}  // namespace

std::unique_ptr<Desktop> DesktopChoice::choose(const std::vector<Opener>& openers) {
    std::unique_ptr<Desktop> chosen = std::make_unique<NoDesktop>();
    Use use = Use::none;
    for (const Opener& open : openers) {
        auto desktop = open();
        if (!desktop) continue;
        const Use offered = useOf(*desktop);
        if (offered > use) {
            use = offered;
            chosen = std::move(desktop);
        }
        if (use == Use::switching) break;
    }
    return chosen;
}

}  // namespace vantrel::linux
