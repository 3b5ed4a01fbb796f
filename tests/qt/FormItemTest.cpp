#include <QScrollArea>
#include <QScrollBar>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/SampleTrees.h"
#include "qt/ViewBench.h"
#include "ui/qt/FormItem.h"

namespace vantrel::qt {
namespace {

using namespace ui;

TEST(FormItem, HasTheHeightOfItsSectionsWithinItsLimits) {
    Node small{.element = Form{}};
    ViewBench bench(std::move(small).width(460).heightBetween(360, 720).key("form"), {460, 800});
    EXPECT_EQ(bench.view().fittingSize(), (Size{460, 360}));
    Node limited = sampleForm();
    limited.layout.maximumHeight = 400;
    bench.show(std::move(limited));
    EXPECT_EQ(bench.view().fittingSize(), (Size{460, 400}));
    EXPECT_GT(dynamic_cast<QScrollArea&>(bench.at("form")).verticalScrollBar()->maximum(), 0);
}

TEST(FormItem, ShowsItsSectionsBelowOneAnotherWithoutOverlap) {
    ViewBench bench(sampleForm(), {460, 1200});
    EXPECT_GT(bench.place("display").top(), bench.place("general").bottom());
    EXPECT_EQ(bench.place("display").width(), 420);
}

}  // namespace
}  // namespace vantrel::qt
