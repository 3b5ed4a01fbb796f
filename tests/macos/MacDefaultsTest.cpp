#include <gtest/gtest.h>

#include "macos/CFBench.h"
#include "macos/fake/Objects.h"
#include "persistence/Store.h"

namespace vantrel::macos {
namespace {

using persistence::DisabledDisplay;
using platform::DefaultsData;
using platform::DefaultsDictionary;
using platform::DefaultsValue;
namespace Store = persistence::Store;

const std::string key = "1000-22-102";

class MacDefaultsTest : public CFBench {
  protected:
    platform::Defaults& defaults() { return bench.platform.defaults; }
    CFTypeRef stored(const std::string& name) { return bench.fake.preferences().at(name).get(); }
    void store(const std::string& name, CFTypeRef object) {
        bench.fake.preferences().insert_or_assign(name, CFHandle<CFTypeRef>(CFRetain(object)));
    }
};

TEST_F(MacDefaultsTest, KeepsEachTypeAsThePreferencesDo) {
    defaults().set("data", DefaultsData{"bytes"});
    defaults().set("number", std::int64_t(17));
    defaults().set("text", std::string("text"));
    defaults().set("levels", DefaultsDictionary{{"brightness", 1.0}, {"name", std::string("Desk")}});
    EXPECT_EQ(CFGetTypeID(stored("data")), CFDataGetTypeID());
    EXPECT_EQ(CFGetTypeID(stored("number")), CFNumberGetTypeID());
    EXPECT_EQ(CFNumberGetType(static_cast<CFNumberRef>(stored("number"))), kCFNumberSInt64Type);
    EXPECT_EQ(CFGetTypeID(stored("text")), CFStringGetTypeID());
    EXPECT_EQ(CFGetTypeID(stored("levels")), CFDictionaryGetTypeID());
    const auto& levels = fake::live<fake::Dictionary>(stored("levels"), fake::dictionaryType).entries;
    ASSERT_EQ(levels.size(), 2);
    EXPECT_EQ(CFNumberGetType(static_cast<CFNumberRef>(levels[0].second)), kCFNumberFloat64Type);
    EXPECT_EQ(CFGetTypeID(levels[1].second), CFStringGetTypeID());
}

TEST_F(MacDefaultsTest, HasNoValueThatIsNotThereOrOfAnotherType) {
    EXPECT_EQ(defaults().value("none"), std::nullopt);
    store("flag", kCFBooleanTrue);
    EXPECT_EQ(defaults().value("flag"), std::nullopt);
}

TEST_F(MacDefaultsTest, TakesAValueAway) {
    defaults().set("number", std::int64_t(17));
    defaults().remove("number");
    EXPECT_EQ(defaults().value("number"), std::nullopt);
    EXPECT_TRUE(bench.fake.preferences().empty());
}

TEST_F(MacDefaultsTest, BringsEverythingOfTheStoreBack) {
    const auto capabilities = mccs::MonitorCapabilities::parse("(model(X1)vcp(10 60(0F 11)))");
    const std::vector<Store::Input> inputs{0x0F, 0x11};
    const Store::InputAliases aliases{{0x0F, "Büro"}, {0x11, "Konsole"}};
    const Store::SoftwareLevels levels{.brightness = 0.3, .contrast = 0.7};
    const std::vector<DisabledDisplay> disabled{{.id = 2, .key = key, .name = "Alder"}};
    Store::setCapabilities(defaults(), capabilities, key);
    Store::setCustomInputs(defaults(), inputs, key);
    Store::setInputAliases(defaults(), aliases, key);
    Store::setHiddenInputs(defaults(), {0x12}, key);
    Store::setFocusInput(defaults(), 0x11, key);
    Store::setMacInput(defaults(), 0x0F, key);
    Store::setControlMode(defaults(), "software", key);
    Store::setSoftwareLevels(defaults(), levels, key);
    Store::setDisabledDisplays(defaults(), disabled);
    EXPECT_EQ(Store::capabilities(defaults(), key), capabilities);
    EXPECT_EQ(Store::customInputs(defaults(), key), inputs);
    EXPECT_EQ(Store::inputAliases(defaults(), key), aliases);
    EXPECT_EQ(Store::hiddenInputs(defaults(), key), std::set<Store::Input>{0x12});
    EXPECT_EQ(Store::focusInput(defaults(), key), 0x11);
    EXPECT_EQ(Store::macInput(defaults(), key), 0x0F);
    EXPECT_EQ(Store::controlMode(defaults(), key), "software");
    EXPECT_EQ(Store::softwareLevels(defaults(), key), levels);
    EXPECT_EQ(Store::disabledDisplays(defaults()), disabled);
}

TEST_F(MacDefaultsTest, KeepsTheOldValueAndSaysSoWhenTheSystemMakesNoNewOne) {
    defaults().set("number", std::int64_t(17));
    failNext("CFNumberCreate");
    defaults().set("number", std::int64_t(18));
    EXPECT_EQ(defaults().value("number"), DefaultsValue(std::int64_t(17)));
    failNext("CFStringCreateWithBytes");
    defaults().remove("number");
    EXPECT_EQ(defaults().value("number"), DefaultsValue(std::int64_t(17)));
    const fake::LoggedLine line{"org.vantrel.Vantrel", "display", OS_LOG_TYPE_ERROR,
                                "the setting number can't be changed: the system makes no object for it"};
    EXPECT_EQ(bench.fake.logged(), (std::vector{line, line}));
}

}  // namespace
}  // namespace vantrel::macos
