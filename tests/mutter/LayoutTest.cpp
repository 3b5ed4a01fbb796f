#include <algorithm>
#include <gtest/gtest.h>
#include <random>

#include "platform/linux/mutter/Layout.h"
#include "support/RandomSeeds.h"

namespace vantrel::mutter {
namespace {

LogicalMonitor part(const std::string& connector, int x, int y, int width = 1920, int height = 1080) {
    LogicalMonitor part;
    part.x = x;
    part.y = y;
    part.width = width;
    part.height = height;
    part.modes = {{connector, "1920x1080@60.000"}};
    return part;
}

LogicalMonitor primary(LogicalMonitor part) {
    part.isPrimary = true;
    return part;
}

Layout pair() { return Layout({primary(part("DP-1", 0, 0)), part("DP-2", 1920, 0)}); }

TEST(Layout, IsOneLineThatIsReadBack) {
    auto turned = part("DP-2", 1920, -20, 720, 1280);
    turned.scale = 1.5;
    turned.transform = 3;
    turned.modes["DP-3"] = "1920x1080@59.94+vrr";
    const Layout layout({primary(part("DP-1", 0, 20)), turned});
    EXPECT_EQ(layout.line(),
              "mutter 0,20,1920,1080,1,0,1;DP-1=1920x1080@60.000 "
              "1920,-20,720,1280,1.5,3,0;DP-2=1920x1080@60.000;DP-3=1920x1080@59.94+vrr");
    EXPECT_EQ(pair(), Layout::read(pair().line()));
}

TEST(Layout, ReadsAScaleThatNoShortNumberIs) {
    auto odd = primary(part("DP-1", 0, 0));
    odd.scale = 4.0 / 3;
    EXPECT_EQ(Layout::read(Layout({odd}).line())->parts().front().scale, 4.0 / 3);
}

TEST(Layout, DoesNotReadADamagedLine) {
    const std::string good = pair().line();
    ASSERT_TRUE(Layout::read(good));
    for (std::size_t length = 0; length < good.size(); ++length) {
        const auto shortened = Layout::read(good.substr(0, length));
        // A shorter name or mode is another one.
        if (shortened) {
            EXPECT_EQ(shortened->line(), good.substr(0, length));
        }
    }
    for (const char* const line :
         {"", "mutter", "wayland mode=1x1@1", "mutter 0,0,1920,1080,1,0,1", "mutter 0,0,1920,1080,1,0,1;",
          "mutter 0,0,1920,1080,1,0,1;DP-1", "mutter 0,0,1920,1080,0,0,1;DP-1=m",
          "mutter 0,0,-5,1080,1,0,1;DP-1=m", "mutter 0,0,1920,1080,1,0,2;DP-1=m",
          "mutter 0,0,1920,1080,nan,0,1;DP-1=m", "mutter 0,0,99999999,1080,1,0,1;DP-1=m",
          "mutter 0,0,1920,1080,1,0,1;DP-1=m ", "mutter 0,0,1920,1080,1,0,1;DP-1=m;DP-1=n"}) {
        EXPECT_EQ(Layout::read(line), std::nullopt) << line;
    }
}

TEST(Layout, DoesNotReadWhatMutterWouldNotTake) {
    EXPECT_EQ(Layout::read(Layout({part("DP-1", 0, 0)}).line()), std::nullopt);
    EXPECT_EQ(Layout::read(Layout({primary(part("DP-1", 5, 0))}).line()), std::nullopt);
}

TEST(Layout, IsAcceptableByMuttersRules) {
    EXPECT_TRUE(pair().isAcceptable());
    EXPECT_FALSE(Layout().isAcceptable());
    EXPECT_FALSE(Layout({primary(part("DP-1", 0, 0)), part("DP-2", 1919, 0)}).isAcceptable());
    EXPECT_FALSE(Layout({primary(part("DP-1", 0, 0)), part("DP-2", 1921, 0)}).isAcceptable());
    EXPECT_FALSE(Layout({primary(part("DP-1", 0, 0)), part("DP-2", 1920, 1080)}).isAcceptable());
    EXPECT_FALSE(Layout({primary(part("DP-1", 0, 10)), part("DP-2", 1920, 10)}).isAcceptable());
    EXPECT_FALSE(Layout({primary(part("DP-1", -1920, 0)), part("DP-2", 0, 0)}).isAcceptable());
    EXPECT_FALSE(Layout({part("DP-1", 0, 0), part("DP-2", 1920, 0)}).isAcceptable());
    EXPECT_FALSE(Layout({primary(part("DP-1", 0, 0)), primary(part("DP-2", 1920, 0))}).isAcceptable());
}

TEST(Layout, MovesNothingThatNeedNotMove) {
    EXPECT_EQ(pair().without("DP-2"), Layout({primary(part("DP-1", 0, 0))}));
    EXPECT_EQ(pair().without("DP-9"), pair());
}

TEST(Layout, HasNothingLeftWithoutItsOnlyPart) {
    EXPECT_TRUE(Layout({primary(part("DP-1", 0, 0))}).without("DP-1").parts().empty());
}

TEST(Layout, PutsANewcomerBesideTheRightmost) {
    const Layout layout({primary(part("DP-1", 0, 500)), part("DP-2", 1920, 0)});
    const auto newcomer = primary(part("DP-3", 7, 7));
    const Layout more = layout.withNewcomer(newcomer);
    const LogicalMonitor* const there = more.find("DP-3");
    ASSERT_NE(there, nullptr);
    EXPECT_EQ(there->x, 3840);
    EXPECT_EQ(there->y, 0);
    EXPECT_FALSE(there->isPrimary);
    EXPECT_TRUE(more.isAcceptable());
}

TEST(Layout, MakesTheOnlyNewcomerThePrimaryOne) {
    EXPECT_TRUE(Layout().withNewcomer(part("DP-1", 7, 7)).isAcceptable());
}

// Any layout that is acceptable, one part after the other at some side of another one.
Layout randomLayout(std::mt19937_64& chance) {
    const auto pick = [&](int from, int to) { return std::uniform_int_distribution<int>(from, to)(chance); };
    std::vector<LogicalMonitor> parts{primary(part("DP-0", 0, 0, pick(1, 40), pick(1, 40)))};
    const auto count = static_cast<std::size_t>(pick(1, 6));
    while (parts.size() < count) {
        const LogicalMonitor& other =
            parts[static_cast<std::size_t>(pick(0, static_cast<int>(parts.size()) - 1))];
        auto next = part("DP-" + std::to_string(parts.size()), 0, 0, pick(1, 40), pick(1, 40));
        const bool isBeside = pick(0, 1) == 0;
        const bool isBefore = pick(0, 1) == 0;
        next.x = isBeside ? (isBefore ? other.x - next.width : other.right())
                          : pick(other.x - next.width + 1, other.right() - 1);
        next.y = isBeside ? pick(other.y - next.height + 1, other.bottom() - 1)
                          : (isBefore ? other.y - next.height : other.bottom());
        const bool isFree = std::none_of(parts.begin(), parts.end(),
                                         [&](const LogicalMonitor& taken) { return taken.overlaps(next); });
        if (isFree) parts.push_back(next);
    }
    // To the origin, by the way that a layout takes itself.
    return Layout(parts).without("nothing");
}

TEST(Layout, StaysAcceptableWhateverIsTakenAway) {
    test::forRandomSeeds(3000, [](std::uint64_t seed) {
        std::mt19937_64 chance(seed);
        Layout layout = randomLayout(chance);
        ASSERT_TRUE(layout.isAcceptable()) << layout.line();
        while (layout.parts().size() > 1) {
            const auto index =
                std::uniform_int_distribution<std::size_t>(0, layout.parts().size() - 1)(chance);
            const std::string connector = layout.parts()[index].modes.begin()->first;
            const Layout less = layout.without(connector);
            ASSERT_EQ(less.parts().size(), layout.parts().size() - 1);
            ASSERT_TRUE(less.isAcceptable())
                << layout.line() << " without " << connector << ": " << less.line();
            ASSERT_EQ(less.find(connector), nullptr);
            for (const LogicalMonitor& part : less.parts()) {
                LogicalMonitor before = *layout.find(part.modes.begin()->first);
                before.x = part.x;
                before.y = part.y;
                before.isPrimary = part.isPrimary;
                ASSERT_EQ(before, part);
            }
            layout = less;
        }
    });
}

}  // namespace
}  // namespace vantrel::mutter
