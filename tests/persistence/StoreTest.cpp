#include <gtest/gtest.h>

#include "persistence/Store.h"
#include "platform/MemoryDefaults.h"
#include "support/DeathTest.h"
#include "support/NumberedDisplays.h"

namespace vantrel::persistence {
namespace {

using mccs::MonitorCapabilities;
using platform::DefaultsData;
using platform::DefaultsDictionary;
using platform::DefaultsValue;
using Everything = std::map<std::string, DefaultsValue>;
using Inputs = std::vector<Store::Input>;

const std::string key = "1138-1922-0";

DefaultsValue data(std::string bytes) { return DefaultsData{std::move(bytes)}; }
DefaultsValue text(std::string text) { return text; }
DefaultsValue integer(std::int64_t number) { return number; }

class StoreTest : public testing::Test {
  protected:
    platform::MemoryDefaults defaults;
};

std::string keyOf(test::NumberedDisplays::Numbers numbers) {
    test::NumberedDisplays displays;
    displays.numbers[7] = numbers;
    return Store::displayKey(displays, 7);
}

TEST_F(StoreTest, AKeyIsVendorModelAndSerialNumberInDecimal) {
    EXPECT_EQ(keyOf({.vendor = 1138, .model = 1922, .serial = 0}), "1138-1922-0");
}

TEST_F(StoreTest, NumbersOfAKeyAreUnsigned) {
    EXPECT_EQ(keyOf({.vendor = 4294967295, .model = 2147483648, .serial = 3000000000}),
              "4294967295-2147483648-3000000000");
}

TEST_F(StoreTest, AnUnknownDisplayHasAKeyOfZeros) { EXPECT_EQ(keyOf({}), "0-0-0"); }

TEST_F(StoreTest, TheKeyDoesNotDependOnTheDisplayIdentifier) {
    test::NumberedDisplays displays;
    displays.numbers[7] = displays.numbers[12] = {.vendor = 1, .model = 2, .serial = 3};
    EXPECT_EQ(Store::displayKey(displays, 7), Store::displayKey(displays, 12));
}

TEST_F(StoreTest, AKeyThatEndsInDashZeroHasNoSerialNumber) {
    EXPECT_FALSE(Store::hasSerialNumber("1138-1922-0"));
    EXPECT_TRUE(Store::hasSerialNumber("1138-1922-10"));
    EXPECT_TRUE(Store::hasSerialNumber("0-0-1"));
}

TEST_F(StoreTest, CapabilitiesAreJSONUnderTheirPrefixAndTheKey) {
    Store::setCapabilities(defaults, MonitorCapabilities::parse("(model(X1)vcp(10 14(05 08)))"), key);
    EXPECT_EQ(defaults.all(),
              (Everything{{"capabilities.1138-1922-0",
                           data(R"json({"raw":"(model(X1)vcp(10 14(05 08)))","model":"X1",)json"
                                R"json("codes":[16,20],"values":[20,[5,8]]})json")}}));
}

TEST_F(StoreTest, CapabilitiesWithoutAModelLeaveItOut) {
    Store::setCapabilities(defaults, MonitorCapabilities::parse("vcp(10)"), key);
    EXPECT_EQ(defaults.value("capabilities." + key),
              data(R"json({"raw":"vcp(10)","codes":[16],"values":[]})json"));
}

TEST_F(StoreTest, CapabilitiesComeBackAsTheyWere) {
    const auto capabilities = MonitorCapabilities::parse("(model(X1)vcp(10 14(05 08) 60(0F 11)))");
    Store::setCapabilities(defaults, capabilities, key);
    EXPECT_EQ(Store::capabilities(defaults, key), capabilities);
}

TEST_F(StoreTest, CapabilitiesOfAnotherMonitorAreNotMistakenForThese) {
    Store::setCapabilities(defaults, MonitorCapabilities::parse("vcp(10)"), key);
    EXPECT_EQ(Store::capabilities(defaults, "1138-1922-1"), std::nullopt);
}

TEST_F(StoreTest, AbsentCapabilitiesRemoveTheKey) {
    Store::setCapabilities(defaults, MonitorCapabilities::parse("vcp(10)"), key);
    Store::setCapabilities(defaults, std::nullopt, key);
    EXPECT_EQ(defaults.all(), Everything{});
}

TEST_F(StoreTest, UnreadableCapabilitiesCountAsMissingAndStay) {
    const Everything stored{{"capabilities." + key, data(R"json({"raw":"vcp(10)"})json")}};
    defaults.set("capabilities." + key, stored.begin()->second);
    EXPECT_EQ(Store::capabilities(defaults, key), std::nullopt);
    EXPECT_EQ(defaults.all(), stored);
}

TEST_F(StoreTest, CapabilitiesThatAreNoDataCountAsMissing) {
    defaults.set("capabilities." + key, text(R"json({"raw":"vcp(10)","codes":[16],"values":[]})json"));
    EXPECT_EQ(Store::capabilities(defaults, key), std::nullopt);
}

TEST_F(StoreTest, CustomInputsAreAnArrayInTheUsersOrder) {
    Store::setCustomInputs(defaults, Inputs{27, 15}, key);
    EXPECT_EQ(defaults.all(), (Everything{{"customInputs.1138-1922-0", data("[27,15]")}}));
    EXPECT_EQ(Store::customInputs(defaults, key), (Inputs{27, 15}));
}

TEST_F(StoreTest, AnEmptyListOfCustomInputsIsAList) {
    Store::setCustomInputs(defaults, Inputs{}, key);
    EXPECT_EQ(defaults.value("customInputs." + key), data("[]"));
    EXPECT_EQ(Store::customInputs(defaults, key), Inputs{});
}

TEST_F(StoreTest, AbsentCustomInputsRemoveTheKey) {
    Store::setCustomInputs(defaults, Inputs{27}, key);
    Store::setCustomInputs(defaults, std::nullopt, key);
    EXPECT_EQ(defaults.all(), Everything{});
}

TEST_F(StoreTest, CustomInputsThatWereNeverStoredAreAbsent) {
    EXPECT_EQ(Store::customInputs(defaults, key), std::nullopt);
}

TEST_F(StoreTest, UnreadableCustomInputsCountAsMissingAndStay) {
    defaults.set("customInputs." + key, data("[70000]"));
    EXPECT_EQ(Store::customInputs(defaults, key), std::nullopt);
    EXPECT_EQ(defaults.value("customInputs." + key), data("[70000]"));
}

TEST_F(StoreTest, AliasesAreOneFlatArray) {
    Store::setInputAliases(defaults, {{17, "Desk PC"}}, key);
    EXPECT_EQ(defaults.all(), (Everything{{"inputAliases.1138-1922-0", data(R"([17,"Desk PC"])")}}));
    EXPECT_EQ(Store::inputAliases(defaults, key), (Store::InputAliases{{17, "Desk PC"}}));
}

TEST_F(StoreTest, NoAliasesAreAnEmptyArray) {
    Store::setInputAliases(defaults, {}, key);
    EXPECT_EQ(defaults.value("inputAliases." + key), data("[]"));
}

TEST_F(StoreTest, AliasesThatWereNeverStoredAreEmpty) {
    EXPECT_EQ(Store::inputAliases(defaults, key), Store::InputAliases{});
}

TEST_F(StoreTest, UnreadableAliasesAreEmptyAndStay) {
    defaults.set("inputAliases." + key, data(R"({"17":"Desk PC"})"));
    EXPECT_EQ(Store::inputAliases(defaults, key), Store::InputAliases{});
    EXPECT_EQ(defaults.value("inputAliases." + key), data(R"({"17":"Desk PC"})"));
}

TEST_F(StoreTest, HiddenInputsAreAnArray) {
    Store::setHiddenInputs(defaults, {17, 15}, key);
    EXPECT_EQ(defaults.all(), (Everything{{"hiddenInputs.1138-1922-0", data("[15,17]")}}));
    EXPECT_EQ(Store::hiddenInputs(defaults, key), (std::set<Store::Input>{15, 17}));
}

TEST_F(StoreTest, HiddenInputsAreReadInAnyOrder) {
    defaults.set("hiddenInputs." + key, data("[17,15,17]"));
    EXPECT_EQ(Store::hiddenInputs(defaults, key), (std::set<Store::Input>{15, 17}));
}

TEST_F(StoreTest, HiddenInputsThatWereNeverStoredAreEmpty) {
    EXPECT_EQ(Store::hiddenInputs(defaults, key), std::set<Store::Input>{});
}

TEST_F(StoreTest, UnreadableHiddenInputsAreEmptyAndStay) {
    defaults.set("hiddenInputs." + key, data("[15,-1]"));
    EXPECT_EQ(Store::hiddenInputs(defaults, key), std::set<Store::Input>{});
    EXPECT_EQ(defaults.value("hiddenInputs." + key), data("[15,-1]"));
}

TEST_F(StoreTest, TheFocusInputIsAnInteger) {
    Store::setFocusInput(defaults, 17, key);
    EXPECT_EQ(defaults.all(), (Everything{{"focusInput.1138-1922-0", integer(17)}}));
    EXPECT_EQ(Store::focusInput(defaults, key), 17);
}

TEST_F(StoreTest, ClearingTheFocusInputWritesZeroWhichReadsAsNone) {
    Store::setFocusInput(defaults, 17, key);
    Store::setFocusInput(defaults, std::nullopt, key);
    EXPECT_EQ(defaults.all(), (Everything{{"focusInput.1138-1922-0", integer(0)}}));
    EXPECT_EQ(Store::focusInput(defaults, key), std::nullopt);
}

TEST_F(StoreTest, AFocusInputOfZeroCannotBeRemembered) {
    Store::setFocusInput(defaults, 0, key);
    EXPECT_EQ(Store::focusInput(defaults, key), std::nullopt);
}

TEST_F(StoreTest, AFocusInputThatWasNeverStoredIsNone) {
    EXPECT_EQ(Store::focusInput(defaults, key), std::nullopt);
}

TEST_F(StoreTest, AFocusInputThatIsNoIntegerIsNoneAndStays) {
    defaults.set("focusInput." + key, data("17"));
    EXPECT_EQ(Store::focusInput(defaults, key), std::nullopt);
    EXPECT_EQ(defaults.value("focusInput." + key), data("17"));
}

TEST_F(StoreTest, TheGreatestFocusInputIsReadable) {
    defaults.set("focusInput." + key, integer(65535));
    EXPECT_EQ(Store::focusInput(defaults, key), 65535);
}

TEST_F(StoreTest, TheMacInputIsAnInteger) {
    Store::setMacInput(defaults, 15, key);
    EXPECT_EQ(defaults.all(), (Everything{{"macInput.1138-1922-0", integer(15)}}));
    EXPECT_EQ(Store::macInput(defaults, key), 15);
}

TEST_F(StoreTest, ClearingTheMacInputWritesZeroWhichReadsAsNone) {
    Store::setMacInput(defaults, 15, key);
    Store::setMacInput(defaults, std::nullopt, key);
    EXPECT_EQ(defaults.all(), (Everything{{"macInput.1138-1922-0", integer(0)}}));
    EXPECT_EQ(Store::macInput(defaults, key), std::nullopt);
}

TEST_F(StoreTest, AMacInputThatWasNeverStoredIsNone) {
    EXPECT_EQ(Store::macInput(defaults, key), std::nullopt);
}

TEST_F(StoreTest, TheControlModeIsText) {
    Store::setControlMode(defaults, "software", key);
    EXPECT_EQ(defaults.all(), (Everything{{"controlMode.1138-1922-0", text("software")}}));
    EXPECT_EQ(Store::controlMode(defaults, key), "software");
}

TEST_F(StoreTest, AControlModeThatWasNeverStoredIsAbsent) {
    EXPECT_EQ(Store::controlMode(defaults, key), std::nullopt);
}

TEST_F(StoreTest, AControlModeThatIsNoTextIsAbsent) {
    defaults.set("controlMode." + key, data("ddc"));
    EXPECT_EQ(Store::controlMode(defaults, key), std::nullopt);
}

TEST_F(StoreTest, SoftwareLevelsAreADictionaryOfTwoNumbers) {
    Store::setSoftwareLevels(defaults, {.brightness = 0.25, .contrast = 0.75}, key);
    EXPECT_EQ(
        defaults.all(),
        (Everything{{"software.1138-1922-0", DefaultsDictionary{{"brightness", 0.25}, {"contrast", 0.75}}}}));
    EXPECT_EQ(Store::softwareLevels(defaults, key),
              (Store::SoftwareLevels{.brightness = 0.25, .contrast = 0.75}));
}

TEST_F(StoreTest, SoftwareLevelsThatWereNeverStoredLeaveThePictureAsItIs) {
    EXPECT_EQ(Store::softwareLevels(defaults, key),
              (Store::SoftwareLevels{.brightness = 1.0, .contrast = 0.5}));
}

TEST_F(StoreTest, AMissingSoftwareBrightnessIsOne) {
    defaults.set("software." + key, DefaultsDictionary{{"contrast", 0.7}});
    EXPECT_EQ(Store::softwareLevels(defaults, key),
              (Store::SoftwareLevels{.brightness = 1.0, .contrast = 0.7}));
}

TEST_F(StoreTest, AMissingSoftwareContrastIsOneHalf) {
    defaults.set("software." + key, DefaultsDictionary{{"brightness", 0.7}});
    EXPECT_EQ(Store::softwareLevels(defaults, key),
              (Store::SoftwareLevels{.brightness = 0.7, .contrast = 0.5}));
}

TEST_F(StoreTest, ASoftwareBrightnessThatIsNoNumberIsIgnored) {
    defaults.set("software." + key,
                 DefaultsDictionary{{"brightness", std::string("0.2")}, {"contrast", 0.7}});
    EXPECT_EQ(Store::softwareLevels(defaults, key),
              (Store::SoftwareLevels{.brightness = 1.0, .contrast = 0.7}));
}

TEST_F(StoreTest, SoftwareLevelsThatAreNoDictionaryLeaveThePictureAsItIs) {
    defaults.set("software." + key, text("0.2"));
    EXPECT_EQ(Store::softwareLevels(defaults, key), Store::SoftwareLevels{});
}

TEST_F(StoreTest, DisabledDisplaysAreAnArrayOfObjects) {
    Store::setDisabledDisplays(defaults, {{.id = 7, .key = "1138-1922-0", .name = "Halden HX27"}});
    EXPECT_EQ(
        defaults.all(),
        (Everything{{"disabledDisplays", data(R"([{"id":7,"key":"1138-1922-0","name":"Halden HX27"}])")}}));
    EXPECT_EQ(Store::disabledDisplays(defaults),
              (std::vector<DisabledDisplay>{{.id = 7, .key = "1138-1922-0", .name = "Halden HX27"}}));
}

TEST_F(StoreTest, NoDisabledDisplaysAreAnEmptyArray) {
    Store::setDisabledDisplays(defaults, {});
    EXPECT_EQ(defaults.value("disabledDisplays"), data("[]"));
}

TEST_F(StoreTest, DisabledDisplaysThatWereNeverStoredAreNone) {
    EXPECT_EQ(Store::disabledDisplays(defaults), std::vector<DisabledDisplay>{});
}

TEST_F(StoreTest, CorruptDisabledDisplaysAreNoneAndStayUntilTheNextChange) {
    defaults.set("disabledDisplays", data(R"([{"id":7)"));
    EXPECT_EQ(Store::disabledDisplays(defaults), std::vector<DisabledDisplay>{});
    EXPECT_EQ(defaults.value("disabledDisplays"), data(R"([{"id":7)"));
    Store::setDisabledDisplays(defaults, {});
    EXPECT_EQ(defaults.value("disabledDisplays"), data("[]"));
}

class StoreDeathTest : public test::DeathTest {
  protected:
    platform::MemoryDefaults defaults;
};

TEST_F(StoreDeathTest, AnInputAboveSixteenBitsStopsTheProgram) {
    defaults.set("focusInput." + key, integer(65536));
    defaults.set("macInput." + key, integer(65536));
    EXPECT_DEATH(Store::focusInput(defaults, key), "more than 16 bits");
    EXPECT_DEATH(Store::macInput(defaults, key), "more than 16 bits");
}

TEST_F(StoreDeathTest, ANegativeInputStopsTheProgram) {
    defaults.set("focusInput." + key, integer(-1));
    defaults.set("macInput." + key, integer(-1));
    EXPECT_DEATH(Store::focusInput(defaults, key), "more than 16 bits");
    EXPECT_DEATH(Store::macInput(defaults, key), "more than 16 bits");
}

}  // namespace
}  // namespace vantrel::persistence
