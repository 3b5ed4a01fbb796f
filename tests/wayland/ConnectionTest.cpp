#include "platform/linux/wayland/Connection.h"
#include "wayland/WaylandRig.h"

namespace vantrel::wayland {
namespace {

class ConnectionTest : public WaylandRig {
  protected:
    std::unique_ptr<Connection> connection = Connection::open(compositor.socket());
};

TEST_F(ConnectionTest, IsNotThereWhereNobodyListens) {
    EXPECT_EQ(Connection::open("/nowhere/wayland-0"), nullptr);
}

TEST_F(ConnectionTest, KnowsWhenTheCompositorHasDoneAllThatItWasAskedFor) {
    EXPECT_TRUE(connection->roundtrip(Deadline(clock, std::chrono::hours(1))));
    compositor.die();
    EXPECT_FALSE(connection->roundtrip(Deadline(clock, std::chrono::hours(1))));
    EXPECT_FALSE(connection->isAlive());
}

TEST_F(ConnectionTest, WaitsForNobodyWhoOnlyTalks) {
    const Globals globals(*connection, false);
    ASSERT_TRUE(connection->roundtrip(Deadline(clock, std::chrono::hours(1))));
    int looks = 0;
    clock.hurry();
    const bool isDone = connection->wait(
        [&] {
            compositor.change([&](MockDesk& desk) { desk.monitor("DP-1").state.y = looks; });
            return ++looks == 1000;
        },
        Deadline(clock, std::chrono::seconds(2)));
    clock.calmDown();
    EXPECT_FALSE(isDone);
    EXPECT_LT(looks, 10);
    EXPECT_TRUE(connection->isAlive());
}

}  // namespace
}  // namespace vantrel::wayland
