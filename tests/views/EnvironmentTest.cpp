#include <gtest/gtest.h>

#include "views/Environment.h"
#include "views/ViewRig.h"

namespace vantrel::views {
namespace {

using Capabilities = model::ExternalDisplay::Capabilities;
using LoadState = model::ExternalDisplay::LoadState;

TEST(Environment, FillsATranslationWithItsArguments) {
    test::ViewRig view;
    EXPECT_EQ(view.environment.translated("Current input: %@", {"HDMI 1"}), "Current input: HDMI 1");
}

TEST(Environment, LoadsInTheBackground) {
    test::ViewRig view;
    const auto handle = view.environment.load(view.display(), Capabilities::fetched);
    EXPECT_EQ(view.display()->loadState(), LoadState::ready);
    view.settle();
    EXPECT_EQ(view.display()->loadState(), LoadState::loading);
    view.runFor(std::chrono::seconds(10));
    EXPECT_EQ(view.display()->loadState(), LoadState::ready);
    EXPECT_FALSE(handle.isRunning());
}

TEST(Environment, KeepsAModelAsLongAsItLoads) {
    test::ViewRig view;
    const auto services =
        ddc::AVServiceLocator::externalServices(view.rig.watched.registry, view.rig.watched.functions);
    auto display = std::make_shared<model::ExternalDisplay>(view.rig.watched, 2, services.front(), "Alder");
    const std::weak_ptr<model::ExternalDisplay> model = display;
    const auto handle = view.environment.load(std::move(display), Capabilities::fetched);
    view.settle();
    EXPECT_FALSE(model.expired());
    view.runFor(std::chrono::seconds(10));
    EXPECT_FALSE(handle.isRunning());
    EXPECT_TRUE(model.expired());
}

}  // namespace
}  // namespace vantrel::views
