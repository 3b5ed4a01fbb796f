#include <QEventLoop>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/ViewBench.h"
#include "ui/qt/SliderItem.h"

namespace vantrel::qt {
namespace {

using namespace ui;

struct Slides {
    std::vector<double> values;

    Node shown(double value, double maximum = 100, double step = 1, double wheelStep = 5) {
        Slider slider{.value = value, .maximum = maximum, .step = step, .wheelStep = wheelStep};
        return column(0, {Node{.element = slider}
                              .named("Brightness")
                              .valued(std::to_string(static_cast<int>(value)) + "%")
                              .onSlide([this](double moved) { values.push_back(moved); })
                              .key("slider")})
            .width(216);
    }
};

// Of the knob's middle.
double share(ViewBench& bench) {
    const auto& slider = dynamic_cast<QSlider&>(bench.at("slider"));
    return double(slider.value()) / slider.maximum();
}

// Where the knob's middle is at a share of the way.
QPointF pointer(ViewBench& bench, double at) {
    return {10 + at * (bench.at("slider").width() - 20), bench.at("slider").height() / 2.0};
}

TEST(SliderItem, TellsNothingOfWhatTheProgramChanges) {
    Slides slides;
    ViewBench bench(slides.shown(40));
    bench.show(slides.shown(80));
    bench.show(slides.shown(3, 10));
    EXPECT_TRUE(slides.values.empty());
    EXPECT_NEAR(share(bench), 0.3, 0.001);
}

TEST(SliderItem, StaysUnderTheHandThatHoldsIt) {
    Slides slides;
    ViewBench bench(slides.shown(40));
    ViewBench::mouse(bench.at("slider"), QEvent::MouseButtonPress, pointer(bench, 0.4));
    ViewBench::mouse(bench.at("slider"), QEvent::MouseMove, pointer(bench, 0.6));
    bench.show(slides.shown(10));
    EXPECT_NEAR(share(bench), 0.6, 0.01);
    ASSERT_FALSE(slides.values.empty());
    EXPECT_NEAR(slides.values.back(), 60, 1);
}

TEST(SliderItem, ShowsTheNewestValueWhenItIsLetGo) {
    Slides slides;
    ViewBench bench(slides.shown(40));
    ViewBench::mouse(bench.at("slider"), QEvent::MouseButtonPress, pointer(bench, 0.4));
    ViewBench::mouse(bench.at("slider"), QEvent::MouseMove, pointer(bench, 0.6));
    bench.show(slides.shown(10));
    const std::size_t told = slides.values.size();
    ViewBench::mouse(bench.at("slider"), QEvent::MouseButtonRelease, pointer(bench, 0.6));
    QEventLoop loop;
    QTimer::singleShot(400, &loop, &QEventLoop::quit);
    loop.exec();
    EXPECT_NEAR(share(bench), 0.1, 0.001);
    EXPECT_EQ(slides.values.size(), told);
}

TEST(SliderItem, ComesToThePointerThatPressesBesideTheKnob) {
    Slides slides;
    ViewBench bench(slides.shown(10));
    ViewBench::mouse(bench.at("slider"), QEvent::MouseButtonPress, pointer(bench, 0.75));
    EXPECT_NEAR(slides.values.back(), 75, 1);
}

TEST(SliderItem, DoesNotJumpWhenItsKnobIsTakenAtTheSide) {
    Slides slides;
    ViewBench bench(slides.shown(50));
    ViewBench::mouse(bench.at("slider"), QEvent::MouseButtonPress, pointer(bench, 0.5) + QPointF(5, 0));
    EXPECT_TRUE(slides.values.empty());
}

TEST(SliderItem, MovesByItsStepsWithTheKeyboard) {
    Slides slides;
    ViewBench bench(slides.shown(40));
    for (const int key : {Qt::Key_Right, Qt::Key_Up, Qt::Key_Left, Qt::Key_Down, Qt::Key_PageUp,
                          Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End}) {
        ViewBench::press(bench.at("slider"), key);
    }
    EXPECT_THAT(slides.values, testing::ElementsAre(41, 42, 41, 40, 50, 40, 0, 100));
}

TEST(SliderItem, MovesByFractionsOfOne) {
    Slides slides;
    ViewBench bench(slides.shown(0.426, 1, 0.01, 0.05));
    ViewBench::press(bench.at("slider"), Qt::Key_Right);
    ASSERT_EQ(slides.values.size(), 1U);
    EXPECT_NEAR(slides.values[0], 0.436, 0.0011);
}

TEST(SliderItem, MovesByItsWheelStepWithTheWheel) {
    Slides slides;
    ViewBench bench(slides.shown(40));
    ViewBench::wheel(bench.at("slider"), 120);
    ViewBench::wheel(bench.at("slider"), -240);
    EXPECT_THAT(slides.values, testing::ElementsAre(45, 35));
}

TEST(SliderItem, IsLeftAloneByAWheelThatScrollsItUnderThePointer) {
    Slides slides;
    ViewBench bench(
        column(0, {Node{.element = Scroll{.maximumHeight = 100},
                        .children = {column(
                            0, {image("display").width(20).height(400).key("above"), slides.shown(40)})}}
                       .key("scroll")})
            .width(216));
    const auto& bar = *dynamic_cast<QScrollArea&>(bench.at("scroll")).verticalScrollBar();
    ViewBench::wheel(bench.at("slider"), -120, 5000);
    EXPECT_THAT(slides.values, testing::ElementsAre(35));
    const int start = bar.value();
    ViewBench::wheel(bench.at("above"), 120, 8000);
    const int before = bar.value();
    EXPECT_LT(before, start);
    ViewBench::wheel(bench.at("slider"), 120, 8900);
    EXPECT_LT(bar.value(), before);
    ViewBench::wheel(bench.at("slider"), -120, 9800);
    EXPECT_EQ(bar.value(), before);
    EXPECT_THAT(slides.values, testing::ElementsAre(35));
    ViewBench::wheel(bench.at("slider"), 120, 10900);
    EXPECT_EQ(bar.value(), before);
    EXPECT_THAT(slides.values, testing::ElementsAre(35, 40));
}

TEST(SliderItem, AddsUpPartsOfAWheelNotch) {
    Slides slides;
    ViewBench bench(slides.shown(40));
    for (int part = 0; part < 5; ++part) ViewBench::wheel(bench.at("slider"), 30);
    EXPECT_THAT(slides.values, testing::ElementsAre(45));
}

TEST(SliderItem, EndsAtItsEnds) {
    Slides slides;
    ViewBench bench(slides.shown(98));
    ViewBench::wheel(bench.at("slider"), 120);
    ViewBench::wheel(bench.at("slider"), 120);
    EXPECT_THAT(slides.values, testing::ElementsAre(100));
}

TEST(SliderItem, ShowsWhatAModelDoesNotTakeOverOnlyForAMoment) {
    Slides slides;
    ViewBench bench(slides.shown(40));
    ViewBench::press(bench.at("slider"), Qt::Key_End);
    EXPECT_EQ(share(bench), 1);
    QEventLoop loop;
    QTimer::singleShot(400, &loop, &QEventLoop::quit);
    loop.exec();
    EXPECT_NEAR(share(bench), 0.4, 0.001);
}

TEST(SliderItem, SpeaksTheTextOfItsValue) {
    Slides slides;
    ViewBench bench(slides.shown(40));
    auto* const spoken = QAccessible::queryAccessibleInterface(&bench.at("slider"));
    EXPECT_EQ(spoken->role(), QAccessible::Slider);
    EXPECT_EQ(spoken->text(QAccessible::Name), "Brightness");
    EXPECT_EQ(spoken->text(QAccessible::Value), "40%");
    ASSERT_NE(spoken->valueInterface(), nullptr);
    spoken->valueInterface()->setCurrentValue(spoken->valueInterface()->maximumValue());
    EXPECT_THAT(slides.values, testing::ElementsAre(100));
}

TEST(SliderItem, WithNothingBetweenItsEndsShowsItsStart) {
    Slides slides;
    ViewBench bench(slides.shown(0, 0));
    EXPECT_EQ(share(bench), 0);
}

}  // namespace
}  // namespace vantrel::qt
