#include "views/DisabledCard.h"

#include "views/Card.h"
#include "views/CardHeader.h"
#include "views/TurnOnButton.h"

namespace vantrel::views {

ui::Node disabledCard(const Environment& environment, const persistence::DisabledDisplay& entry) {
    return card({
                    cardHeader({.title = entry.name,
                                .subtitle = environment.translated("Mac output off"),
                                .symbol = "display.trianglebadge.exclamationmark",
                                .accessory = {turnOnButton(environment, entry)}}),
                })
        .named(entry.name)
        .withContextMenu({environment.translated("Forget This Monitor")},
                         [environment, entry](std::size_t) { environment.manager.forget(entry); });
}

}  // namespace vantrel::views
