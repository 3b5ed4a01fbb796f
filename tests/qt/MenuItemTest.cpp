#include <QMenu>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/ViewBench.h"
#include "ui/qt/MenuItem.h"

namespace vantrel::qt {
namespace {

using namespace ui;

TEST(MenuItem, OffersItsOptionsAndTellsWhichOneIsChosen) {
    std::vector<std::size_t> chosen;
    ViewBench bench(column(0, {Node{.element = Menu{.title = "Add Input", .options = {"VGA & 1", "DVI 1"}}}
                                   .named("Add Input")
                                   .onChoose([&](std::size_t option) { chosen.push_back(option); })
                                   .key("add")}));
    ViewBench::click(bench.at("add"));
    const auto actions = bench.at("add").findChild<QMenu*>()->actions();
    ASSERT_EQ(actions.size(), 2);
    EXPECT_EQ(actions[0]->text(), "VGA && 1");
    actions[1]->trigger();
    EXPECT_THAT(chosen, testing::ElementsAre(1));
}

}  // namespace
}  // namespace vantrel::qt
