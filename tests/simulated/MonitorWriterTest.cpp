#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "platform/simulated/MonitorWriter.h"
#include "simulated/MonitorBench.h"
#include "support/DeathTest.h"

namespace vantrel::simulated {
namespace {

using namespace std::chrono_literals;
using platform::Transfer;

std::string written(const MonitorPlan& plan) { return MonitorWriter::object(plan).dump(); }

TEST(MonitorWriter, WritesNothingOfAMonitorThatSaysNothing) { EXPECT_EQ(written({}), "{}"); }

TEST(MonitorWriter, WritesFeatures) {
    MonitorPlan plan;
    plan.features[0x02] = {1, 255, 0, false};
    plan.features[0xFF].unsupported = true;
    EXPECT_EQ(written(plan),
              R"({"features":{"0x02":{"type":1,"current":255,"maximum":0},"0xFF":{"unsupported":true}}})");
}

TEST(MonitorWriter, WritesInputs) {
    MonitorPlan plan;
    plan.inputs = InputPlan{0x0F, 0x11, {0x0F, 0x11, 0x0F1B}};
    EXPECT_EQ(written(plan),
              R"({"inputs":{"available":["0x0F","0x11","0xF1B"],"computer":"0x0F","shown":"0x11"}})");
    plan.inputs->shown = 0x0F;
    EXPECT_EQ(written(plan), R"({"inputs":{"available":["0x0F","0x11","0xF1B"],"computer":"0x0F"}})");
}

TEST(MonitorWriter, WritesThatAMonitorIsDead) {
    MonitorPlan plan;
    plan.personality.dead = true;
    EXPECT_EQ(written(plan), R"({"personality":{"dead":true}})");
}

using MonitorWriterDeathTest = test::DeathTest;

TEST_F(MonitorWriterDeathTest, KnowsNoOtherPersonality) {
    MonitorPlan plan;
    plan.personality.writesNeeded = 2;
    EXPECT_DEATH(written(plan), "a personality is written that no recording has");
}

TEST(MonitorWriter, WritesATextForBytesThatAreOne) {
    EXPECT_EQ(MonitorWriter::bytes("(vcp(10) \u00B5)").dump(), "\"(vcp(10) \u00B5)\"");
    EXPECT_EQ(MonitorWriter::bytes("").dump(), R"("")");
    EXPECT_EQ(MonitorWriter::bytes("a\nb").dump(), R"({"hex":"61 0A 62"})");
    EXPECT_EQ(MonitorWriter::bytes("\xFF").dump(), R"({"hex":"FF"})");
    EXPECT_EQ(MonitorWriter::bytes(std::string(1, '\0')).dump(), R"({"hex":"00"})");
}

TEST(MonitorWriter, WritesTransfersWithWhatIsNotUsual) {
    MonitorPlan plan;
    plan.recording = {
        {0us, 0us, Transfer::Direction::write, 0x37, 0x51, bytes(get10), 4, 0},
        {1500us, 360us, Transfer::Direction::read, 0x37, 0, bytes("6E 80 BE"), 3, 0},
        {2ms, 1ms, Transfer::Direction::read, 0x37, 1, {}, 11, static_cast<std::int32_t>(0xE00002ED)},
        {2ms, 0us, Transfer::Direction::write, 0x50, 0, {}, 0, 1},
    };
    EXPECT_EQ(written(plan), R"({"recording":[{"atMs":0,"write":"82 01 10 AC"},)"
                             R"({"atMs":1.5,"tookMs":0.36,"read":"6E 80 BE"},)"
                             R"({"atMs":2,"tookMs":1,"address":"0x01","read":11,"status":"0xE00002ED"},)"
                             R"({"atMs":2,"chip":"0x50","address":"0x00","write":"","status":"0x01"}]})");
}

}  // namespace
}  // namespace vantrel::simulated
