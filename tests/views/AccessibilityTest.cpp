#include <gtest/gtest.h>

#include "ui/outline/Outline.h"
#include "views/AllStates.h"

namespace vantrel::views {
namespace {

using test::visitAllStates;
using test::walk;

std::string lineOf(ui::Node node) {
    node.children.clear();
    return outline::outlineOf(node);
}

TEST(Accessibility, EveryControlHasAName) {
    int controls = 0;
    visitAllStates(nullptr, [&](const std::string& state, const ui::Node& tree) {
        walk(tree, [&](const ui::Node& node) {
            if (!ui::isInteractive(node)) return;
            ++controls;
            EXPECT_NE(node.accessibility.name, "") << state << ": " << lineOf(node);
        });
    });
    EXPECT_GT(controls, 100);
}

TEST(Accessibility, EverySliderSaysTheValueThatIsShownBesideIt) {
    visitAllStates(nullptr, [&](const std::string& state, const ui::Node& tree) {
        walk(tree, [&](const ui::Node& node) {
            for (std::size_t index = 0; index < node.children.size(); ++index) {
                const ui::Node& slider = node.children[index];
                if (!std::holds_alternative<ui::Slider>(slider.element)) continue;
                const auto& label = std::get<ui::Text>(node.children.at(index + 1).element);
                EXPECT_EQ(slider.accessibility.value, label.text) << state;
            }
        });
    });
}

TEST(Accessibility, NoTwoControlsOfACardOrSectionHaveTheSameNameAndDescription) {
    visitAllStates(nullptr, [&](const std::string& state, const ui::Node& tree) {
        walk(tree, [&](const ui::Node& container) {
            const auto* stack = std::get_if<ui::Stack>(&container.element);
            const bool isCard = stack && stack->background == ui::Background::card;
            if (!isCard && !std::holds_alternative<ui::Section>(container.element)) return;
            std::set<std::string> names;
            walk(container, [&](const ui::Node& node) {
                if (!ui::isInteractive(node)) return;
                const std::string name = node.accessibility.name + ", " + node.accessibility.description;
                EXPECT_TRUE(names.insert(name).second) << state << ": " << name;
            });
        });
    });
}

}  // namespace
}  // namespace vantrel::views
