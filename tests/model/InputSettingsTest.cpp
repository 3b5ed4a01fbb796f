#include <gtest/gtest.h>

#include "model/InputSettings.h"
#include "platform/MemoryDefaults.h"
#include "support/Wakes.h"

namespace vantrel::model {
namespace {

using platform::DefaultsData;
using platform::DefaultsValue;
using Input = InputSettings::Input;
using Inputs = std::vector<Input>;

const std::string key = "1138-1922-0";

class InputSettingsTest : public testing::Test {
  protected:
    platform::MemoryDefaults defaults;
    InputSettings settings{defaults, key};

    std::optional<DefaultsValue> value(const std::string& prefix) { return defaults.value(prefix + key); }
    static DefaultsValue data(std::string bytes) { return DefaultsData{std::move(bytes)}; }
    static DefaultsValue integer(std::int64_t number) { return number; }
};

TEST_F(InputSettingsTest, NothingStoredIsNothingDecided) {
    EXPECT_TRUE(settings.aliases().empty());
    EXPECT_TRUE(settings.hidden().empty());
    EXPECT_EQ(settings.focusInput(), std::nullopt);
    EXPECT_EQ(settings.macInput(), std::nullopt);
    EXPECT_EQ(settings.customInputs(), std::nullopt);
}

TEST_F(InputSettingsTest, MakingThemStoresNothing) { EXPECT_TRUE(defaults.all().empty()); }

TEST_F(InputSettingsTest, ReadWhatIsStored) {
    defaults.set("inputAliases." + key, DefaultsData{R"([17,"Desk PC"])"});
    defaults.set("hiddenInputs." + key, DefaultsData{"[16]"});
    defaults.set("focusInput." + key, std::int64_t{17});
    defaults.set("macInput." + key, std::int64_t{15});
    defaults.set("customInputs." + key, DefaultsData{"[17,15]"});
    const InputSettings read(defaults, key);
    EXPECT_EQ(read.aliases(), (InputSettings::Aliases{{17, "Desk PC"}}));
    EXPECT_EQ(read.hidden(), std::set<Input>{16});
    EXPECT_EQ(read.focusInput(), 17);
    EXPECT_EQ(read.macInput(), 15);
    EXPECT_EQ(read.customInputs(), (Inputs{17, 15}));
}

TEST_F(InputSettingsTest, AreThoseOfTheirOwnMonitor) {
    settings.setMacInput(15);
    EXPECT_EQ(InputSettings(defaults, "1138-1922-1").macInput(), std::nullopt);
}

TEST_F(InputSettingsTest, StoreAliasesAtOnce) {
    settings.setAliases({{17, "Desk PC"}});
    EXPECT_EQ(settings.aliases(), (InputSettings::Aliases{{17, "Desk PC"}}));
    EXPECT_EQ(value("inputAliases."), data(R"([17,"Desk PC"])"));
}

TEST_F(InputSettingsTest, StoreHiddenInputsAtOnce) {
    settings.setHidden({17, 15});
    EXPECT_EQ(settings.hidden(), (std::set<Input>{15, 17}));
    EXPECT_EQ(value("hiddenInputs."), data("[15,17]"));
}

TEST_F(InputSettingsTest, StoreTheFocusInputAtOnce) {
    settings.setFocusInput(17);
    EXPECT_EQ(settings.focusInput(), 17);
    EXPECT_EQ(value("focusInput."), integer(17));
}

TEST_F(InputSettingsTest, ClearingTheFocusInputStoresZero) {
    settings.setFocusInput(17);
    settings.setFocusInput(std::nullopt);
    EXPECT_EQ(settings.focusInput(), std::nullopt);
    EXPECT_EQ(value("focusInput."), integer(0));
}

TEST_F(InputSettingsTest, StoreTheMacInputAtOnce) {
    settings.setMacInput(15);
    EXPECT_EQ(settings.macInput(), 15);
    EXPECT_EQ(value("macInput."), integer(15));
}

TEST_F(InputSettingsTest, ClearingTheMacInputStoresZero) {
    settings.setMacInput(15);
    settings.setMacInput(std::nullopt);
    EXPECT_EQ(settings.macInput(), std::nullopt);
    EXPECT_EQ(value("macInput."), integer(0));
}

TEST_F(InputSettingsTest, StoreCustomInputsAtOnce) {
    settings.setCustomInputs(Inputs{27, 15});
    EXPECT_EQ(settings.customInputs(), (Inputs{27, 15}));
    EXPECT_EQ(value("customInputs."), data("[27,15]"));
}

TEST_F(InputSettingsTest, GivingCustomInputsUpRemovesThem) {
    settings.setCustomInputs(Inputs{27, 15});
    settings.setCustomInputs(std::nullopt);
    EXPECT_EQ(settings.customInputs(), std::nullopt);
    EXPECT_EQ(value("customInputs."), std::nullopt);
}

TEST_F(InputSettingsTest, OneChangeStoresOneKey) {
    settings.setFocusInput(17);
    EXPECT_EQ(defaults.all().size(), 1U);
}

TEST_F(InputSettingsTest, AChangeWakesItsReaders) {
    EXPECT_TRUE(test::wakes([&] { return settings.aliases(); }, [&] { settings.setAliases({{17, "PC"}}); }));
    EXPECT_TRUE(test::wakes([&] { return settings.hidden(); }, [&] { settings.setHidden({17}); }));
    EXPECT_TRUE(test::wakes([&] { return settings.focusInput(); }, [&] { settings.setFocusInput(17); }));
    EXPECT_TRUE(test::wakes([&] { return settings.macInput(); }, [&] { settings.setMacInput(17); }));
    EXPECT_TRUE(
        test::wakes([&] { return settings.customInputs(); }, [&] { settings.setCustomInputs(Inputs{17}); }));
}

TEST_F(InputSettingsTest, AChangeWakesNoReaderOfAnother) {
    EXPECT_FALSE(test::wakes([&] { return settings.macInput(); }, [&] { settings.setFocusInput(17); }));
}

TEST_F(InputSettingsTest, AnEqualValueWakesNobody) {
    settings.setMacInput(15);
    EXPECT_FALSE(test::wakes([&] { return settings.macInput(); }, [&] { settings.setMacInput(15); }));
}

}  // namespace
}  // namespace vantrel::model
