// `--record` from the command line to the file and back.
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

#include "app/VantrelApp.h"
#include "support/TemporaryFolder.h"

namespace vantrel::app {
namespace {

using testing::HasSubstr;
using testing::Not;

struct Outcome {
    int status;
    std::string output;
    std::string errors;
};

Outcome run(const std::vector<std::string>& arguments) {
    std::istringstream input;
    std::ostringstream output;
    std::ostringstream errors;
    const int status = VantrelApp(input, output, errors).run(arguments);
    return {status, output.str(), errors.str()};
}

Outcome probe(const std::string& desk, const std::vector<std::string>& more = {}) {
    std::vector<std::string> arguments{"--simulate", desk, "--virtual-time", "--probe"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return run(arguments);
}

std::size_t filesIn(const test::TemporaryFolder& folder) {
    const auto files = std::filesystem::directory_iterator(folder.path());
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

TEST(VantrelAppRecord, WritesADeskFileThatReplaysWhatWasPrintedAndLogged) {
    const test::TemporaryFolder folder;
    const std::string file = folder.path("desk.json");
    const Outcome recorded = probe("hostile", {"--log", "debug", "--record", file});
    EXPECT_EQ(recorded.status, 0);
    const Outcome replayed = probe(file, {"--log", "debug"});
    EXPECT_EQ(replayed.status, 0);
    EXPECT_EQ(replayed.output, recorded.output);
    const std::string line =
        "vantrel: " + file +
        " holds what the monitors answered, under serial numbers that mean nothing: attach it "
        "to a report; --simulate replays it\n";
    EXPECT_EQ(replayed.errors + line, recorded.errors);
    EXPECT_EQ(filesIn(folder), 1U);
}

TEST(VantrelAppRecord, PrintsDisguisedSerialNumbersToo) {
    const test::TemporaryFolder folder;
    EXPECT_THAT(probe("default").output, HasSubstr("serial 28000417)"));
    const Outcome recorded = probe("default", {"--record", folder.path("desk.json")});
    EXPECT_THAT(recorded.output, Not(HasSubstr("28000417")));
    EXPECT_THAT(folder.bytes("desk.json").value_or(""), Not(HasSubstr("28000417")));
}

TEST(VantrelAppRecord, RecordsInRealTime) {
    const test::TemporaryFolder folder;
    const std::string file = folder.path("desk.json");
    folder.put("real.json",
               R"json({"title": "T", "displays": [{"id": 2, "name": "M", "vendor": 1, "product": 2,
        "monitor": {"capabilities": "(vcp(10))", "personality": {"byteTimeUs": 90}}}]})json");
    const Outcome recorded = run({"--simulate", folder.path("real.json"), "--probe", "--record", file});
    EXPECT_EQ(recorded.status, 0);
    EXPECT_THAT(folder.bytes("desk.json").value_or(""), HasSubstr("\"tookMs\": "));
    EXPECT_EQ(probe(file).output, recorded.output);
}

TEST(VantrelAppRecord, OverwritesNothing) {
    const test::TemporaryFolder folder;
    folder.put("desk.json", "precious");
    const Outcome outcome = probe("default", {"--record", folder.path("desk.json")});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "vantrel: can't record into " + folder.path("desk.json") +
                                  ": is there already, and is not overwritten\n");
    EXPECT_EQ(folder.bytes("desk.json"), "precious");
}

TEST(VantrelAppRecord, NamesAFileThatCantBeWrittenBeforeItAsksAnybody) {
    const test::TemporaryFolder folder;
    const std::string file = folder.path("missing/desk.json");
    const Outcome outcome = probe("default", {"--record", file});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "vantrel: can't record into " + file + ".new: No such file or directory\n");
}

TEST(VantrelAppRecord, NamesAMistakeInTheDeskFirst) {
    const test::TemporaryFolder folder;
    EXPECT_THAT(probe("defalt", {"--record", folder.path("desk.json")}).errors,
                HasSubstr("there is no desk file defalt"));
    EXPECT_EQ(filesIn(folder), 0U);
}

}  // namespace
}  // namespace vantrel::app
