#include <gtest/gtest.h>

#include "app/Computers.h"
#include "platform/simulated/VirtualTime.h"
#include "support/RecordingLogSink.h"
#include "support/TemporaryFolder.h"

namespace vantrel::app {
namespace {

using Computers::Settings;

class ComputersTest : public testing::Test {
  protected:
    // Whether a simulated computer has kept a setting in the folder that the user names.
    bool keeps(Settings settings) {
        CommandLine line;
        line.state = folder.path("state");
        const auto computer = Computers::make(line, simulated::Desk{}, settings, time, loop);
        computer->platform(log).defaults.set("key", std::string("value"));
        return folder.bytes("state/settings.json").has_value();
    }

    simulated::VirtualTime time;
    runtime::MainLoop loop{time};
    test::RecordingLogSink log;
    test::TemporaryFolder folder;
};

TEST_F(ComputersTest, ForgetsSettingsThatNobodyWantsToKeep) { EXPECT_FALSE(keeps(Settings::forgotten)); }

TEST_F(ComputersTest, KeepsSettingsInTheFolderThatTheUserNames) { EXPECT_TRUE(keeps(Settings::kept)); }

}  // namespace
}  // namespace vantrel::app
