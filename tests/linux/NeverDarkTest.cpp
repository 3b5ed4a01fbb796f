// That nobody is left in the dark, by whatever order of what people, cables, lids, desktops
// and crashes do.
#include <cstddef>
#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "linux/DarkWorld.h"
#include "platform/simulated/Random.h"
#include "support/RandomSeeds.h"

namespace vantrel::linux {
namespace {

using Habits = DarkWorld::Habits;
using Victim = DarkWorld::Victim;

struct Act {
    std::string name;
    std::function<void(DarkWorld&)> happen;
};
using Acts = std::vector<Act>;

std::string story(const Acts& acts) {
    std::string text;
    for (const Act& act : acts) text += (text.empty() ? "" : ", ") + act.name;
    return text;
}

Act darken(std::size_t output) {
    return {"darken " + std::to_string(output), [output](DarkWorld& world) { world.darken(output); }};
}
Act light(std::size_t output) {
    return {"light " + std::to_string(output), [output](DarkWorld& world) { world.light(output); }};
}
Act plug(std::size_t output) {
    return {"plug " + std::to_string(output), [output](DarkWorld& world) { world.plug(output); }};
}
Act unplug(std::size_t output) {
    return {"unplug " + std::to_string(output), [output](DarkWorld& world) { world.unplug(output); }};
}
Act turnOff(std::size_t output) {
    return {"another program turns off " + std::to_string(output),
            [output](DarkWorld& world) { world.turn(output, false); }};
}
Act turnOn(std::size_t output) {
    return {"another program turns on " + std::to_string(output),
            [output](DarkWorld& world) { world.turn(output, true); }};
}
Act crashAt(Victim victim, unsigned point) {
    return {
        std::string(victim == Victim::program ? "program" : "guard") + " crashes at " + std::to_string(point),
        [victim, point](DarkWorld& world) { world.crashAt(victim, point); }};
}
Act refuse(unsigned times) {
    return {"refuse " + std::to_string(times), [times](DarkWorld& world) { world.refuse(times); }};
}
const Act moveLid{"move lid", [](DarkWorld& world) { world.moveLid(); }};
const Act end{"crash", [](DarkWorld& world) { world.endProgram(); }};
const Act start{"start", [](DarkWorld& world) { world.startProgram(); }};
const Act killGuard{"kill guard", [](DarkWorld& world) { world.killGuard(); }};

// Every habit that two bits of a number can tell, and who is faster.
Habits habits(std::uint64_t number) {
    return {.lightsPlugged = (number & 1) != 0,
            .dropsUnplugged = (number & 2) != 0,
            .keepsPicture = (number & 4) != 0,
            .isGuardFirst = (number & 8) != 0,
            .isGuardQuick = (number & 16) != 0};
}

// False at the first thing that is wrong.
bool isWellAfterEach(const DarkWorld::Kernel& kernel, const Habits& habits, const Acts& acts) {
    DarkWorld world(kernel, habits);
    world.settle();
    for (const Act& act : acts) {
        act.happen(world);
        world.settle();
        const std::string wrong = world.wrong();
        EXPECT_EQ(wrong, "") << story(acts);
        if (!wrong.empty()) return false;
    }
    return true;
}

// Every sequence of so many acts, each checked after every step.
void tryAll(const DarkWorld::Kernel& kernel, const Habits& habits, const Acts& alphabet, std::size_t length) {
    std::vector<std::size_t> places(length, 0);
    while (true) {
        Acts acts;
        for (const std::size_t place : places) acts.push_back(alphabet[place]);
        if (!isWellAfterEach(kernel, habits, acts)) return;
        std::size_t at = 0;
        while (at < length && ++places[at] == alphabet.size()) places[at++] = 0;
        if (at == length) return;
    }
}

class NeverDarkTest : public testing::Test {
  protected:
    const DarkWorld::Kernel laptop{{"eDP-1", "DP-1"}, DarkWorld::Kernel::Knows::nothing};
    const DarkWorld::Kernel desk{{"DP-1", "DP-2"}, DarkWorld::Kernel::Knows::nothing};
};

TEST_F(NeverDarkTest, TurnsOffAndOnAndLeavesTheLastOne) {
    DarkWorld world(desk, {});
    world.settle();
    world.darken(0);
    world.settle();
    EXPECT_FALSE(world.isLit(0));
    EXPECT_TRUE(world.isGuarded());
    world.darken(1);
    world.settle();
    EXPECT_TRUE(world.isLit(1));
    world.light(0);
    world.settle();
    EXPECT_TRUE(world.isLit(0));
    EXPECT_EQ(world.place(0), "place of DP-1");
    EXPECT_FALSE(world.isGuarded());
    EXPECT_EQ(world.wrong(), "");
}

TEST_F(NeverDarkTest, IsGuardedAfterACrash) {
    DarkWorld world(desk, {});
    world.settle();
    world.darken(0);
    world.settle();
    world.endProgram();
    world.unplug(1);
    world.settle();
    EXPECT_TRUE(world.isLit(0));
    EXPECT_EQ(world.place(0), "place of DP-1");
    EXPECT_FALSE(world.isGuarded());
}

TEST_F(NeverDarkTest, IsLitByTheNextProgramWhenProgramAndGuardCrashed) {
    DarkWorld world(desk, {});
    world.settle();
    world.darken(0);
    world.settle();
    world.endProgram();
    world.killGuard();
    world.unplug(1);
    world.settle();
    EXPECT_FALSE(world.isLit(0));
    world.startProgram();
    world.settle();
    EXPECT_TRUE(world.isLit(0));
}

TEST_F(NeverDarkTest, IsGuardedAgainByTheNextProgram) {
    DarkWorld world(desk, {});
    world.settle();
    world.darken(0);
    world.settle();
    world.killGuard();
    world.endProgram();
    world.startProgram();
    world.settle();
    EXPECT_FALSE(world.isLit(0));
    EXPECT_TRUE(world.isGuarded());
}

// The world itself can tell.
TEST_F(NeverDarkTest, WouldNoticeTheDark) {
    DarkWorld world(desk, {.isGuardQuick = false});
    world.settle();
    world.darken(0);
    world.settle();
    world.killGuard();
    world.endProgram();
    world.turn(1, false);
    EXPECT_EQ(world.wrong(), "");
    world.startProgram();
    EXPECT_EQ(world.wrong(), "DP-1 is dark, and nothing can be seen");
    world.settle();
    EXPECT_EQ(world.wrong(), "");
}

TEST_F(NeverDarkTest, KeepsALightByEveryOrderOfActsOnALaptop) {
    const Acts alphabet{darken(0), darken(1), light(0), light(1), unplug(1), plug(1), moveLid, end, start};
    for (const std::uint64_t number : {0U, 31U}) tryAll(laptop, habits(number), alphabet, 4);
}

TEST_F(NeverDarkTest, KeepsALightByEveryOrderOfActsAtADesk) {
    const Acts alphabet{darken(0), darken(1),  light(0),  unplug(0), unplug(1), plug(0),
                        plug(1),   turnOff(1), turnOn(0), end,       start};
    for (const std::uint64_t number : {1U, 30U}) tryAll(desk, habits(number), alphabet, 4);
}

TEST_F(NeverDarkTest, KeepsALightByLongerOrdersOfTheFewestActs) {
    const Acts alphabet{darken(0), light(0), unplug(1), plug(1), end, start};
    for (const std::uint64_t number : {1U, 28U}) tryAll(desk, habits(number), alphabet, 5);
}

TEST_F(NeverDarkTest, KeepsALightThoughTheDesktopRefuses) {
    const Acts alphabet{darken(0), light(0),  unplug(1), plug(1), turnOff(1),
                        refuse(1), refuse(3), killGuard, end,     start};
    tryAll(desk, habits(31), alphabet, 4);
}

// Each crash at each word of each operation, and what then may happen.
TEST_F(NeverDarkTest, KeepsALightWhereverAProcessCrashes) {
    const Acts before{light(0), darken(0), unplug(1), turnOff(1), turnOn(0), end};
    const Acts operations{darken(0), light(0), unplug(1), turnOff(1), start};
    const Acts after{unplug(1), turnOff(1), start, darken(0)};
    for (const std::uint64_t number : {0U, 17U, 25U}) {
        for (const Victim victim : {Victim::program, Victim::guard}) {
            for (unsigned point = 1; point <= 10; ++point) {
                for (const Act& first : before) {
                    for (const Act& second : operations) {
                        for (const Act& third : after) {
                            for (const Act& fourth : after) {
                                const Acts acts{first, crashAt(victim, point), second, third, fourth};
                                if (!isWellAfterEach(desk, habits(number), acts)) return;
                            }
                        }
                    }
                }
            }
        }
    }
}

Acts randomAlphabet(std::size_t outputs) {
    Acts acts{moveLid, end, start, start, refuse(1), refuse(2), killGuard};
    for (std::size_t output = 0; output < outputs; ++output) {
        for (const auto& make : {darken, light, plug, unplug, turnOff, turnOn}) acts.push_back(make(output));
        acts.push_back(darken(output));
    }
    return acts;
}

// Also with several things at once, before anybody has heard of any.
TEST(NeverDark, KeepsALightByAnyOrderOfAnything) {
    const std::vector<std::string> names{"DP-1", "DP-2", "DP-3"};
    std::vector<std::unique_ptr<DarkWorld::Kernel>> kernels;
    for (const bool isLaptop : {false, true}) {
        for (std::size_t externals = 1; externals <= 3; ++externals) {
            std::vector<std::string> outputs(names.begin(),
                                             names.begin() + static_cast<std::ptrdiff_t>(externals));
            if (isLaptop) outputs.insert(outputs.begin(), "eDP-1");
            kernels.push_back(std::make_unique<DarkWorld::Kernel>(outputs));
        }
    }
    test::forRandomSeeds(1500, [&kernels](std::uint64_t seed) {
        simulated::Random random(seed);
        const DarkWorld::Kernel& kernel = *kernels[random.uniform(0, kernels.size() - 1)];
        const std::size_t outputs = kernel.connectors().size();
        const Acts alphabet = randomAlphabet(outputs);
        DarkWorld world(kernel, habits(random.next()));
        world.settle();
        Acts acts;
        for (std::uint64_t steps = random.uniform(1, 40); steps > 0; --steps) {
            if (random.chance(0.15)) {
                const Victim victim = random.chance(0.6) ? Victim::program : Victim::guard;
                acts.push_back(crashAt(victim, static_cast<unsigned>(random.uniform(1, 12))));
            } else {
                acts.push_back(alphabet[random.uniform(0, alphabet.size() - 1)]);
            }
            acts.back().happen(world);
            if (random.chance(0.3)) continue;
            world.settle();
            ASSERT_EQ(world.wrong(), "") << story(acts);
        }
        // Whatever it was: it can be undone.
        world.crashNoMore();
        world.refuse(0);
        world.startProgram();
        for (std::size_t output = 0; output < outputs; ++output) world.plug(output);
        world.settle();
        for (std::size_t output = 0; output < outputs; ++output) world.light(output);
        world.settle();
        world.changeNothing();
        world.settle();
        EXPECT_EQ(world.wrong(), "") << story(acts);
        EXPECT_EQ(world.darkBecauseOfProgram(), 0U) << story(acts);
        EXPECT_FALSE(world.isGuarded()) << story(acts);
    });
}

}  // namespace
}  // namespace vantrel::linux
