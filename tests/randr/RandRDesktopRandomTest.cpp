#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "ServerTest.h"
#include "platform/simulated/Random.h"
#include "support/RandomSeeds.h"

namespace vantrel::randr {
namespace {

using simulated::Random;

// Our calls and another client's in any order, each judged by what xrandr sees.
class RandRDesktopRandomTest : public ServerTest {
  protected:
    struct Remembered {
        std::string arrangement;
        std::string shown;
    };

    const std::vector<std::string> names{"DUMMY0", "DUMMY1", "DUMMY2", "DUMMY3"};

    template <class Items>
    static const auto& any(Random& random, const Items& items) {
        return items[random.uniform(0, items.size() - 1)];
    }

    void expectOnly(const std::string& changed, const Xrandr::Report& before, const Xrandr::Report& after) {
        for (const auto& [name, text] : after) {
            if (name != changed && name != "Screen") {
                EXPECT_EQ(text, before.at(name)) << "with " << changed;
            }
        }
    }

    void darken(const std::string& name, const Xrandr::Report& before) {
        const auto arrangement = desktop->arrangement(name);
        const bool wasLit = Xrandr::isLit(name, before);
        EXPECT_EQ(arrangement.has_value(), wasLit);
        EXPECT_EQ(desktop->darken(name), wasLit);
        const auto after = xrandr.report();
        EXPECT_FALSE(Xrandr::isLit(name, after));
        EXPECT_EQ(after.at("Screen"), before.at("Screen"));
        expectOnly(name, before, after);
        if (wasLit) remembered[name] = {*arrangement, Xrandr::shown(name, before)};
        counts["darkened"] += wasLit ? 1 : 0;
    }

    void light(const std::string& name, const Xrandr::Report& before) {
        const auto found = remembered.find(name);
        const bool isDone = desktop->light(
            name, found == remembered.end() ? std::nullopt : std::optional(found->second.arrangement));
        const auto after = xrandr.report();
        EXPECT_EQ(Xrandr::isLit(name, after), isDone);
        if (!isDone || Xrandr::isLit(name, before)) {
            EXPECT_EQ(after.at("Screen"), before.at("Screen"));
            EXPECT_EQ(after.at(name), before.at(name));
        }
        // Who was the primary one needn't be it any more.
        if (Xrandr::shown(name, after).find("primary") == std::string::npos || !isDone) {
            expectOnly(name, before, after);
        } else {
            for (const auto& other : names) {
                EXPECT_EQ(Xrandr::isLit(other, after), other == name || Xrandr::isLit(other, before));
            }
        }
        if (isDone && found != remembered.end() && Xrandr::shown(name, after) == found->second.shown) {
            ++counts["as before"];
        }
        ++counts[isDone ? "lit" : "not lit"];
    }

    void disturb(Random& random, const std::string& name) {
        const std::vector<std::string> acts{
            "--off",       "--auto",        "--mode 1280x1024", "--mode 1920x1080 --pos 0x0",
            "--primary",   "--rotate left", "--rotate normal",  "--mode 1280x1024 --pos 1920x200",
            "--reflect x", "--pos 4000x100"};
        // It may well be refused.
        xrandr.run("--dpi 96 --output " + name + " " + any(random, acts));
        ++counts["disturbed"];
    }

    std::map<std::string, Remembered> remembered;
    std::map<std::string, int> counts;
};

TEST_F(RandRDesktopRandomTest, EveryCallDoesWhatItSaysBetweenThoseOfAnotherClient) {
    test::forRandomSeeds(6, [this](std::uint64_t seed) {
        Random random(seed);
        for (int step = 0; step < 60 && !HasFailure(); ++step) {
            SCOPED_TRACE("step " + std::to_string(step));
            const std::string& name = any(random, names);
            const auto before = xrandr.report();
            switch (random.uniform(0, 3)) {
                case 0:
                    darken(name, before);
                    break;
                case 1:
                case 2:
                    light(name, before);
                    break;
                default:
                    disturb(random, name);
            }
            const auto seen = xrandr.report();
            for (const auto& output : desktop->outputs()) {
                EXPECT_EQ(output.isLit, Xrandr::isLit(output.name, seen)) << output.name;
            }
            loop.runDue();
        }
    });
    for (const auto& [what, count] : counts) RecordProperty(what, count);
    for (const char* const what : {"darkened", "lit", "not lit", "as before", "disturbed"}) {
        EXPECT_GT(counts[what], 0) << what;
    }
}

}  // namespace
}  // namespace vantrel::randr
