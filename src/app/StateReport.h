// What a story ends with: what the program shows of every display of the desk,
// and what is really there, one fact a line. Main thread.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>

#include "model/DisplayManager.h"
#include "platform/simulated/SimulatedPlatform.h"

namespace vantrel::app {

class StateReport {
  public:
    // Null for a manager that doesn't run. Manager, platform and stream must
    // outlive the report.
    StateReport(const model::DisplayManager* manager, simulated::SimulatedPlatform& simulated,
                std::ostream& output)
        : manager_(manager), simulated_(simulated), output_(output) {}

    void print();

  private:
    void printProgram();
    void printShown(const simulated::DisplayPlan& plan);
    void printExternal(model::ExternalDisplay& display, const simulated::DisplayPlan& plan);
    void printFeatures(model::ExternalDisplay& display, const simulated::DisplayPlan& plan);
    void printReality(const simulated::DisplayPlan& plan);
    void printTransferTable(const simulated::DisplayPlan& plan);
    void line(const std::string& fact);

    const model::DisplayManager* manager_;
    simulated::SimulatedPlatform& simulated_;
    std::ostream& output_;
};

}  // namespace vantrel::app
