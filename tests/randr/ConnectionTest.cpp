#include <cmath>
#include <gtest/gtest.h>
#include <memory>
#include <signal.h>
#include <string>

#include "ServerTest.h"
#include "platform/linux/randr/Connection.h"

namespace vantrel::randr {
namespace {

class ConnectionTest : public ServerTest {
  protected:
    // Whether there is news after a round trip, with which all earlier events have come.
    bool hasNews() {
        EXPECT_TRUE(Layout::read(*connection));
        return connection->takeEvents();
    }

    const std::unique_ptr<Connection> connection = Connection::open(display);
};

TEST_F(ConnectionTest, HearsOfOutputsOnly) {
    EXPECT_FALSE(hasNews());
    other.setProperty("DUMMY1", "Backlight", {9});
    EXPECT_FALSE(hasNews());
    other.setProperty("DUMMY1", "EDID", {9});
    EXPECT_TRUE(hasNews());
    EXPECT_FALSE(hasNews());
    xrandr.expect("--output DUMMY1 --off");
    EXPECT_TRUE(hasNews());
}

TEST_F(ConnectionTest, FollowsTheScreensDensity) {
    xrandr.expect("--fb 6000x2000 --dpi 127");
    hasNews();
    EXPECT_NEAR(connection->density().horizontal, 0.2, 0.001);
    EXPECT_NEAR(connection->density().vertical, 0.2, 0.001);
    xrandr.expect("--fb 6000x2000 --dpi 254");
    hasNews();
    EXPECT_NEAR(connection->density().horizontal, 0.1, 0.001);
}

TEST_F(ConnectionTest, SaysWhetherARequestWasTaken) {
    EXPECT_TRUE(connection->succeeds(xcb_randr_set_output_primary_checked(
        connection->get(), connection->root(), other.layout().output("DUMMY0")->id)));
    EXPECT_FALSE(connection->succeeds(
        xcb_randr_set_output_primary_checked(connection->get(), connection->root(), 0xFFFFFF)));
}

TEST_F(ConnectionTest, KeepsAServersEndFromEndingTheProgram) {
    struct sigaction action {};
    ::sigaction(SIGPIPE, nullptr, &action);
    EXPECT_EQ(action.sa_handler, SIG_IGN);
}

}  // namespace
}  // namespace vantrel::randr
