#include "storms/Wire.h"

#include <algorithm>
#include <chrono>

#include "runtime/Fatal.h"

namespace vantrel::storms {
namespace {

Wire* alive = nullptr;
thread_local Wire::WorkerNumber thisWorker = Wire::noWorker;

extern "C" {

static const void* watchedCreate(const void* allocator, std::uint32_t entry) {
    return alive->create(allocator, entry);
}
static std::int32_t watchedWrite(const void* service, std::uint32_t chip, std::uint32_t source,
                                 const void* bytes, std::uint32_t length) {
    return alive->write(service, chip, source, bytes, length);
}
static std::int32_t watchedRead(const void* service, std::uint32_t chip, std::uint32_t offset, void* bytes,
                                std::uint32_t length) {
    return alive->read(service, chip, offset, bytes, length);
}
static std::int32_t watchedConfigure(void* configuration, std::uint32_t display, bool enabled) {
    return alive->configure(configuration, display, enabled);
}
static std::int32_t watchedGetBrightness(std::uint32_t display, float* level) {
    return alive->system().getBrightness()(alive->worldIDOf(display), level);
}
static std::int32_t watchedSetBrightness(std::uint32_t display, float level) {
    return alive->system().setBrightness()(alive->worldIDOf(display), level);
}

}  // extern "C"

template <class Function>
void* address(Function system, Function watched) {
    return system == nullptr ? nullptr : reinterpret_cast<void*>(watched);
}

// DDC/CI: length byte with its top bit set, then the command.
constexpr std::uint8_t setLength = 0x84;
constexpr std::uint8_t setVCP = 0x03;
// Between a request and its reply.
constexpr auto longestPause = std::chrono::milliseconds(50);

}  // namespace

Wire::Wire(platform::PrivateFunctions& system, platform::Registry& registry, simulated::World& world,
           SystemIdentifiers& identifiers, const runtime::Clock& clock, Verdict& verdict, Counts& counts)
    : system_(system),
      registry_(registry),
      world_(world),
      identifiers_(identifiers),
      clock_(clock),
      verdict_(verdict),
      counts_(counts) {
    runtime::require(std::exchange(alive, this) == nullptr, "two storms at the same time");
}

Wire::~Wire() { alive = nullptr; }

Wire::WorkerNumber Wire::addWorker() {
    workers_.emplace_back();
    return static_cast<WorkerNumber>(workers_.size()) - 1;
}

void Wire::runs(WorkerNumber worker) { thisWorker = worker; }

Wire::WorkerNumber Wire::running() { return thisWorker; }

void Wire::endWorkers() {
    for (Worker& each : workers_) each.monitor.reset();
}

bool Wire::isShared(DisplayID monitor) const {
    return std::ranges::count_if(workers_,
                                 [monitor](const Worker& each) { return each.monitor == monitor; }) > 1;
}

bool Wire::isBusy(const Line& line) const {
    return !line.busy.empty() || (line.lastEnd && clock_.now() - *line.lastEnd <= longestPause);
}

bool Wire::isBusy(DisplayID monitor) const {
    const auto line = lines_.find(monitor);
    return line != lines_.end() && isBusy(line->second);
}

bool Wire::isBusy() const {
    return std::ranges::any_of(lines_, [this](const auto& line) { return isBusy(line.second); });
}

void* Wire::open(const std::string&) { return this; }

void* Wire::lookUp(void*, const std::string& symbol) {
    if (symbol == "IOAVServiceCreateWithService") return address(system_.avCreate(), &watchedCreate);
    if (symbol == "IOAVServiceWriteI2C") return address(system_.avWrite(), &watchedWrite);
    if (symbol == "IOAVServiceReadI2C") return address(system_.avRead(), &watchedRead);
    if (symbol == "CGSConfigureDisplayEnabled") return address(system_.configureEnabled(), &watchedConfigure);
    if (symbol == "DisplayServicesGetBrightness")
        return address(system_.getBrightness(), &watchedGetBrightness);
    if (symbol == "DisplayServicesSetBrightness")
        return address(system_.setBrightness(), &watchedSetBrightness);
    return nullptr;
}

std::unique_ptr<platform::RegistryIterator> Wire::iterateServicePlane() {
    walks_.push_back({running(), {}});
    return registry_.iterateServicePlane();
}

void Wire::releaseService(const void* service) {
    handles_.erase(service);
    registry_.releaseService(service);
}

const void* Wire::create(const void* allocator, std::uint32_t entry) {
    const void* const service = system_.avCreate()(allocator, entry);
    if (service == nullptr) return nullptr;
    const DisplayID monitor = world_.desk().registry.at(entry - 1).display;
    walks_.back().found.push_back(monitor);
    handles_[service] = {monitor, walks_.size() - 1};
    return service;
}

std::int32_t Wire::write(const void* service, std::uint32_t chip, std::uint32_t source, const void* bytes,
                         std::uint32_t length) {
    const DisplayID monitor = handles_.at(service).monitor;
    begin(service);
    lines_[monitor].lastWriter = running();
    const std::int32_t status = system_.avWrite()(service, chip, source, bytes, length);
    noteSet(monitor, static_cast<const std::uint8_t*>(bytes), length, status);
    end(monitor);
    return status;
}

std::int32_t Wire::read(const void* service, std::uint32_t chip, std::uint32_t offset, void* bytes,
                        std::uint32_t length) {
    const DisplayID monitor = handles_.at(service).monitor;
    begin(service);
    // Only ever between the workers of two models, see `begin`.
    if (lines_[monitor].lastWriter != running()) counts_.note(Seen::workersInterleaved);
    const std::int32_t status = system_.avRead()(service, chip, offset, bytes, length);
    end(monitor);
    return status;
}

std::int32_t Wire::configure(void* configuration, std::uint32_t display, bool enabled) {
    const DisplayID world = worldIDOf(display);
    const std::int32_t status = system_.configureEnabled()(configuration, world, enabled);
    if (status == 0 && !enabled && !world_.isPluggedIn(world)) counts_.note(Seen::outputOffWhileUnplugged);
    return status;
}

// Two workers may well meet at one monitor: the program tells displays apart by
// identifier and identity, so a monitor that comes back under another identifier
// has two models, and a lone service is taken for anybody's. Anything else is
// broken: a transfer from elsewhere, one worker twice at once, a worker that went
// astray while it could tell the monitors apart.
void Wire::begin(const void* service) {
    const Handle& handle = handles_.at(service);
    const WorkerNumber number = running();
    if (number == noWorker) return verdict_.broken("a transfer that no worker's queue makes");
    Line& line = lines_[handle.monitor];
    verdict_.unless(!line.busy.contains(number), "a worker makes two transfers at once");
    if (!line.busy.empty()) counts_.note(Seen::workersInterleaved);
    line.busy.insert(number);

    Worker& who = worker(number);
    const bool isNew = std::exchange(who.monitor, handle.monitor) != handle.monitor;
    const std::string reached = keyOf(handle.monitor);
    const bool isFirst = who.begunWith.empty();
    if (isFirst) who.begunWith = reached;
    if (!isNew || who.key == reached) return;
    counts_.note(Seen::workerStrayed);
    const bool hasBegunThere = !isFirst && who.begunWith == reached;
    if (!allowsMistakes_ && !hasBegunThere && !hadNoChoice(who, walks_[handle.walk]))
        verdict_.broken("the worker of " + who.key + " talks to " + reached + " though it had the choice");
}

// A lone service fits anybody: for a worker that looks for a new handle the only
// one there is, for a new model the only one that is left.
bool Wire::hadNoChoice(const Worker& who, const Walk& walk) const {
    if (walk.by != noWorker) return walk.found.size() == 1;
    return std::ranges::none_of(walk.found, [&](DisplayID monitor) { return keyOf(monitor) == who.key; });
}

void Wire::end(DisplayID monitor) {
    auto& busy = lines_[monitor].busy;
    lines_[monitor].lastEnd = clock_.now();
    if (const auto found = busy.find(running()); found != busy.end()) busy.erase(found);
}

void Wire::noteSet(DisplayID monitor, const std::uint8_t* bytes, std::uint32_t length, std::int32_t status) {
    if (length < 5 || bytes[0] != setLength || bytes[1] != setVCP || running() == noWorker) return;
    const auto value = static_cast<std::uint16_t>(bytes[3] << 8 | bytes[4]);
    worker(running()).sent[bytes[2]] = value;
    if (status == 0) taken_[monitor][bytes[2]] = value;
}

std::string Wire::keyOf(DisplayID monitor) const {
    const simulated::DisplayPlan* plan = world_.plan(monitor);
    return std::to_string(plan->vendor) + "-" + std::to_string(plan->product) + "-" +
           std::to_string(plan->serial);
}

}  // namespace vantrel::storms
