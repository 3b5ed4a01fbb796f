#include <gtest/gtest.h>
#include <vector>

#include "model/ControlMode.h"

namespace vantrel::model {
namespace {

template <class Property>
auto ofAllModes(Property property) {
    std::vector<decltype(property(ControlMode::automatic))> result;
    for (const ControlMode mode : allControlModes) result.push_back(property(mode));
    return result;
}

using Texts = std::vector<std::string>;

TEST(ControlMode, IsStoredByItsNameAndOfferedInThisOrder) {
    EXPECT_EQ(ofAllModes(rawValue), (Texts{"automatic", "ddc", "software"}));
}

TEST(ControlMode, HasATitle) {
    EXPECT_EQ(ofAllModes([](ControlMode mode) { return title(mode).english(); }),
              (Texts{"Automatic", "DDC/CI", "Software"}));
}

TEST(ControlMode, HasADetail) {
    EXPECT_EQ(
        ofAllModes([](ControlMode mode) { return detail(mode).english(); }),
        (Texts{"DDC/CI when the monitor answers, software when it doesn't", "Changes the monitor's backlight",
               "Dims the picture on the Mac, works over any connection"}));
}

TEST(ControlMode, HasADetailInTheUsersLanguage) {
    EXPECT_EQ(ofAllModes([](ControlMode mode) { return detail(mode).isVerbatim(); }),
              (std::vector<bool>{false, false, false}));
}

TEST(ControlMode, IsReadFromTheNameThatItIsStoredBy) {
    EXPECT_EQ(ofAllModes([](ControlMode mode) { return controlModeFrom(rawValue(mode)); }),
              (std::vector<ControlMode>{ControlMode::automatic, ControlMode::ddc, ControlMode::software}));
}

TEST(ControlMode, IsAutomaticWhenNoneIsStored) {
    EXPECT_EQ(controlModeFrom(std::nullopt), ControlMode::automatic);
}

TEST(ControlMode, IsAutomaticForTheNameInUpperCase) {
    EXPECT_EQ(controlModeFrom("DDC"), ControlMode::automatic);
}

TEST(ControlMode, IsAutomaticForAnyOtherText) {
    EXPECT_EQ(controlModeFrom(""), ControlMode::automatic);
    EXPECT_EQ(controlModeFrom("ddc "), ControlMode::automatic);
    EXPECT_EQ(controlModeFrom("hardware"), ControlMode::automatic);
}

}  // namespace
}  // namespace vantrel::model
