// What a user decides about one external monitor: the rows of its section in the
// settings. Every change goes into the model, which keeps it.
#pragma once

#include <vector>

#include "runtime/Observable.h"
#include "ui/Component.h"
#include "views/Environment.h"

namespace vantrel::views {

class DisplaySettings : public ui::Component {
  public:
    DisplaySettings(const Environment& environment, Environment::Display display);

    // A section under the display's name.
    ui::Node body() override;

  private:
    ui::Node controlMode() const;
    void addInputs(std::vector<ui::Node>& rows) const;
    ui::Node addInputMenu() const;
    ui::Node inputWhenOff() const;
    ui::Node inputOfComputer() const;
    ui::Node capabilities();
    ui::Node rereadButton() const;

    Environment environment_;
    Environment::Display display_;
    // Whether the capabilities string is shown.
    runtime::Observable<bool> showRaw_{false};
};

}  // namespace vantrel::views
