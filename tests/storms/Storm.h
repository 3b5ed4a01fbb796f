// One storm: a random desk, hours of virtual time, a user and a world that do
// random things, and an end at which everything has to be in order again. All of
// it follows from the seed.
//
// One at a time in a process. Threads: the thread that makes it is its main thread.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "model/DisplayManager.h"
#include "platform/MemoryDefaults.h"
#include "platform/simulated/Random.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "platform/simulated/VirtualTime.h"
#include "storms/Invariants.h"
#include "storms/StormDesk.h"
#include "storms/StormLog.h"
#include "storms/StormScheduler.h"
#include "storms/StormScreen.h"
#include "storms/SystemIdentifiers.h"
#include "storms/Verdict.h"
#include "storms/Wire.h"

namespace vantrel::storms {

class Storm {
  public:
    enum class Output { nothing, log };

    // What broke, or nothing. Adds what was seen to `counts`.
    static std::optional<std::string> run(std::uint64_t seed, Output output, Counts& counts);

    Storm(const Storm&) = delete;
    Storm& operator=(const Storm&) = delete;

  private:
    using DisplayID = platform::DisplayID;
    using Display = model::DisplayManager::Display;
    using Input = model::ExternalDisplay::Input;
    using Feature = std::shared_ptr<model::VCPFeature>;

    Storm(std::uint64_t seed, Output output, Counts& counts);
    ~Storm();

    void rage();
    void calmDown();

    // StormSteps.cpp: the program and the passing of time.
    void startProgram();
    void quitProgram();
    void step();
    void nextStep(const std::string& what);
    void runFor(runtime::MonotonicClock::duration duration);
    void afterEvent();
    void checkScreen();
    simulated::Duration someGap();
    bool runUntilIdle();
    void checkWhatWasSent();

    // StormUser.cpp
    void act();
    Display someDisplay();
    Feature someFeature(const Display& display);
    std::uint16_t someValue(const Feature& feature);
    Input someInput(const Display& display);
    void selectInput(const Display& display);
    void returnToMac(const Display& display);
    void turnOutputOff(const Display& display);
    void turnOutputOn();
    void forget();
    void setValue(const Display& display);
    void slide(const Display& display);
    void trigger(const Display& display);
    void load(const Display& display);
    void changeInputSettings(const Display& display);
    void changeMacInput(const Display& display);
    void editInputs(const Display& display);
    void dim(const Display& display);
    void write(const Display& display, const Feature& feature, std::uint16_t value);

    // StormWorld.cpp
    void happen();
    DisplayID someExternal();
    void plug(DisplayID display);
    void unplug(DisplayID display);
    void exchange(DisplayID display);
    void happenToMonitor(DisplayID display);
    void givePlace(DisplayID display);

    // StormEnd.cpp
    void healEverything();
    void turnEverythingOn();
    void expectEverybodyReady();
    void expectValuesToArrive();
    void expectReturns();
    void expectModelsToShowTheTruth();
    std::optional<DisplayID> monitorOf(const Display& display);
    bool isSpoiled(const Display& display);
    bool takes(DisplayID monitor, std::uint8_t code, std::uint16_t value);

    Counts& counts_;
    Verdict verdict_;
    simulated::Random random_;
    simulated::Random looks_;
    StormDesk desk_;
    simulated::VirtualTime time_;
    runtime::MainLoop loop_{time_};
    StormLog log_{time_};
    platform::MemoryDefaults defaults_;
    simulated::SimulatedPlatform simulated_;
    platform::Platform system_;
    SystemIdentifiers identifiers_;
    Wire wire_;
    StormScheduler scheduler_;
    platform::PrivateFunctions functions_;
    platform::BaseTables baseTables_;
    platform::Platform platform_;
    Invariants invariants_;
    std::unique_ptr<model::DisplayManager> manager_;
    // Most programs of a storm have one.
    std::unique_ptr<StormScreen> screen_;

    int step_ = 0;
    bool isCheckPosted_ = false;
    DisplayID nextIdentifier_ = 100;
    // The last value that the user set for each code, by the worker asked.
    std::map<Wire::WorkerNumber, Wire::Values> asked_;
};

}  // namespace vantrel::storms
