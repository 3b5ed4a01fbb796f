#include "views/SoftwareControls.h"

#include "ui/Nodes.h"
#include "views/ValueSlider.h"

namespace vantrel::views {

ui::Node softwareControls(const Environment& environment, const Environment::Display& display) {
    const model::SoftwareDimmer& dimmer = display->dimmer();
    const std::string brightness = environment.translated("Brightness (software)");
    const std::string contrast = environment.translated("Contrast (software)");
    // The dimmer stores and applies with each set.
    return ui::column(
               10,
               {
                   valueSlider({
                                   .symbol = "sun.max.fill",
                                   .value = dimmer.brightness(),
                                   .minimum = 0,
                                   .maximum = 1,
                                   .format = Format::percent(),
                                   .name = brightness,
                                   .help = brightness,
                                   .onChange = [display](double v) { display->dimmer().setBrightness(v); },
                               })
                       .key("brightness"),
                   valueSlider({
                                   .symbol = "circle.lefthalf.filled",
                                   .value = dimmer.contrast(),
                                   .minimum = 0,
                                   .maximum = 1,
                                   .format = Format::percent(),
                                   .name = contrast,
                                   .help = contrast,
                                   .onChange = [display](double v) { display->dimmer().setContrast(v); },
                               })
                       .key("contrast"),
               })
        .fillWidth();
}

}  // namespace vantrel::views
