#include <gtest/gtest.h>

#include "ui/outline/Outline.h"
#include "views/ValueSlider.h"

namespace vantrel::views {
namespace {

ValueSlider usual(double value) {
    return {.symbol = "sun.max.fill",
            .value = value,
            .minimum = 0,
            .maximum = 255,
            .format = Format::raw(255),
            .name = "Brightness",
            .onChange = [](double) {}};
}

TEST(ValueSlider, IsASymbolASliderAndItsValue) {
    EXPECT_EQ(outline::outlineOf(valueSlider(usual(42))),
              "row\n"
              "  image sun.max.fill\n"
              "  slider 42 of 0...255, value \"42\", named \"Brightness\"\n"
              "  text \"42\" secondary\n");
}

TEST(ValueSlider, HasAColumnEachForSymbolAndValue) {
    const ui::Node row = valueSlider(usual(42));
    EXPECT_EQ(std::get<ui::Stack>(row.element).spacing, 8);
    EXPECT_EQ(row.children.at(0).layout.width, 18);
    EXPECT_TRUE(row.children.at(1).layout.fillsWidth);
    EXPECT_EQ(row.children.at(2).layout.width, 34);
}

TEST(ValueSlider, MovesInTheStepsOfItsFormat) {
    ValueSlider slider = usual(0.5);
    slider.maximum = 1;
    slider.format = Format::percent();
    const auto control = std::get<ui::Slider>(valueSlider(slider).children.at(1).element);
    EXPECT_EQ(control.step, 0.01);
    EXPECT_EQ(control.wheelStep, 0.05);
}

TEST(ValueSlider, ExplainsItselfWhereAHelpIsGiven) {
    ValueSlider slider = usual(42);
    slider.help = "Brightness (software)";
    EXPECT_EQ(valueSlider(slider).children.at(1).help, "Brightness (software)");
}

TEST(ValueSlider, StandsAtItsEndForAValueBeyondItAndStillNamesIt) {
    const ui::Node row = valueSlider(usual(300));
    EXPECT_EQ(std::get<ui::Slider>(row.children.at(1).element).value, 255);
    EXPECT_EQ(std::get<ui::Text>(row.children.at(2).element).text, "300");
}

TEST(ValueSlider, TellsEachNewValue) {
    std::vector<double> told;
    ValueSlider slider = usual(42);
    slider.onChange = [&](double value) { told.push_back(value); };
    const ui::Node control = valueSlider(slider).children.at(1);
    control.handler.function(ui::Slid{43.5});
    control.handler.function(ui::Slid{44});
    EXPECT_EQ(told, (std::vector<double>{43.5, 44}));
}

}  // namespace
}  // namespace vantrel::views
