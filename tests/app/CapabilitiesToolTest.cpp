#include <gtest/gtest.h>
#include <sstream>
#include <string>

#include "app/CapabilitiesTool.h"

namespace vantrel::app {
namespace {

using namespace std::string_literals;

struct Outcome {
    int status;
    std::string output;
    bool operator==(const Outcome&) const = default;
};

Outcome run(const std::string& bytes) {
    std::istringstream input(bytes);
    std::ostringstream output;
    const int status = CapabilitiesTool::run(input, output);
    return {status, output.str()};
}

TEST(CapabilitiesTool, PrintsTheResultAsItIsKept) {
    const Outcome expected{0, R"json({"raw":"vcp(10 14(05))","codes":[16,20],"values":[20,[5]]})json"
                              "\n"};
    EXPECT_EQ(run("vcp(10 14(05))"), expected);
}

TEST(CapabilitiesTool, TakesAFinalLineBreakForTheFiles) {
    EXPECT_EQ(run("vcp(10)\n"), run("vcp(10)"));
    EXPECT_EQ(run("vcp(10)\r\n"), run("vcp(10)"));
}

TEST(CapabilitiesTool, TakesAnyOtherLineBreakForTheMonitors) {
    EXPECT_EQ(run("\nvcp(10)\n\n").output, R"json({"raw":"\nvcp(10)\n","codes":[16],"values":[]})json"
                                           "\n");
}

TEST(CapabilitiesTool, TreatsBytesAsIfAMonitorHadSentThem) {
    EXPECT_EQ(run("vcp(1\0"
                  "0\xFF)"s)
                  .output,
              "{\"raw\":\"vcp(10\xEF\xBF\xBD)\",\"codes\":[16],\"values\":[]}\n");
}

TEST(CapabilitiesTool, PrintsNoneWhenThereIsNothingInIt) {
    const Outcome none{1, "none\n"};
    for (const char* text : {"", "\n", "(prot(monitor))", "vcp()"}) EXPECT_EQ(run(text), none) << text;
}

}  // namespace
}  // namespace vantrel::app
