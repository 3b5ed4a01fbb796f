#include "app/VantrelApp.h"

#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <utility>
#include <variant>

#include "app/CapabilitiesTool.h"
#include "app/CommandLine.h"
#include "app/ConsoleLog.h"
#include "app/ExitStatus.h"
#include "app/NoLog.h"
#include "ddc/Probe.h"
#include "platform/simulated/ShippedDesks.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "platform/simulated/VirtualTime.h"
#include "runtime/RealScheduler.h"

namespace vantrel::app {

namespace ShippedDesks = simulated::ShippedDesks;

namespace {

std::string shippedNames() {
    std::string names;
    for (const ShippedDesks::Entry& desk : ShippedDesks::list()) {
        names.append(names.empty() ? "" : ", ").append(desk.name);
    }
    return names;
}

std::unique_ptr<runtime::Scheduler> makeScheduler(const CommandLine& line) {
    if (line.virtualTime) return std::make_unique<simulated::VirtualTime>();
    return std::make_unique<runtime::RealScheduler>();
}

std::unique_ptr<platform::LogSink> makeLog(const CommandLine& line, const runtime::Clock& clock,
                                           std::ostream& errors) {
    if (line.log) return std::make_unique<ConsoleLog>(clock, errors, *line.log);
    return std::make_unique<NoLog>();
}

void probe(const CommandLine& line, simulated::Desk desk, std::ostream& output, std::ostream& errors) {
    const auto scheduler = makeScheduler(line);
    const auto log = makeLog(line, *scheduler, errors);
    runtime::MainLoop loop(*scheduler);
    simulated::SimulatedPlatform simulated(std::move(desk), *scheduler, loop);
    platform::Platform platform = simulated.platform(*log);
    ddc::Probe::run(platform, output);
    scheduler->finishThreads();
}

}  // namespace

int VantrelApp::run(const std::vector<std::string>& arguments) {
    const auto parsed = CommandLine::parse(arguments);
    if (const auto* mistake = std::get_if<CommandLine::Mistake>(&parsed)) return fail(mistake->reason);
    if (const auto* text = std::get_if<CommandLine::Text>(&parsed)) {
        output_ << text->text;
        return ExitStatus::success;
    }
    return run(std::get<CommandLine>(parsed));
}

int VantrelApp::run(const CommandLine& line) {
    if (line.probe) return runProbe(line);
    if (line.parseCapabilities) return parseCapabilities(*line.parseCapabilities);
    return fail(
        "there is no interface yet; --probe prints what the monitors answer, with --simulate those of a "
        "simulated desk (see --help)");
}

int VantrelApp::runProbe(const CommandLine& line) {
    if (!line.simulate) {
        return fail(
            "this build can't reach real monitors yet; use --simulate for a simulated desk (see --help)");
    }
    const std::string name = line.simulate->empty() ? std::string(ShippedDesks::defaultName) : *line.simulate;
    if (!ShippedDesks::text(name) && !std::filesystem::exists(name)) {
        return fail("there is no desk file " + name + ", and no desk of that name among " + shippedNames());
    }
    auto desk = ShippedDesks::read(name);
    if (const auto* mistake = std::get_if<simulated::DeskFileError>(&desk)) return fail(mistake->line());
    probe(line, std::get<simulated::Desk>(std::move(desk)), output_, errors_);
    return ExitStatus::success;
}

int VantrelApp::parseCapabilities(const std::string& path) {
    if (path.empty()) return CapabilitiesTool::run(input_, output_);
    std::ifstream file(path, std::ios::binary);
    // A folder opens, but its first byte can't be read.
    if (!file || (file.peek(), file.bad())) return fail("can't read " + path);
    file.clear();
    return CapabilitiesTool::run(file, output_);
}

int VantrelApp::fail(const std::string& reason) {
    errors_ << "vantrel: " << reason << "\n";
    return ExitStatus::mistake;
}

}  // namespace vantrel::app
