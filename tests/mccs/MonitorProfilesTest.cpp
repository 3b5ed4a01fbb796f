#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

#include "mccs/MonitorProfiles.h"

namespace vantrel::mccs {
namespace {

using platform::DisplayID;
using testing::ElementsAre;
using testing::Pair;
using testing::Return;

constexpr DisplayID display = 3;

class DisplaysDouble : public platform::DisplayServices {
  public:
    MOCK_METHOD(std::vector<DisplayID>, onlineDisplays, (), (override));
    MOCK_METHOD(bool, isBuiltIn, (DisplayID), (override));
    MOCK_METHOD(std::uint32_t, vendorNumber, (DisplayID), (override));
    MOCK_METHOD(std::uint32_t, modelNumber, (DisplayID), (override));
    MOCK_METHOD(std::uint32_t, serialNumber, (DisplayID), (override));
    MOCK_METHOD(std::optional<std::string>, screenName, (DisplayID), (override));
    MOCK_METHOD(std::uint32_t, transferTableCapacity, (DisplayID), (override));
    MOCK_METHOD(std::optional<platform::TransferTable>, transferTable, (DisplayID, std::uint32_t),
                (override));
    MOCK_METHOD(void, setTransferTable, (DisplayID, const platform::TransferTable&), (override));
    MOCK_METHOD(void, restoreColorSyncSettings, (), (override));
    MOCK_METHOD(std::optional<Configuration>, beginConfiguration, (), (override));
    MOCK_METHOD(bool, completeConfiguration, (Configuration, std::uint32_t), (override));
    MOCK_METHOD(void, cancelConfiguration, (Configuration), (override));
    MOCK_METHOD(void, onReconfiguration, (ReconfigurationCallback), (override));
};

const InputProfile* profileOf(std::uint32_t vendor, std::uint32_t product) {
    testing::StrictMock<DisplaysDouble> displays;
    EXPECT_CALL(displays, vendorNumber(display)).WillOnce(Return(vendor));
    EXPECT_CALL(displays, modelNumber(display)).WillOnce(Return(product));
    return MonitorProfiles::inputProfile(displays, display);
}

const InputProfile& misreporting() {
    return MonitorProfiles::inputProfiles().at({.vendor = 0x0472, .product = 0x0782});
}

TEST(MonitorProfiles, HasOneModel) {
    ASSERT_EQ(MonitorProfiles::inputProfiles().size(), 1U);
    const auto& [model, profile] = *MonitorProfiles::inputProfiles().begin();
    EXPECT_EQ(model.vendor, 0x0472U);
    EXPECT_EQ(model.product, 0x0782U);
    EXPECT_THAT(profile.inputs, ElementsAre(0x0F, 0x11, 0x12));
    EXPECT_THAT(profile.readMap, ElementsAre(Pair(1, 0x11), Pair(3, 0x0F), Pair(4, 0x12)));
}

TEST(MonitorProfiles, TheTableIsMadeOnce) {
    EXPECT_EQ(&MonitorProfiles::inputProfiles(), &MonitorProfiles::inputProfiles());
}

TEST(MonitorProfiles, ADisplayOfTheModelGetsItsProfile) {
    EXPECT_EQ(profileOf(0x0472, 0x0782), &misreporting());
}

TEST(MonitorProfiles, AnotherModelOfTheVendorGetsNone) { EXPECT_EQ(profileOf(0x0472, 0x0783), nullptr); }

TEST(MonitorProfiles, TheModelNumberOfAnotherVendorGetsNone) {
    EXPECT_EQ(profileOf(0x0473, 0x0782), nullptr);
}

TEST(MonitorProfiles, ADisplayWithoutNumbersGetsNone) { EXPECT_EQ(profileOf(0, 0), nullptr); }

TEST(MonitorProfiles, NumbersAreComparedInFull) { EXPECT_EQ(profileOf(0x10472, 0x10782), nullptr); }

TEST(MonitorProfiles, AReadingInTheReadMapStandsForItsInput) {
    EXPECT_EQ(MonitorProfiles::mccsInput(1, &misreporting()), 0x11);
    EXPECT_EQ(MonitorProfiles::mccsInput(3, &misreporting()), 0x0F);
    EXPECT_EQ(MonitorProfiles::mccsInput(4, &misreporting()), 0x12);
}

TEST(MonitorProfiles, AReadingOutsideTheReadMapStandsForItself) {
    EXPECT_EQ(MonitorProfiles::mccsInput(2, &misreporting()), 2);
    EXPECT_EQ(MonitorProfiles::mccsInput(0x11, &misreporting()), 0x11);
    EXPECT_EQ(MonitorProfiles::mccsInput(0x0103, &misreporting()), 0x0103);
}

TEST(MonitorProfiles, AReadingWithoutAProfileStandsForItself) {
    EXPECT_EQ(MonitorProfiles::mccsInput(3, nullptr), 3);
}

TEST(MonitorProfiles, AReadingWithAnEmptyReadMapStandsForItself) {
    const InputProfile profile{.inputs = {3}, .readMap = {}};
    EXPECT_EQ(MonitorProfiles::mccsInput(3, &profile), 3);
}

TEST(MonitorProfiles, AMappedReadingAmongTheOptionsIsTheCurrentInput) {
    EXPECT_EQ(MonitorProfiles::currentInput(3, &misreporting(), misreporting().inputs), 0x0F);
}

TEST(MonitorProfiles, AnUnmappedReadingAmongTheOptionsIsTheCurrentInput) {
    EXPECT_EQ(MonitorProfiles::currentInput(0x11, &misreporting(), misreporting().inputs), 0x11);
}

TEST(MonitorProfiles, AReadingThatIsNeitherIsNotGuessedAt) {
    EXPECT_EQ(MonitorProfiles::currentInput(2, &misreporting(), misreporting().inputs), std::nullopt);
}

TEST(MonitorProfiles, AMappedReadingOutsideTheOptionsIsUnknown) {
    const std::vector<std::uint16_t> customOptions{0x11, 0x12};
    EXPECT_EQ(MonitorProfiles::currentInput(3, &misreporting(), customOptions), std::nullopt);
}

TEST(MonitorProfiles, AMappedReadingIsNotTakenAsItStands) {
    const std::vector<std::uint16_t> customOptions{3};
    EXPECT_EQ(MonitorProfiles::currentInput(3, &misreporting(), customOptions), std::nullopt);
}

TEST(MonitorProfiles, WithoutAProfileAReadingAmongTheOptionsIsTheCurrentInput) {
    const std::vector<std::uint16_t> options{0x0F, 0x11};
    EXPECT_EQ(MonitorProfiles::currentInput(0x11, nullptr, options), 0x11);
}

TEST(MonitorProfiles, WithoutAProfileAReadingOutsideTheOptionsIsUnknown) {
    const std::vector<std::uint16_t> options{0x0F, 0x11};
    EXPECT_EQ(MonitorProfiles::currentInput(3, nullptr, options), std::nullopt);
}

TEST(MonitorProfiles, WithoutOptionsTheCurrentInputIsUnknown) {
    EXPECT_EQ(MonitorProfiles::currentInput(0x11, nullptr, {}), std::nullopt);
}

}  // namespace
}  // namespace vantrel::mccs
