#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "linux/BusService.h"
#include "platform/linux/DescriptorThread.h"
#include "platform/linux/LoginManager.h"
#include "runtime/RealScheduler.h"
#include "support/PrivateBus.h"

namespace vantrel::linux {
namespace {

constexpr const char* managerPath = "/org/freedesktop/login1";

// A real bus in real time; nothing depends on how long anything takes.
class LoginManagerTest : public testing::Test {
  protected:
    ~LoginManagerTest() override {
        session.reset();
        bus.reset();
        service.reset();
        scheduler.finishThreads();
    }

    // Before it is asked, or with a word of it.
    void setLid(bool isClosed) {
        service->answer("LidClosed", [isClosed](sd_bus_message*, sd_bus_message* answer) {
            sd_bus_message_append(answer, "v", "b", isClosed ? 1 : 0);
        });
    }
    void announceLid() {
        service->signal(managerPath, "org.freedesktop.DBus.Properties", "PropertiesChanged",
                        [](sd_bus_message* signal) {
                            sd_bus_message_append(signal, "sa{sv}as", "org.freedesktop.login1.Manager", 0, 1,
                                                  "LidClosed");
                        });
    }
    void announceSleep(bool isAboutToSleep) {
        service->signal(
            managerPath, "org.freedesktop.login1.Manager", "PrepareForSleep",
            [&](sd_bus_message* signal) { sd_bus_message_append(signal, "b", isAboutToSleep ? 1 : 0); });
    }
    LoginManager& make() {
        session = std::make_unique<LoginManager>(*bus);
        // Its matches are at the bus when a later call has been answered.
        session->setBacklight("nothing", 1);
        return *session;
    }

    runtime::RealScheduler scheduler;
    runtime::MainLoop loop{scheduler};
    test::PrivateBus daemon;
    DescriptorThread descriptors{loop};
    std::unique_ptr<BusService> service = std::make_unique<BusService>(scheduler, "org.freedesktop.login1");
    std::unique_ptr<Bus> bus = std::make_unique<Bus>(Bus::Kind::system, descriptors, loop);
    std::unique_ptr<LoginManager> session;
};

TEST_F(LoginManagerTest, KnowsTheLidFromTheStart) {
    setLid(true);
    EXPECT_TRUE(make().isLidClosed());
    setLid(false);
    EXPECT_FALSE(make().isLidClosed());
}

TEST_F(LoginManagerTest, TakesALidThatNobodyTellsOfForOpen) { EXPECT_FALSE(make().isLidClosed()); }

TEST_F(LoginManagerTest, TellsEachMoveOfTheLid) {
    setLid(false);
    LoginManager& manager = make();
    std::vector<bool> moves;
    manager.onLid([&] {
        moves.push_back(manager.isLidClosed());
        loop.quit();
    });
    setLid(true);
    announceLid();
    loop.run();
    setLid(false);
    announceLid();
    loop.run();
    EXPECT_EQ(moves, (std::vector<bool>{true, false}));
}

TEST_F(LoginManagerTest, TellsNoMoveWhenSomethingElseChanged) {
    setLid(true);
    LoginManager& manager = make();
    int moves = 0;
    manager.onLid([&] { ++moves; });
    manager.onWake([&] { loop.quit(); });
    announceLid();
    announceSleep(false);
    loop.run();
    EXPECT_EQ(moves, 0);
}

TEST_F(LoginManagerTest, MovesTheLidWithoutAListener) {
    setLid(false);
    LoginManager& manager = make();
    manager.onLid([] { FAIL(); });
    manager.onLid({});
    manager.onWake([&] { loop.quit(); });
    setLid(true);
    announceLid();
    announceSleep(false);
    loop.run();
    EXPECT_TRUE(manager.isLidClosed());
}

TEST_F(LoginManagerTest, WakesEverybodyWhenTheComputerHasWoken) {
    LoginManager& manager = make();
    std::vector<std::string> woken;
    manager.onWake([&] { woken.emplace_back("first"); });
    manager.onWake([&] {
        woken.emplace_back("second");
        loop.quit();
    });
    // Before it sleeps, nobody is woken.
    announceSleep(true);
    announceSleep(false);
    loop.run();
    EXPECT_EQ(woken, (std::vector<std::string>{"first", "second"}));
    announceSleep(true);
    announceSleep(false);
    loop.run();
    EXPECT_EQ(woken.size(), 4U);
}

TEST_F(LoginManagerTest, SetsABacklight) {
    std::string set;
    service->answer("SetBrightness", [&](sd_bus_message* call, sd_bus_message*) {
        const char* subsystem = nullptr;
        const char* name = nullptr;
        std::uint32_t value = 0;
        sd_bus_message_read(call, "ssu", &subsystem, &name, &value);
        set = std::string(sd_bus_message_get_path(call)) + " " + sd_bus_message_get_interface(call) + " " +
              subsystem + " " + name + " " + std::to_string(value);
    });
    session = std::make_unique<LoginManager>(*bus);
    EXPECT_TRUE(session->setBacklight("intel_backlight", 4096));
    EXPECT_EQ(set,
              "/org/freedesktop/login1/session/auto org.freedesktop.login1.Session backlight "
              "intel_backlight 4096");
}

TEST_F(LoginManagerTest, SaysWhenTheManagerRefusesABacklight) {
    EXPECT_FALSE(make().setBacklight("intel_backlight", 4096));
}

TEST_F(LoginManagerTest, DoesWithoutAManager) {
    service.reset();
    LoginManager& manager = make();
    EXPECT_FALSE(manager.isLidClosed());
    EXPECT_FALSE(manager.setBacklight("intel_backlight", 4096));
}

// It starts, or starts again, later than the program.
TEST_F(LoginManagerTest, HearsAManagerThatComesLater) {
    service.reset();
    LoginManager& manager = make();
    service = std::make_unique<BusService>(scheduler, "org.freedesktop.login1");
    setLid(true);
    manager.onLid([&] { loop.quit(); });
    announceLid();
    loop.run();
    EXPECT_TRUE(manager.isLidClosed());
}

TEST_F(LoginManagerTest, DoesWithoutABus) {
    daemon.stop();
    bus = std::make_unique<Bus>(Bus::Kind::system, descriptors, loop);
    LoginManager& manager = make();
    manager.onWake([] { FAIL(); });
    manager.onLid([] { FAIL(); });
    EXPECT_FALSE(manager.isLidClosed());
    EXPECT_FALSE(manager.setBacklight("intel_backlight", 4096));
    loop.runDue();
}

}  // namespace
}  // namespace vantrel::linux
