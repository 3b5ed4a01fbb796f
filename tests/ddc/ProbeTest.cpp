#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "ddc/Probe.h"
#include "platform/simulated/DeskFile.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "platform/simulated/VirtualTime.h"
#include "support/RecordingLogSink.h"

namespace vantrel::ddc {
namespace {

struct Result {
    std::string output;
    std::vector<test::LogLine> log;
    runtime::MonotonicClock::duration took;
    std::size_t servicesLeft;
};

Result probe(std::string_view deskFile, std::vector<text::Text> obstacles = {}) {
    auto desk = simulated::DeskFile::readText(deskFile, "desk");
    if (const auto* error = std::get_if<simulated::DeskFileError>(&desk)) {
        ADD_FAILURE() << error->line();
        return {};
    }
    simulated::VirtualTime time;
    runtime::MainLoop loop(time);
    simulated::SimulatedPlatform simulated(std::get<simulated::Desk>(std::move(desk)), time, loop);
    simulated.obstruct(std::move(obstacles));
    test::RecordingLogSink log;
    platform::Platform platform = simulated.platform(log);
    std::ostringstream output;
    Probe::run(platform, output);
    return {output.str(), log.lines(), time.now().time_since_epoch(), simulated.liveServices()};
}

TEST(Probe, SaysAtItsEndWhatIsInTheWay) {
    const Result result = probe(
        R"json({"title": "t", "displays": []})json",
        {text::Text::translated("%@ is in the way.", {"A cable"}), text::Text::verbatim("So is this.")});
    EXPECT_EQ(result.output, "External AV services: 0\nA cable is in the way.\nSo is this.\n");
}

// Whether a monitor answers is known only by then.
TEST(Probe, LooksWhatIsInTheWayWhenItHasAskedEverybody) {
    const Result result = probe(R"json({"title": "t", "displays": [
        {"id": 2, "name": "Lumo 24", "vendor": 1, "product": 2, "monitor": {}}]})json",
                                {text::Text::verbatim("Something is in the way.")});
    EXPECT_TRUE(result.output.ends_with("\nSomething is in the way.\n")) << result.output;
    EXPECT_NE(result.output.find("Capabilities: "), std::string::npos) << result.output;
}

TEST(Probe, CountsNoServicesOnAnEmptyDesk) {
    EXPECT_EQ(probe(R"json({"title": "t", "displays": []})json").output, "External AV services: 0\n");
}

TEST(Probe, PrintsIdentityFourReadingsAndTheCapabilities) {
    const Result result = probe(R"json({"title": "t", "displays": [
        {"id": 2, "name": "Lumo 24", "vendor": 4660, "product": 22136, "serial": 99, "monitor": {
            "features": {"0x10": {"current": 50, "maximum": 100}, "0x60": {"current": 15, "maximum": 18}},
            "capabilities": "(vcp(10 60))"}}]})json");
    EXPECT_EQ(result.output,
              "External AV services: 1\n"
              "Lumo 24 (EDID 12347856-0000-0000-0000-000000000000, serial 99)\n"
              "VCP 0x10: value(current: 50, maximum: 100)\n"
              "VCP 0x12: unsupported\n"
              "VCP 0x60: value(current: 15, maximum: 18)\n"
              "VCP 0x62: unsupported\n"
              "Capabilities: (vcp(10 60))\n");
}

TEST(Probe, CallsAMonitorWithoutAnIdentityAMonitor) {
    const Result result = probe(R"json({"title": "t", "registry": [{"proxy": 2}], "displays": [
        {"id": 2, "name": "Lumo 24", "vendor": 1, "product": 2, "monitor": {}}]})json");
    EXPECT_NE(result.output.find("\nmonitor (EDID none, serial none)\n"), std::string::npos) << result.output;
    ASSERT_FALSE(result.log.empty());
    EXPECT_EQ(result.log.front().text, "monitor read 0x10: unsupported");
}

