#include "platform/linux/DesktopChoice.h"

#include <utility>

#include "platform/linux/NoDesktop.h"

namespace vantrel::linux {
namespace {

enum class Use { none, listed, tables, switching };

Use useOf(Desktop& desktop) {
    if (desktop.canSwitch()) return Use::switching;
    return desktop.hasTables() ? Use::tables : Use::listed;
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
