// Runs a program on a computer that has a desk's monitors on its I2C buses, in real time.
//
//     umockdev-wrapper emulated_desk [--report FILE] DESK -- COMMAND...
//
// DESK is a desk file or the name of one that comes with the program. FILE becomes JSON
// with what became of the monitors. Ends with the program's status, or with 125 when it
// could not be started.

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "linux/kernel/Command.h"
#include "linux/kernel/EmulatedKernel.h"
#include "linux/kernel/KernelReport.h"
#include "platform/linux/DescriptorThread.h"
#include "platform/simulated/ShippedDesks.h"
#include "runtime/RealScheduler.h"

namespace {

using vantrel::simulated::Desk;
using vantrel::simulated::DeskFileError;

constexpr int notStarted = 125;

struct Arguments {
    std::string report;
    std::string desk;
    std::vector<std::string> command;
};

std::optional<Arguments> read(std::vector<std::string> words) {
    Arguments arguments;
    auto word = words.begin();
    if (words.size() > 2 && *word == "--report") {
        arguments.report = *++word;
        ++word;
    }
    if (words.end() - word < 3 || *(word + 1) != "--") return std::nullopt;
    arguments.desk = *word;
    arguments.command.assign(word + 2, words.end());
    return arguments;
}

int fail(const std::string& reason) {
    std::cerr << "emulated_desk: " << reason << '\n';
    return notStarted;
}

int run(const Arguments& arguments, const Desk& desk) {
    using vantrel::test::EmulatedKernel;
    vantrel::runtime::RealScheduler scheduler;
    vantrel::runtime::MainLoop mainLoop(scheduler);
    vantrel::linux::DescriptorThread descriptors(mainLoop);
    EmulatedKernel kernel(desk, mainLoop, scheduler, EmulatedKernel::BusTime::isOwed);
    const vantrel::test::Command command(arguments.command, mainLoop, descriptors);
    if (!command.isStarted()) return fail(arguments.command.front() + ": " + std::strerror(errno));
    mainLoop.run();
    const int status = command.status();
    if (arguments.report.empty()) return status;
    std::ofstream report(arguments.report, std::ios::binary);
    report << vantrel::test::kernelReport(kernel, desk) << std::flush;
    return report ? status : fail(arguments.report + ": can't be written");
}

}  // namespace

int main(int count, char** values) {
    const auto arguments = read({values + (count > 0 ? 1 : 0), values + count});
    if (!arguments) return fail("usage: emulated_desk [--report FILE] DESK -- COMMAND...");
    const auto desk = vantrel::simulated::ShippedDesks::read(arguments->desk);
    if (const auto* error = std::get_if<DeskFileError>(&desk)) return fail(error->line());
    return run(*arguments, std::get<Desk>(desk));
}
