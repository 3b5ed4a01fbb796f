#include "app/VantrelApp.h"

#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <utility>
#include <variant>

#include "app/CapabilitiesTool.h"
#include "app/CommandLine.h"
#include "app/Computers.h"
#include "app/ExitStatus.h"
#include "app/Interface.h"
#include "app/ProgramLog.h"
#include "app/RecordedDesk.h"
#include "app/ShippedStories.h"
#include "app/StoryCheck.h"
#include "app/StoryPlayer.h"
#include "app/ThisComputer.h"
#include "ddc/Probe.h"
#include "platform/posix/NewFile.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/recording/RecordingPlatform.h"
#include "platform/simulated/DeskFile.h"
#include "platform/simulated/DeskWriter.h"
#include "platform/simulated/ShippedDesks.h"
#include "platform/simulated/VirtualTime.h"
#include "runtime/RealScheduler.h"

namespace vantrel::app {

namespace ShippedDesks = simulated::ShippedDesks;

namespace {

// What a name on the command line stands for, or one line that says what is wrong.
template <class Data>
using Found = std::variant<Data, std::string>;

template <class Entries>
std::string namesOf(const Entries& entries) {
    std::string names;
    for (const auto& entry : entries) names.append(names.empty() ? "" : ", ").append(entry.name);
    return names;
}

Found<simulated::Desk> findDesk(const std::string& nameOrPath) {
    if (!ShippedDesks::text(nameOrPath) && !std::filesystem::exists(nameOrPath)) {
        return "there is no desk file " + nameOrPath + ", and no desk of that name among " +
               namesOf(ShippedDesks::list());
    }
    auto desk = ShippedDesks::read(nameOrPath);
    if (const auto* mistake = std::get_if<simulated::FileError>(&desk)) return mistake->line();
    return std::get<simulated::Desk>(std::move(desk));
}

Found<Story> findStory(const std::string& nameOrPath) {
    if (!ShippedStories::text(nameOrPath) && !std::filesystem::exists(nameOrPath)) {
        return "there is no story file " + nameOrPath + ", and no story of that name among " +
               namesOf(ShippedStories::list());
    }
    auto story = ShippedStories::read(nameOrPath);
    if (const auto* mistake = std::get_if<simulated::FileError>(&story)) return mistake->line();
    return std::get<Story>(std::move(story));
}

std::string deskName(const CommandLine& line) {
    return line.simulate->empty() ? std::string(ShippedDesks::defaultName) : *line.simulate;
}

// Where the program runs: on a simulated desk, or without one on this computer.
using Place = std::optional<simulated::Desk>;

Found<Place> findPlace(const CommandLine& line) {
    if (line.simulate) {
        auto desk = findDesk(deskName(line));
        if (const auto* mistake = std::get_if<std::string>(&desk)) return *mistake;
        return std::get<simulated::Desk>(std::move(desk));
    }
    if (ThisComputer::isKnown()) return Place();
    return "this build can't reach real monitors; use --simulate for a simulated desk (see --help)";
}

std::unique_ptr<runtime::Scheduler> makeScheduler(const CommandLine& line) {
    if (line.virtualTime) return std::make_unique<simulated::VirtualTime>();
    return std::make_unique<runtime::RealScheduler>();
}

// Gives the desk file of what it saw, for whoever asked for one.
std::string probe(const CommandLine& line, std::optional<simulated::Desk> desk, std::ostream& output,
                  std::ostream& errors) {
    const auto scheduler = makeScheduler(line);
    runtime::MainLoop loop(*scheduler);
    auto computer = Computers::make(line, std::move(desk), Computers::Settings::forgotten, *scheduler, loop);
    ProgramLog log(computer->systemLog(), line.log, *scheduler, errors);
    platform::Platform platform = computer->platform(log);
    std::string recorded;
    if (line.record) {
        recording::RecordingPlatform recorder(platform);
        platform::Platform watched = recorder.platform();
        ddc::Probe::run(watched, output);
        recorded = simulated::DeskWriter::text(RecordedDesk::make(watched, recorder.recording()));
    } else {
        ddc::Probe::run(platform, output);
    }
    scheduler->finishThreads();
    computer.reset();
    return recorded;
}

// Why this desk file could not be replayed; nothing: it can.
std::optional<std::string> mistakeIn(const std::string& deskFile, const std::string& name) {
    constexpr std::size_t most = simulated::DeskFile::maximumBytes;
    if (deskFile.size() > most) return name + ": would be larger than " + std::to_string(most) + " bytes";
    const auto desk = simulated::DeskFile::readText(deskFile, name);
    if (const auto* mistake = std::get_if<simulated::FileError>(&desk)) return mistake->line();
    return std::nullopt;
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
    if (line.guard) return ThisComputer::guardOutputs();
    if (line.probe) return runProbe(line);
    if (line.play) return runStory(line);
    if (line.parseCapabilities) return parseCapabilities(*line.parseCapabilities);
    if (line.screenshot) return Interface::draw(line, output_, errors_);
    return runInterface(line);
}

int VantrelApp::runInterface(const CommandLine& line) {
    auto place = findPlace(line);
    if (const auto* mistake = std::get_if<std::string>(&place)) return fail(*mistake);
    return Interface::run(line, std::get<Place>(std::move(place)), errors_);
}

int VantrelApp::runProbe(const CommandLine& line) {
    auto place = findPlace(line);
    if (const auto* mistake = std::get_if<std::string>(&place)) return fail(*mistake);
    if (line.record) return recordProbe(line, std::get<Place>(std::move(place)));
    probe(line, std::get<Place>(std::move(place)), output_, errors_);
    return ExitStatus::success;
}

int VantrelApp::recordProbe(const CommandLine& line, std::optional<simulated::Desk> desk) {
    posix::PosixFileSystem files;
    posix::NewFile file(files, *line.record);
    // A probe takes its time: better said before it.
    if (const auto obstacle = file.obstacle()) return fail("can't record into " + *obstacle);
    const std::string recorded = probe(line, std::move(desk), output_, errors_);
    auto mistake = mistakeIn(recorded, *line.record);
    if (!mistake) mistake = file.write(recorded);
    if (mistake) return fail("can't record into " + *mistake);
    errors_ << "vantrel: " << *line.record
            << " holds what the monitors answered, under serial numbers that mean nothing: attach it to a "
               "report; --simulate replays it\n";
    return ExitStatus::success;
}

int VantrelApp::runStory(const CommandLine& line) {
    auto found = findStory(*line.play);
    if (const auto* mistake = std::get_if<std::string>(&found)) return fail(*mistake);
    const Story& story = std::get<Story>(found);
    const bool isDeskNamed = line.simulate && !line.simulate->empty();
    if (!line.simulate && !story.desk) {
        return fail(ShippedStories::fileName(*line.play) +
                    ": names no desk; use --simulate DESK (see --help)");
    }
    auto desk = findDesk(isDeskNamed || !story.desk ? deskName(line) : *story.desk);
    if (const auto* mistake = std::get_if<std::string>(&desk)) return fail(*mistake);
    if (const auto missing = StoryCheck::missing(story, std::get<simulated::Desk>(desk))) {
        return fail(
            simulated::FileError{ShippedStories::fileName(*line.play), missing->place, missing->reason}
                .line());
    }
    const auto scheduler = makeScheduler(line);
    StoryPlayer(story, std::get<simulated::Desk>(std::move(desk)), *scheduler, output_,
                line.log.value_or(platform::LogLevel::standard), line.state)
        .play();
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
