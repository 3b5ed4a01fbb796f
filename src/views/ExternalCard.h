// One external monitor: connected, or with its output turned off and still known.
// Appearing, it lets the monitor load what isn't loaded.
//
// What it waits for (a confirmation, "more" opened) is forgotten with the card.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "runtime/Observable.h"
#include "ui/Children.h"
#include "ui/Component.h"
#include "views/Environment.h"
#include "views/FeatureRow.h"

namespace vantrel::views {

class ExternalCard : public ui::Component {
  public:
    using Display = Environment::Display;

    // `disabledEntry` when the output to the monitor is turned off.
    ExternalCard(const Environment& environment, Display display,
                 std::optional<persistence::DisabledDisplay> disabledEntry);
    ~ExternalCard() override;

    ui::Node body() override;

  private:
    // A monitor that loads again gets new features, and they get new rows.
    using Rows = ui::Children<std::pair<std::uint8_t, const model::VCPFeature*>, FeatureRow>;

    ui::Node header();
    std::string subtitle() const;
    std::string reachableSubtitle() const;
    std::vector<ui::Node> accessory();
    ui::Node confirmationPanel();
    std::string confirmationText() const;
    ui::Node loadingRow() const;
    std::vector<ui::Node> controls(const Rows::Pass& rows);
    ui::Node volumeRow(const FeatureRow::Feature& volume) const;
    ui::Node moreSettings(const Rows::Pass& rows);
    ui::Node slider(const FeatureRow::Feature& feature, ui::Symbol symbol) const;

    Environment environment_;
    Display display_;
    std::optional<persistence::DisabledDisplay> disabledEntry_;
    runtime::Observable<bool> showMore_{false};
    runtime::Observable<bool> confirmingDisable_{false};
    Rows rows_;
    runtime::TaskHandle loading_;
};

}  // namespace vantrel::views
