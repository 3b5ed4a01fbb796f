#include <gtest/gtest.h>
#include <limits>

#include "platform/linux/wayland/Shape.h"

namespace vantrel::wayland {
namespace {

TEST(Shape, IsOneLineThatIsReadBack) {
    Shape shape;
    shape.mode = Mode{1920, 1080, 60000};
    shape.position = Shape::Position{-1920, 0};
    shape.transform = 1;
    shape.scale = 384;
    shape.variableRefresh = 2;
    EXPECT_EQ(shape.line(), "wayland mode=1920x1080@60000 position=-1920,0 transform=1 scale=384 vrr=2");
    EXPECT_EQ(Shape::read(shape.line()), shape);
}

TEST(Shape, SaysNothingOfWhatIsNotTold) {
    EXPECT_EQ(Shape().line(), "wayland");
    EXPECT_EQ(Shape::read("wayland"), Shape());
}

TEST(Shape, DoesNotReadWhatAnotherKindOfDesktopHasWritten) {
    EXPECT_EQ(Shape::read(""), std::nullopt);
    EXPECT_EQ(Shape::read("x11 mode=1920x1080@60000"), std::nullopt);
    EXPECT_EQ(Shape::read("wayland2 transform=1"), std::nullopt);
}

TEST(Shape, DoesNotReadADamagedLine) {
    for (const char* const line :
         {"wayland mode", "wayland mode=", "wayland mode=1920x1080", "wayland mode=1920x1080@",
          "wayland mode=1920,1080@60000", "wayland mode=1920x1080@60000x", "wayland position=1",
          "wayland position=a,b", "wayland transform=1 transform=2", "wayland  transform=1",
          "wayland transform=1 ", "wayland\ntransform=1", "wayland colour=1", "wayland transform=99999999999",
          "wayland scale=256 transform=1"}) {
        EXPECT_EQ(Shape::read(line), std::nullopt) << line;
    }
}

TEST(Shape, DoesNotReadWhatACompositorWouldCallAnError) {
    EXPECT_EQ(Shape::read("wayland scale=0"), std::nullopt);
    EXPECT_EQ(Shape::read("wayland scale=-256"), std::nullopt);
    EXPECT_EQ(Shape::read("wayland transform=8"), std::nullopt);
    EXPECT_EQ(Shape::read("wayland transform=-1"), std::nullopt);
}

TEST(Shape, EndsWhereItsPictureDoes) {
    Shape shape;
    EXPECT_EQ(shape.rightEdge(), std::nullopt);
    shape.mode = Mode{1920, 1080, 60000};
    EXPECT_EQ(shape.rightEdge(), std::nullopt);
    shape.position = Shape::Position{100, 0};
    EXPECT_EQ(shape.rightEdge(), 2020);
    shape.scale = 2 * Shape::unscaled;
    EXPECT_EQ(shape.rightEdge(), 1060);
    shape.transform = 3;
    EXPECT_EQ(shape.rightEdge(), 640);
}

TEST(Shape, LeavesNoColumnToTwoPictures) {
    Shape shape;
    shape.mode = Mode{1000, 1000, 0};
    shape.position = Shape::Position{0, 0};
    shape.scale = 3 * Shape::unscaled;
    EXPECT_EQ(shape.rightEdge(), 334);
}

TEST(Shape, DoesNotEndBeyondAllNumbers) {
    Shape shape;
    shape.mode = Mode{1920, 1080, 0};
    shape.position = Shape::Position{std::numeric_limits<int>::max(), 0};
    EXPECT_EQ(shape.rightEdge(), std::nullopt);
}

}  // namespace
}  // namespace vantrel::wayland
