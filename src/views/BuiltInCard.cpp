#include "views/BuiltInCard.h"

#include "views/Card.h"
#include "views/CardHeader.h"
#include "views/ValueSlider.h"

namespace vantrel::views {

ui::Node builtInCard(const Environment& environment, const std::shared_ptr<model::BuiltInDisplay>& display) {
    return card({
        cardHeader({.title = environment.translated("Built-in Display"),
                    .subtitle = environment.translated("MacBook"),
                    .symbol = "laptopcomputer"}),
        valueSlider({
            .symbol = "sun.max.fill",
            .value = static_cast<double>(display->brightness()),
            .minimum = 0,
            .maximum = 1,
            .format = Format::percent(),
            .name = environment.translated("Brightness"),
            .onChange = [display](double level) { display->setBrightness(static_cast<float>(level)); },
        }),
    });
}

}  // namespace vantrel::views
