#include "app/CommandLine.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <map>
#include <optional>

#include "app/ShippedStories.h"
#include "app/Version.h"
#include "platform/simulated/ShippedDesks.h"

namespace vantrel::app {
namespace {

using platform::LogLevel;

const std::map<std::string, LogLevel> logLevels{{"debug", LogLevel::debug},
                                                {"info", LogLevel::info},
                                                {"default", LogLevel::standard},
                                                {"error", LogLevel::error},
                                                {"fault", LogLevel::fault}};
constexpr const char* logLevelNames = "debug, info, default, error, fault";

template <class Entries>
std::string listOf(const std::string& heading, const Entries& entries) {
    std::size_t width = 0;
    for (const auto& entry : entries) width = std::max(width, entry.name.size());
    std::string list = heading + "\n";
    for (const auto& entry : entries) {
        list += "  " + std::string(entry.name) + std::string(width - entry.name.size() + 2, ' ') +
                entry.description + "\n";
    }
    return list;
}

// The parser's messages are sentences with line breaks in some places; a mistake
// is one line, and says where the way out is.
std::string oneLine(std::string message) {
    std::replace(message.begin(), message.end(), '\n', ' ');
    return message + " (see --help)";
}

std::optional<CommandLine::Mistake> wrongCombination(const CommandLine& line) {
    if (line.play && line.probe) return CommandLine::Mistake{oneLine("--play and --probe: one at a time")};
    if (line.play && line.parseCapabilities) {
        return CommandLine::Mistake{oneLine("--play and --parse-capabilities: one at a time")};
    }
    if (line.record && !line.probe)
        return CommandLine::Mistake{oneLine("--record needs --probe, which is what is recorded")};
    if (line.record && line.record->empty())
        return CommandLine::Mistake{oneLine("--record: no file is given")};
    if (line.virtualTime && !line.simulate && !line.play) {
        return CommandLine::Mistake{
            oneLine("--virtual-time needs --simulate: real monitors answer in real time")};
    }
    const bool isInterface = !line.play && !line.probe && !line.parseCapabilities;
    if (line.virtualTime && isInterface && !line.screenshot) {
        return CommandLine::Mistake{
            oneLine("--virtual-time is for --probe and --play: people live in real time")};
    }
    if (line.screenshot && line.screenshot->empty())
        return CommandLine::Mistake{oneLine("--screenshot: no folder is given")};
    if (line.screenshot && !isInterface) {
        return CommandLine::Mistake{
            oneLine("--screenshot draws the interface: not with --probe, --play or --parse-capabilities")};
    }
    if (line.state && line.state->empty())
        return CommandLine::Mistake{oneLine("--state: no folder is given")};
    if (line.state && !line.simulate && !line.play) {
        return CommandLine::Mistake{
            oneLine("--state needs --simulate: settings for real monitors have their place")};
    }
    return std::nullopt;
}

}  // namespace

std::variant<CommandLine, CommandLine::Text, CommandLine::Mistake> CommandLine::parse(
    const std::vector<std::string>& arguments) {
    CommandLine line;
    std::string record;
    std::string simulate;
    std::string play;
    std::string screenshot;
    std::string state;
    std::string log;
    std::string parseCapabilities;

    CLI::App parser("Vantrel controls the monitors on a desk over DDC/CI.", "vantrel");
    parser.set_version_flag("--version", std::string("vantrel ") + version, "Print the version and exit");
    parser.set_help_flag("--help", "Print this help and exit");
    parser.add_flag("--probe", line.probe, "Print what every external monitor answers over DDC/CI, and exit");
    parser.add_flag(CommandLine::guardOutputs, line.guard)->group("");
    const CLI::Option* recordOption =
        parser
            .add_option("--record", record,
                        "With --probe: write what the monitors answer into the new desk file FILE, for a "
                        "report of a problem; --simulate FILE replays it")
            ->type_name("FILE");
    const CLI::Option* simulateOption =
        parser
            .add_option(
                "--simulate", simulate,
                "Use simulated monitors: a desk file or the name of a desk below; the desk \"default\" "
                "without FILE")
            ->expected(0, 1)
            ->type_name("[FILE]");
    parser.add_flag("--virtual-time", line.virtualTime,
                    "With --simulate or --play: don't wait, let time jump");
    const CLI::Option* playOption =
        parser
            .add_option("--play", play,
                        "Play what happens on a simulated desk and print it: a story file or the name of a "
                        "story below, which has a desk of its own; --simulate names another")
            ->type_name("STORY");
    const CLI::Option* screenshotOption =
        parser
            .add_option("--screenshot", screenshot,
                        "Draw the interface on simulated desks into PNG files in the folder DIR, and exit")
            ->type_name("DIR");
    const CLI::Option* stateOption =
        parser
            .add_option("--state", state,
                        "With --simulate or --play: remember settings in the folder DIR; without it, a story "
                        "begins with none")
            ->type_name("DIR");
    const CLI::Option* logOption =
        parser
            .add_option("--log", log,
                        std::string("Show the log from LEVEL on (a story shows it from default on): ") +
                            logLevelNames)
            ->type_name("LEVEL");
    const CLI::Option* parseOption =
        parser
            .add_option("--parse-capabilities", parseCapabilities,
                        "Parse a monitor's raw capabilities string from FILE or standard input and print it "
                        "as JSON; exits 1 with \"none\" if there is nothing in it")
            ->expected(0, 1)
            ->type_name("[FILE]");

    try {
        parser.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::CallForHelp&) {
        return Text{parser.help() + "\n" +
                    listOf("Simulated desks that come with the program:", simulated::ShippedDesks::list()) +
                    "\n" + listOf("Stories that come with the program:", ShippedStories::list())};
    } catch (const CLI::CallForVersion&) {
        return Text{parser.version() + "\n"};
    } catch (const CLI::ParseError& error) {
        return Mistake{oneLine(error.what())};
    }

    if (recordOption->count() > 0) line.record = record;
    if (simulateOption->count() > 0) line.simulate = simulate;
    if (playOption->count() > 0) line.play = play;
    if (screenshotOption->count() > 0) line.screenshot = screenshot;
    if (stateOption->count() > 0) line.state = state;
    if (parseOption->count() > 0) line.parseCapabilities = parseCapabilities;
    if (logOption->count() > 0) {
        const auto level = logLevels.find(log);
        if (level == logLevels.end()) {
            return Mistake{oneLine("--log: no level \"" + log + "\"; there are " + logLevelNames)};
        }
        line.log = level->second;
    }
    if (auto mistake = wrongCombination(line)) return *std::move(mistake);
    return line;
}

}  // namespace vantrel::app
