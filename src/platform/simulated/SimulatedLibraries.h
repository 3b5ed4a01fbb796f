// The system libraries of the simulated computer: the private functions as real C
// functions, under the paths and names that the system gives them.
//
// C functions carry no context, so they serve the one SimulatedLibraries alive; a
// second one stops the program.
// Threads: made and destroyed on the main thread, while nobody calls the
// functions; looking up and calling from any thread that the function allows.
#pragma once

#include <set>
#include <string>

#include "platform/SubstituteLibraries.h"
#include "platform/simulated/AVServiceTable.h"
#include "platform/simulated/SimulatedDisplayServices.h"
#include "platform/simulated/World.h"

namespace vantrel::simulated {

class SimulatedLibraries : public platform::SymbolLoader {
  public:
    SimulatedLibraries(World& world, SimulatedDisplayServices& displays, AVServiceTable& services);
    SimulatedLibraries(const SimulatedLibraries&) = delete;
    SimulatedLibraries& operator=(const SimulatedLibraries&) = delete;
    ~SimulatedLibraries() override;

    void* open(const std::string& path) override { return substitutes_.open(path); }
    void* lookUp(void* library, const std::string& symbol) override;

    // For the functions themselves.
    World& world() { return world_; }
    SimulatedDisplayServices& displays() { return displays_; }
    AVServiceTable& services() { return services_; }

  private:
    World& world_;
    SimulatedDisplayServices& displays_;
    AVServiceTable& services_;
    platform::SubstituteLibraries substitutes_;
    std::set<std::string> missing_;
};

}  // namespace vantrel::simulated
