#include <cstdlib>
#include <gtest/gtest.h>

#include "platform/posix/StateFolder.h"

namespace vantrel::posix {
namespace {

using StateFolder::Environment;

TEST(StateFolder, IsBelowHomeUsually) {
    const Environment environment{"/people/ann", {}, {}};
    EXPECT_EQ(StateFolder::real(environment), "/people/ann/.config/vantrel");
    EXPECT_EQ(StateFolder::simulated(environment), "/people/ann/.local/state/vantrel/simulated");
    EXPECT_EQ(StateFolder::autostart(environment), "/people/ann/.config/autostart");
}

TEST(StateFolder, IsWhereTheEnvironmentPutsIt) {
    const Environment environment{"/people/ann", "/config", "/state"};
    EXPECT_EQ(StateFolder::real(environment), "/config/vantrel");
    EXPECT_EQ(StateFolder::simulated(environment), "/state/vantrel/simulated");
}

TEST(StateFolder, NeedsNoHomeWhereTheEnvironmentPutsIt) {
    EXPECT_EQ(StateFolder::simulated({{}, {}, "/state"}), "/state/vantrel/simulated");
}

TEST(StateFolder, KeepsSimulationsApartEvenWithOneFolderForAll) {
    const Environment environment{{}, "/all", "/all"};
    EXPECT_NE(StateFolder::real(environment), StateFolder::simulated(environment));
}

TEST(StateFolder, IgnoresAnEmptyVariable) {
    EXPECT_EQ(StateFolder::real({"/people/ann", "", {}}), "/people/ann/.config/vantrel");
}

TEST(StateFolder, IgnoresARelativePath) {
    EXPECT_EQ(StateFolder::simulated({"/people/ann", {}, "state"}),
              "/people/ann/.local/state/vantrel/simulated");
    EXPECT_EQ(StateFolder::simulated({"ann", {}, {}}), std::nullopt);
}

TEST(StateFolder, IsNowhereWithoutHome) {
    EXPECT_EQ(StateFolder::real({}), std::nullopt);
    EXPECT_EQ(StateFolder::simulated({}), std::nullopt);
}

TEST(StateFolder, OfASessionEndsWithIt) {
    EXPECT_EQ(StateFolder::session({"/people/ann", "/config", "/state", "/run/user/7"}),
              "/run/user/7/vantrel");
    EXPECT_EQ(StateFolder::session({{}, {}, {}, "/run/user/7"}), "/run/user/7/vantrel");
}

TEST(StateFolder, OfASessionLastsLongerWhereTheSystemKeepsNothingForAsLong) {
    EXPECT_EQ(StateFolder::session({"/people/ann", {}, {}, {}}), "/people/ann/.local/state/vantrel/session");
    EXPECT_EQ(StateFolder::session({"/people/ann", {}, "/state", {}}), "/state/vantrel/session");
    EXPECT_EQ(StateFolder::session({"/people/ann", {}, {}, ""}), "/people/ann/.local/state/vantrel/session");
    EXPECT_EQ(StateFolder::session({"/people/ann", {}, {}, "run"}),
              "/people/ann/.local/state/vantrel/session");
    EXPECT_EQ(StateFolder::session({}), std::nullopt);
}

TEST(StateFolder, KeepsASessionApartFromEverythingElse) {
    const Environment environment{{}, "/all", "/all", "/all"};
    EXPECT_NE(StateFolder::session(environment), StateFolder::simulated(environment));
}

TEST(StateFolder, KnowsTheEnvironmentOfTheProcess) {
    const char* home = std::getenv("HOME");
    EXPECT_EQ(StateFolder::environment().home,
              home != nullptr ? std::optional<std::string>(home) : std::nullopt);
}

}  // namespace
}  // namespace vantrel::posix
