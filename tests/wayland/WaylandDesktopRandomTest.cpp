#include <algorithm>
#include <map>
#include <optional>
#include <random>

#include "support/RandomSeeds.h"
#include "wayland/WaylandRig.h"

namespace vantrel::wayland {
namespace {

// What may happen to three monitors, and what a user may ask for meanwhile. Whatever the
// desktop claims afterwards is compared with what the compositor really does.
class RandomRun : public WaylandRig {
  public:
    RandomRun(std::uint64_t seed, bool isKDE)
        : WaylandRig({4, true, !isKDE, isKDE},
                     {MockMonitor("DP-1"), MockMonitor("DP-2", 1920), MockMonitor("DP-3", 3840)}),
          chance_(seed) {}

    void TestBody() override {
        for (int step = 0; step < 40 && !HasFailure(); ++step) {
            act();
            compare();
        }
    }

  private:
    std::size_t pick(std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(chance_);
    }

    void act() {
        const std::string name = "DP-" + std::to_string(1 + pick(3));
        switch (pick(7)) {
            case 0:
                return darken(name);
            case 1:
                return light(name);
            case 2:
                return replug(name, false);
            case 3:
                return replug(name, true);
            case 4:
                return move(name);
            case 5:
                return setTable(name);
            default:
                return misbehave();
        }
    }

    void darken(const std::string& name) {
        const auto before = desktop->arrangement(name);
        const bool wasThere = isPlugged(name);
        if (before) arrangements_[name] = *before;
        const bool isSpoilt = willMisbehave();
        const bool isTaken = desktop->darken(name);
        if (isTaken) {
            EXPECT_FALSE(state(name).isEnabled) << name;
        }
        EXPECT_TRUE(wasThere || !isTaken) << name;
        EXPECT_TRUE(!wasThere || isTaken || isSpoilt) << name;
    }
    void light(const std::string& name) {
        const auto kept = arrangements_.find(name);
        const bool isSpoilt = willMisbehave();
        const bool isTaken =
            desktop->light(name, kept != arrangements_.end() ? std::optional(kept->second) : std::nullopt);
        EXPECT_TRUE(isPlugged(name) || !isTaken) << name;
        EXPECT_TRUE(!isPlugged(name) || isTaken || isSpoilt) << name;
        if (isTaken && kept != arrangements_.end() && !isSpoilt) {
            EXPECT_EQ(desktop->arrangement(name), kept->second) << name;
        }
    }
    void replug(const std::string& name, bool isPlugged) {
        compositor.change([&](MockDesk& desk) {
            for (const auto& monitor : desk.monitors) {
                if (monitor->name == name) monitor->isPlugged = isPlugged;
            }
        });
    }
    void move(const std::string& name) {
        const int y = static_cast<int>(pick(1000));
        const std::size_t mode = pick(2);
        compositor.change([&](MockDesk& desk) {
            for (const auto& monitor : desk.monitors) {
                if (monitor->name != name) continue;
                monitor->state.y = y;
                monitor->state.mode = mode;
            }
        });
    }
    void setTable(const std::string& name) {
        const auto table = pick(3) == 0 ? plain() : dimmed();
        if (!desktop->setTable(name, table)) return;
        EXPECT_EQ(desktop->table(name), table);
        std::vector<std::uint16_t> samples;
        compositor.run([&](MockDesk& desk) { samples = desk.monitor(name).table; });
        EXPECT_EQ(samples.empty(), table == plain()) << name;
    }
    void misbehave() {
        const auto answer = pick(2) == 0 ? MockDesk::Answer::fail : MockDesk::Answer::cancel;
        compositor.run([&](MockDesk& desk) { desk.answers = {answer}; });
    }

    bool willMisbehave() {
        bool isSpoilt = false;
        compositor.run([&](MockDesk& desk) { isSpoilt = !desk.answers.empty(); });
        return isSpoilt;
    }
    std::vector<MockMonitor> monitors() {
        std::vector<MockMonitor> all;
        compositor.run([&](MockDesk& desk) {
            for (const auto& monitor : desk.monitors) all.push_back(*monitor);
        });
        return all;
    }
    bool isPlugged(const std::string& name) {
        for (const MockMonitor& monitor : monitors()) {
            if (monitor.name == name) return monitor.isPlugged;
        }
        return false;
    }
    MockMonitor::State state(const std::string& name) {
        for (const MockMonitor& monitor : monitors()) {
            if (monitor.name == name) return monitor.state;
        }
        return {};
    }

    // What the compositor has told until now is there to be read.
    void compare() {
        const auto outputs = desktop->outputs();
        for (const MockMonitor& monitor : monitors()) {
            const auto found = std::find_if(outputs.begin(), outputs.end(), [&](const Output& output) {
                return output.name == monitor.name;
            });
            ASSERT_EQ(found != outputs.end(), monitor.isPlugged) << monitor.name;
            if (found == outputs.end()) continue;
            ASSERT_EQ(found->isLit, monitor.isLit()) << monitor.name;
            if (!monitor.isLit()) continue;
            const MockMonitor::Mode& mode = monitor.modes.at(monitor.state.mode);
            ASSERT_NE(found->place.find("mode=" + std::to_string(mode.width) + "x"), std::string::npos);
            ASSERT_NE(found->place.find("," + std::to_string(monitor.state.y) + " "), std::string::npos);
        }
    }

    std::mt19937_64 chance_;
    std::map<std::string, std::string> arrangements_;
};

TEST(WaylandDesktopRandom, ClaimsWhatTheCompositorDoesWithTheProtocolOfWlroots) {
    test::forRandomSeeds(60, [](std::uint64_t seed) { RandomRun(seed, false).TestBody(); });
}

TEST(WaylandDesktopRandom, ClaimsWhatTheCompositorDoesWithTheProtocolOfKDE) {
    test::forRandomSeeds(60, [](std::uint64_t seed) { RandomRun(seed, true).TestBody(); });
}

}  // namespace
}  // namespace vantrel::wayland
