#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/ViewBench.h"
#include "ui/qt/ImageItem.h"
#include "ui/qt/Look.h"

namespace vantrel::qt {
namespace {

using namespace ui;

TEST(ImageItem, HasTheSizeThatBelongsToItsFont) {
    ViewBench bench(row(0, {image("display").key("a"), image("display", Font::caption).key("b")}));
    EXPECT_EQ(bench.place("a").width(), Look::current().symbolSide(Font::body));
    EXPECT_EQ(bench.place("b").width(), Look::current().symbolSide(Font::caption));
}

TEST(ImageItem, HasTheFrameThatTheNodeSays) {
    ViewBench bench(row(0, {image(applicationIcon).width(22).height(22).key("a")}));
    EXPECT_EQ(bench.place("a").size(), QSize(22, 22));
}

}  // namespace
}  // namespace vantrel::qt
