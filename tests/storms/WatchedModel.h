// What a storm remembers of one model of an external display.
#pragma once

#include <memory>

#include "model/ExternalDisplay.h"
#include "runtime/Observable.h"
#include "runtime/Time.h"
#include "storms/Wire.h"

namespace vantrel::storms {

struct WatchedModel {
    // Weak: a model that the program lets go has to go.
    std::weak_ptr<model::ExternalDisplay> model;
    // Outlives the model.
    std::string name;
    std::string key;
    Wire::WorkerNumber worker = Wire::noWorker;

    std::unique_ptr<runtime::Observer> spinnerObserver;
    bool isSpinning = false;
    runtime::MonotonicTime spinningSince;
    // The input request of the return that turned the spinner on last.
    int owner = 0;
    int attempt = 0;
    runtime::MonotonicTime attemptBegan;
    bool hasPulsedSince = false;
};

}  // namespace vantrel::storms
