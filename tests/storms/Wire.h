// Stands between the program and the simulated system's private functions: sees
// every transfer, which worker it comes from and which monitor it reaches.
//
// One at a time, as the simulated libraries themselves. Threads: those of one
// virtual time, which run one at a time.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/PrivateFunctions.h"
#include "platform/Registry.h"
#include "platform/SymbolLoader.h"
#include "platform/simulated/World.h"
#include "storms/Seen.h"
#include "storms/SystemIdentifiers.h"
#include "storms/Verdict.h"

namespace vantrel::storms {

class Wire : public platform::SymbolLoader, public platform::Registry {
  public:
    using DisplayID = platform::DisplayID;
    using WorkerNumber = int;
    static constexpr WorkerNumber noWorker = -1;
    using Values = std::map<std::uint8_t, std::uint16_t>;

    struct Worker {
        // Key of the display that its model is of; empty until that is known.
        std::string key;
        // Key of the monitor behind the service that its model began with: the one
        // that it looks for again. Empty before the first transfer.
        std::string begunWith;
        // The last Set VCP of each code, whether the monitor took it or not.
        Values sent;
        // The monitor at the end of its handle.
        std::optional<DisplayID> monitor;
    };

    Wire(platform::PrivateFunctions& system, platform::Registry& registry, simulated::World& world,
         SystemIdentifiers& identifiers, const runtime::Clock& clock, Verdict& verdict, Counts& counts);
    Wire(const Wire&) = delete;
    Wire& operator=(const Wire&) = delete;
    ~Wire() override;

    // A worker's thread says which one it is, once.
    WorkerNumber addWorker();
    static void runs(WorkerNumber worker);
    // noWorker on the main thread.
    static WorkerNumber running();
    // What was running is gone.
    void endWorkers();
    // Whether several workers talk to that monitor: each spoils the other's reads.
    bool isShared(DisplayID monitor) const;
    Worker& worker(WorkerNumber number) { return workers_[static_cast<std::size_t>(number)]; }

    // Identities may be mistaken on this desk.
    void allowMistakes() { allowsMistakes_ = true; }
    // In the middle of a transfer, or between a request and its reply or repetition.
    bool isBusy(DisplayID monitor) const;
    bool isBusy() const;
    // What was written to each monitor and acknowledged since.
    void forgetTaken() { taken_.clear(); }
    const std::map<DisplayID, Values>& taken() const { return taken_; }

    // The program's side.
    void* open(const std::string& path) override;
    void* lookUp(void* library, const std::string& symbol) override;
    std::unique_ptr<platform::RegistryIterator> iterateServicePlane() override;
    void releaseService(const void* service) override;

    // For the functions themselves.
    const void* create(const void* allocator, std::uint32_t entry);
    std::int32_t write(const void* service, std::uint32_t chip, std::uint32_t source, const void* bytes,
                       std::uint32_t length);
    std::int32_t read(const void* service, std::uint32_t chip, std::uint32_t offset, void* bytes,
                      std::uint32_t length);
    std::int32_t configure(void* configuration, std::uint32_t display, bool enabled);
    platform::PrivateFunctions& system() { return system_; }
    DisplayID worldIDOf(DisplayID systemID) const { return identifiers_.worldID(systemID).value_or(0); }

  private:
    struct Handle {
        DisplayID monitor = 0;
        std::size_t walk = 0;
    };
    // Over the registry.
    struct Walk {
        WorkerNumber by = noWorker;
        // The monitors that it found.
        std::vector<DisplayID> found;
    };
    struct Line {
        std::multiset<WorkerNumber> busy;
        WorkerNumber lastWriter = noWorker;
        std::optional<runtime::MonotonicTime> lastEnd;
    };

    bool isBusy(const Line& line) const;
    void begin(const void* service);
    void end(DisplayID monitor);
    void noteSet(DisplayID monitor, const std::uint8_t* bytes, std::uint32_t length, std::int32_t status);
    bool hadNoChoice(const Worker& who, const Walk& walk) const;
    std::string keyOf(DisplayID monitor) const;

    platform::PrivateFunctions& system_;
    platform::Registry& registry_;
    simulated::World& world_;
    SystemIdentifiers& identifiers_;
    const runtime::Clock& clock_;
    Verdict& verdict_;
    Counts& counts_;
    bool allowsMistakes_ = false;
    std::vector<Worker> workers_;
    std::map<const void*, Handle> handles_;
    std::vector<Walk> walks_{1};
    std::map<DisplayID, Line> lines_;
    std::map<DisplayID, Values> taken_;
};

}  // namespace vantrel::storms
