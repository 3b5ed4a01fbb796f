// Dims the picture of one external display on the computer's side, by scaling its
// colour transfer table: for connections that pass no DDC/CI. Main thread.
//
// It is in force while isActive. Values survive restarts; isActive does not.
#pragma once

#include <string>

#include "persistence/Store.h"
#include "platform/BaseTables.h"
#include "platform/Defaults.h"
#include "platform/DisplayServices.h"
#include "runtime/Observable.h"

namespace vantrel::model {

class SoftwareDimmer {
  public:
    // Reads the stored values; does not touch the display.
    SoftwareDimmer(platform::DisplayServices& displays, platform::BaseTables& baseTables,
                   platform::Defaults& defaults, platform::DisplayID displayID, std::string key);

    platform::DisplayID displayID() const { return displayID_; }
    const std::string& key() const { return key_; }

    // 0 to 1; 1 leaves the picture as it is.
    double brightness() const { return brightness_.get(); }
    // 0 to 1; 0.5 leaves the picture as it is.
    double contrast() const { return contrast_.get(); }
    // Every set persists both values and applies them, also of an equal value.
    void setBrightness(double brightness);
    void setContrast(double contrast);

    bool isActive() const { return isActive_.get(); }
    // Applies only when the value changes.
    void setActive(bool active);

    // Whether the values leave the picture as it is.
    bool isNeutral() const;

    // Brings the display's table in line with the values: a scaled copy of the
    // display's own table, or that table itself. A display that was never changed
    // is left alone while the dimmer is inactive.
    void apply();

  private:
    void persistAndApply();

    platform::DisplayServices& displays_;
    platform::BaseTables& baseTables_;
    platform::Defaults& defaults_;
    platform::DisplayID displayID_;
    std::string key_;
    runtime::Observable<double> brightness_;
    runtime::Observable<double> contrast_;
    runtime::Observable<bool> isActive_{false};
};

}  // namespace vantrel::model
