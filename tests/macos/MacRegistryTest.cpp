#include <gtest/gtest.h>

#include "ddc/AVServiceLocator.h"
#include "macos/CFBench.h"

namespace vantrel::macos {
namespace {

using ddc::AVServiceLocator::Entry;
using ddc::AVServiceLocator::externalServices;
using platform::PropertyDictionary;
using platform::PropertyValue;

class MacRegistryTest : public testing::Test {
  protected:
    std::vector<Entry> services() {
        return externalServices(bench.platform.registry, bench.platform.functions);
    }
    std::vector<std::string> names() {
        std::vector<std::string> found;
        const auto walk = bench.platform.registry.iterateServicePlane();
        if (!walk) return found;
        while (const auto entry = walk->next()) found.push_back(entry->name());
        return found;
    }
    std::unique_ptr<platform::RegistryEntry> framebuffer() {
        const auto walk = bench.platform.registry.iterateServicePlane();
        auto entry = walk->next();
        while (entry && entry->name() != "IOMobileFramebufferShim") entry = walk->next();
        return entry;
    }
    void failNext(const char* function) { bench.fake.calls().failNext(function); }

    MacBench bench;
};

TEST_F(MacRegistryTest, WalksOverTheDesksEntries) {
    std::vector<std::string> expected;
    for (const auto& entry : bench.computer.world().desk().registry) expected.push_back(entry.name);
    EXPECT_EQ(names(), expected);
}

TEST_F(MacRegistryTest, ReadsPropertiesOfEveryType) {
    const auto entry = framebuffer();
    ASSERT_TRUE(entry);
    const PropertyDictionary product{{"SerialNumber", std::int64_t(102)}, {"ProductName", "Alder"}};
    EXPECT_EQ(entry->property("DisplayAttributes"),
              PropertyValue(PropertyDictionary{{"ProductAttributes", product}}));
    EXPECT_EQ(entry->property("none"), std::nullopt);
}

TEST_F(MacRegistryTest, FindsEveryExternalServiceWithItsIdentity) {
    const auto found = services();
    ASSERT_EQ(found.size(), 2);
    EXPECT_EQ(found[0].productName, "Alder");
    EXPECT_EQ(found[1].serial, 103);
    EXPECT_EQ(bench.computer.liveServices(), 2);
}

TEST_F(MacRegistryTest, GivesServicesBackWithTheLastCopy) {
    auto found = services();
    const Entry copy = found[0];
    found.clear();
    EXPECT_EQ(bench.computer.liveServices(), 1);
}

TEST_F(MacRegistryTest, HasNoIdentityInPropertiesOfWrongTypes) {
    const auto key = CFText::make("ProductAttributes");
    const auto number = integerOf(3);
    std::vector<CFHandle<CFTypeRef>> wrong;
    wrong.emplace_back(CFRetain(kCFBooleanTrue));
    wrong.emplace_back(CFRetain(number.get()));
    wrong.emplace_back(CFRetain(dataOf("bytes").get()));
    wrong.emplace_back(CFRetain(realOf(0.5).get()));
    wrong.emplace_back(CFRetain(dictionaryOf({}).get()));
    wrong.emplace_back(CFRetain(dictionaryOf({{key.get(), number.get()}}).get()));
    wrong.emplace_back(CFRetain(dictionaryOf({{number.get(), key.get()}}).get()));
    for (const auto& object : wrong) {
        for (const char* property : {"EDID UUID", "DisplayAttributes"}) {
            bench.fake.properties().insert_or_assign(property, CFHandle<CFTypeRef>(CFRetain(object.get())));
        }
        const auto found = services();
        ASSERT_EQ(found.size(), 2);
        for (const Entry& entry : found) {
            EXPECT_EQ(entry.edidUUID, std::nullopt);
            EXPECT_EQ(entry.serial, std::nullopt);
            EXPECT_EQ(entry.productName, std::nullopt);
        }
    }
}

TEST_F(MacRegistryTest, FindsNoServiceWhoseLocationIsNoText) {
    bench.fake.properties().emplace("Location", CFHandle<CFTypeRef>(CFRetain(kCFBooleanTrue)));
    EXPECT_TRUE(services().empty());
}

TEST_F(MacRegistryTest, HasNoWalkWhenTheSystemMakesNone) {
    failNext("IORegistryCreateIterator");
    EXPECT_EQ(bench.platform.registry.iterateServicePlane(), nullptr);
}

TEST_F(MacRegistryTest, EndsAWalkThatTheSystemBreaksOff) {
    bench.fake.calls().failNext("IOIteratorNext", 3);
    EXPECT_EQ(names().size(), 2);
}

TEST_F(MacRegistryTest, HasNoNameAndNoPropertyThatCanNotBeRead) {
    const auto entry = framebuffer();
    failNext("IORegistryEntryGetName");
    EXPECT_EQ(entry->name(), "");
    for (const char* function : {"CFStringCreateWithBytes", "IORegistryEntryCreateCFProperty"}) {
        failNext(function);
        EXPECT_EQ(entry->property("EDID UUID"), std::nullopt);
    }
    EXPECT_TRUE(entry->property("EDID UUID"));
}

}  // namespace
}  // namespace vantrel::macos
