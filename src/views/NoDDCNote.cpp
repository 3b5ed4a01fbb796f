#include "views/NoDDCNote.h"

#include "ui/Nodes.h"

namespace vantrel::views {

using model::ExternalDisplay;
using ui::Font;
using ui::Tone;

ui::Node noDDCNote(const Environment& environment, const Environment::Display& display) {
    if (display->controlMode() != model::ControlMode::ddc) {
        return ui::wrappedText(
            environment.translated(
                "This connection does not pass DDC/CI through, so the Mac applies brightness and contrast to "
                "the picture. Switching inputs needs DDC (for example, a direct USB-C → DisplayPort cable)."),
            Font::caption, Tone::secondary);
    }
    const bool isLoading = display->loadState() == ExternalDisplay::LoadState::loading;
    return ui::column(
               6,
               {
                   ui::wrappedText(
                       environment.translated("The monitor did not answer DDC/CI on this connection. "
                                              "Use Software mode or a USB-C → DisplayPort cable."),
                       Font::caption, Tone::secondary),
                   ui::button(environment.translated("Try Again"), ui::Button::Style::bordered, Font::callout)
                       .enabled(!isLoading)
                       .onPress([environment, display] {
                           environment.load(display, ExternalDisplay::Capabilities::fetched);
                       }),
               })
        .fillWidth();
}

}  // namespace vantrel::views
