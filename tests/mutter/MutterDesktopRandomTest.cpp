#include <map>
#include <optional>
#include <random>

#include "mutter/MockRules.h"
#include "mutter/MutterRig.h"
#include "support/RandomSeeds.h"

namespace vantrel::mutter {
namespace {

// What may happen to three monitors, and what a user may ask for meanwhile. Whatever the
// desktop claims afterwards is compared with what the service really has.
class RandomRun : public MutterRig {
  public:
    explicit RandomRun(std::uint64_t seed) : chance_(seed) {}

    void TestBody() override {
        for (int step = 0; step < 30 && !HasFailure(); ++step) {
            act();
            compare();
        }
    }

  private:
    std::size_t pick(std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(chance_);
    }

    void act() {
        static constexpr const char* connectors[] = {"DP-1", "DP-2", "HDMI-1"};
        const std::string connector = connectors[pick(3)];
        switch (pick(6)) {
            case 0:
            case 1:
                return darken(connector);
            case 2:
            case 3:
                return light(connector);
            case 4:
                return replug(connector);
            default:
                mutter.run(
                    [this](MockMutter::Desk& desk) { desk.interruptions = static_cast<int>(pick(3)); });
        }
    }

    void darken(const std::string& connector) {
        const MockMutter::Desk before = mutter.desk();
        const auto arrangement = desktop->arrangement(connector);
        EXPECT_EQ(arrangement.has_value(), before.find(connector) != nullptr);
        const bool isLast = before.logical.size() == 1 && before.find(connector) != nullptr;
        const bool isTaken = desktop->darken(connector);
        EXPECT_EQ(isTaken, isPlugged(before, connector) && !isLast) << connector;
        if (isTaken && arrangement)
            arrangements_[connector] = {*arrangement, before.logical, mutter.desk().logical};
    }
    void light(const std::string& connector) {
        const MockMutter::Desk before = mutter.desk();
        const auto kept = arrangements_.find(connector);
        const bool isTaken = desktop->light(
            connector, kept != arrangements_.end() ? std::optional(kept->second.arrangement) : std::nullopt);
        EXPECT_EQ(isTaken, isPlugged(before, connector)) << connector;
        // Where nothing has happened meanwhile, all is as it was.
        if (isTaken && kept != arrangements_.end() && before.logical == kept->second.darkened) {
            EXPECT_EQ(mutter.desk().logical, kept->second.lit) << connector;
        }
    }
    // As Mutter does it: what is left is laid out anew.
    void replug(const std::string& connector) {
        mutter.change([&](MockMutter::Desk& desk) {
            MockScreen& screen = desk.screen(connector);
            screen.isPlugged = !screen.isPlugged;
            desk.logical.clear();
            int x = 0;
            for (const MockScreen& other : desk.screens) {
                if (!other.isPlugged) continue;
                desk.logical.push_back(
                    {x, 0, 1, 0, desk.logical.empty(), {{other.connector, "1920x1080@60.000"}}});
                x += 1920;
            }
        });
    }

    static bool isPlugged(MockMutter::Desk desk, const std::string& connector) {
        return desk.screen(connector).isPlugged;
    }

    void compare() {
        MockMutter::Desk desk = mutter.desk();
        const auto outputs = desktop->outputs();
        std::size_t plugged = 0;
        for (const MockScreen& screen : desk.screens) plugged += screen.isPlugged ? 1U : 0U;
        ASSERT_EQ(outputs.size(), plugged);
        for (const Output& output : outputs) {
            const Logical* const part = desk.find(output.name);
            ASSERT_EQ(output.isLit, part != nullptr) << output.name;
            ASSERT_EQ(output.tableCapacity, part != nullptr ? 256U : 0U);
        }
        if (!desk.logical.empty()) {
            ASSERT_EQ(MockRules::objection(desk, desk.logical), "");
        }
    }

    struct Darkened {
        std::string arrangement;
        std::vector<Logical> lit;
        std::vector<Logical> darkened;
    };

    std::mt19937_64 chance_;
    std::map<std::string, Darkened> arrangements_;
};

TEST(MutterDesktopRandom, ClaimsWhatMutterDoes) {
    test::forRandomSeeds(50, [](std::uint64_t seed) { RandomRun(seed).TestBody(); });
}

}  // namespace
}  // namespace vantrel::mutter
