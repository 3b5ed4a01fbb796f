// The contents of the popover: a column of cards, one for each display. Monitors
// whose output is off come first, then the connected ones, then the panel.
#pragma once

#include <functional>
#include <string>
#include <tuple>

#include "ui/Children.h"
#include "ui/Component.h"
#include "ui/Size.h"
#include "views/Environment.h"
#include "views/ExternalCard.h"

namespace vantrel::views {

class MenuContent : public ui::Component {
  public:
    // What it is in, by what can be asked of that.
    struct Surroundings {
        std::function<void()> openSettings;
        // Ends the program.
        std::function<void()> quit;
        // In points, of the screen that the popover is on. Asked with each new
        // body; one that reads an Observable brings a new body with each change.
        std::function<double()> screenHeight;
        // Told each new laid-out size.
        std::function<void(ui::Size)> sizeChanged;
        // What else the user should know; empty for nothing.
        std::function<std::string()> note = [] { return std::string(); };
        // Empty for a program without an icon.
        ui::Symbol icon = ui::applicationIcon;
    };

    MenuContent(const Environment& environment, Surroundings surroundings);

    ui::Node body() override;

  private:
    using Entry = persistence::DisabledDisplay;
    using Cards =
        ui::Children<std::tuple<platform::DisplayID, bool, const model::ExternalDisplay*>, ExternalCard>;

    ui::Node title() const;
    ui::Node error(const std::string& text, std::function<void()> dismiss) const;
    ui::Node cards();
    ui::Node cardOfDisabled(const Entry& entry, const Cards::Pass& cards);
    ui::Node footer() const;
    int maximumHeight() const;

    Environment environment_;
    Surroundings surroundings_;
    Cards cards_;
};

}  // namespace vantrel::views
