// The computer's own panel, whose backlight the system sets. Nothing is stored:
// the panel itself is the source of truth. Main thread.
#pragma once

#include <memory>

#include "platform/DisplayServices.h"
#include "platform/PrivateFunctions.h"
#include "runtime/Observable.h"

namespace vantrel::model {

class BuiltInDisplay {
  public:
    // Null when the panel's level can't be read.
    static std::shared_ptr<BuiltInDisplay> make(platform::PrivateFunctions& functions,
                                                platform::DisplayID id);

    platform::DisplayID id() const { return id_; }

    // 0 to 1, as last read or set.
    float brightness() const { return brightness_.get(); }
    // Notes the level and sets the panel to it, also when it is the same.
    void setBrightness(float level);
    // Picks up what the keyboard or the system changed; keeps the old level when
    // the panel can't be read.
    void refresh();

  private:
    BuiltInDisplay(platform::PrivateFunctions& functions, platform::DisplayID id, float brightness)
        : functions_(functions), id_(id), brightness_(brightness) {}

    platform::PrivateFunctions& functions_;
    platform::DisplayID id_;
    runtime::Observable<float> brightness_;
};

}  // namespace vantrel::model