TEST(Probe, GoesOnAfterAMonitorThatNeverAnswers) {
    const Result result = probe(R"json({"title": "t", "displays": [
        {"id": 2, "name": "Dead", "vendor": 1, "product": 2, "serial": 1,
         "monitor": {"personality": {"dead": true}}},
        {"id": 3, "name": "Good", "vendor": 1, "product": 3, "serial": 2,
         "monitor": {"features": {"0x62": {"current": 7, "maximum": 9}}}}]})json");
    EXPECT_NE(result.output.find("VCP 0x10: failed\n"
                                 "VCP 0x12: failed\n"
                                 "VCP 0x60: failed\n"
                                 "VCP 0x62: failed\n"
                                 "Capabilities: <none>\n"
                                 "Good (EDID "),
              std::string::npos)
        << result.output;
    EXPECT_NE(result.output.find("VCP 0x62: value(current: 7, maximum: 9)\nCapabilities: <none>\n"),
              std::string::npos)
        << result.output;
}

TEST(Probe, ReadsEachCodeUpToFourTimes) {
    const Result result = probe(R"json({"title": "t", "displays": [
        {"id": 2, "name": "Dead", "vendor": 1, "product": 2, "monitor": {"personality": {"dead": true}}}]})json");
    ASSERT_FALSE(result.log.empty());
    std::size_t failures = 0;
    for (const test::LogLine& line : result.log) {
        failures += line.text.ends_with("failed after 4 attempts: request write failed") ? 1 : 0;
    }
    EXPECT_EQ(failures, 4U);
}

constexpr const char* misreportingMonitor = R"json({"title": "t", "displays": [
    {"id": 1, "name": "Panel", "vendor": 1138, "product": 1922, "isBuiltIn": true},
    {"id": 2, "name": "Other", "vendor": 1, "product": 2, "serial": 5, "monitor": {}},
    {"id": 3, "name": "Wrong", "vendor": 1138, "product": 1922, "serial": 6, "monitor": {
        "features": {"0x60": {"current": %, "maximum": 18}}}}]})json";

std::string profileLines(const std::string& rawInput) {
    std::string desk = misreportingMonitor;
    desk.replace(desk.find('%'), 1, rawInput);
    const std::string output = probe(desk).output;
    return output.substr(std::min(output.find("Input profile"), output.size()));
}

TEST(Probe, PrintsTheProfileAndTheCurrentInputOfAMonitorThatMisreportsIt) {
    EXPECT_EQ(profileLines("3"),
              "Input profile: 0x0F, 0x11, 0x12 · read map 1 → 0x11, 3 → 0x0F, 4 → 0x12\n"
              "Current input: raw 3 → DisplayPort 1\n");
}

TEST(Probe, NamesAnInputThatIsReadAsItIsWritten) {
    EXPECT_NE(profileLines("18").find("Current input: raw 18 → HDMI 2\n"), std::string::npos);
}

TEST(Probe, DoesNotGuessAnInputThatTheModelDoesNotHave) {
    EXPECT_NE(profileLines("2").find("Current input: raw 2 → unknown\n"), std::string::npos);
}

TEST(Probe, PrintsOneProfileOnlyForTheExternalDisplayThatHasOne) {
    const std::string lines = profileLines("3");
    EXPECT_EQ(lines.find("Input profile", 1), std::string::npos) << lines;
}

TEST(Probe, LeavesTheCurrentInputOutWhenItCantBeRead) {
    const Result result = probe(R"json({"title": "t", "displays": [
        {"id": 3, "name": "Wrong", "vendor": 1138, "product": 1922, "monitor": {"personality": {"dead": true}}}]})json");
    EXPECT_NE(result.output.find("Input profile: "), std::string::npos);
    EXPECT_EQ(result.output.find("Current input"), std::string::npos);
}

TEST(Probe, GivesEveryServiceBack) {
    EXPECT_EQ(probe(R"json({"title": "t", "displays": [
        {"id": 3, "name": "Any", "vendor": 1, "product": 2, "monitor": {}}]})json")
                  .servicesLeft,
              0U);
}

}  // namespace
}  // namespace vantrel::ddc
