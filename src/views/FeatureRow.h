// One feature of a monitor, as its kind is operated: a slider, a choice, an action
// in two steps (what resets a monitor is never done by a single click), or a value
// to read.
#pragma once

#include <memory>

#include "runtime/Observable.h"
#include "ui/Component.h"
#include "views/Environment.h"

namespace vantrel::views {

class FeatureRow : public ui::Component {
  public:
    using Feature = std::shared_ptr<model::VCPFeature>;

    FeatureRow(const Environment& environment, Environment::Display display, Feature feature);

    ui::Node body() override;

  private:
    ui::Node slider() const;
    ui::Node choice() const;
    ui::Node action();
    ui::Node value() const;
    std::string name() const { return environment_.shown(feature_->info.name); }

    Environment environment_;
    Environment::Display display_;
    Feature feature_;
    // Whether the action waits to be confirmed.
    runtime::Observable<bool> confirming_{false};
};

}  // namespace vantrel::views
