#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/simulated/RegistryReader.h"
#include "simulated/DeskFileText.h"

namespace vantrel::simulated {
namespace {

using platform::PropertyDictionary;
using platform::PropertyValue;
using Kind = RegistryEntryPlan::Kind;

const std::string displays = R"("displays": [
    {"id": 1, "name": "Panel", "isBuiltIn": true, "vendor": "0x460E", "product": "0x0E01"},
    {"id": 2, "name": "Screen", "vendor": "0x0472", "product": "0x0782", "serial": 7}])";

std::vector<RegistryEntryPlan> registryOf(const std::string& list) {
    const Desk desk = readDeskText(R"({"title": "T", )" + displays + R"(, "registry": )" + list + "}");
    EXPECT_FALSE(desk.displays.empty()) << desk.title;
    return desk.registry;
}

RegistryEntryPlan onlyEntry(const std::string& entry) {
    const auto entries = registryOf("[" + entry + "]");
    EXPECT_EQ(entries.size(), 1U);
    return entries.empty() ? RegistryEntryPlan{} : entries.front();
}

PropertyDictionary attributes(PropertyDictionary product) {
    return {{"ProductAttributes", std::move(product)}};
}

TEST(RegistryReader, ShowsAFramebufferBeforeEachProxyByDefault) {
    const Desk desk = readDeskText(R"({"title": "T", )" + displays + "}");
    std::vector<std::pair<Kind, platform::DisplayID>> shown;
    for (const RegistryEntryPlan& entry : desk.registry) {
        if (entry.kind != Kind::other) shown.emplace_back(entry.kind, entry.display);
    }
    EXPECT_THAT(shown, testing::ElementsAre(std::pair(Kind::framebuffer, 1U), std::pair(Kind::proxy, 1U),
                                            std::pair(Kind::framebuffer, 2U), std::pair(Kind::proxy, 2U)));
    EXPECT_GT(desk.registry.size(), shown.size()) << "nothing unrelated in between";
}

TEST(RegistryReader, CanBeEmpty) { EXPECT_TRUE(registryOf("[]").empty()); }

TEST(RegistryReader, KeepsTheFilesOrder) {
    const auto entries = registryOf(R"([{"proxy": 2}, {"entry": "X"}, {"framebuffer": 2}, {"proxy": 2}])");
    ASSERT_EQ(entries.size(), 4U);
    EXPECT_EQ(entries[0].kind, Kind::proxy);
    EXPECT_EQ(entries[1].kind, Kind::other);
    EXPECT_EQ(entries[2].kind, Kind::framebuffer);
    EXPECT_EQ(entries[3].kind, Kind::proxy);
}

TEST(RegistryReader, GivesAFramebufferItsDisplaysIdentity) {
    const RegistryEntryPlan entry = onlyEntry(R"({"framebuffer": 2})");
    EXPECT_EQ(entry.name, "IOMobileFramebufferShim");
    EXPECT_EQ(entry.display, 2U);
    const PropertyDictionary expected{
        {"EDID UUID", "04728207-0000-0000-0000-000000000000"},
        {"DisplayAttributes", attributes({{"SerialNumber", std::int64_t{7}}, {"ProductName", "Screen"}})}};
    EXPECT_EQ(entry.properties, expected);
}

TEST(RegistryReader, NamesTheBuiltInFramebufferByItsOwnDriver) {
    EXPECT_EQ(onlyEntry(R"({"framebuffer": 1})").name, "AppleCLCD2");
}

TEST(RegistryReader, PlacesTheLinkOfAMonitorOutside) {
    const RegistryEntryPlan entry = onlyEntry(R"({"proxy": "0x2"})");
    EXPECT_EQ(entry.name, "DCPAVServiceProxy");
    EXPECT_EQ(entry.display, 2U);
    EXPECT_EQ(entry.properties, (PropertyDictionary{{"Location", "External"}}));
}

TEST(RegistryReader, PlacesTheLinkOfTheBuiltInPanelInside) {
    EXPECT_EQ(onlyEntry(R"({"proxy": 1})").properties, (PropertyDictionary{{"Location", "Internal"}}));
}

TEST(RegistryReader, TakesAnotherNameOfAnyBytes) {
    EXPECT_EQ(onlyEntry(R"({"proxy": 2, "name": {"hex": "44 FF 00"}})").name, std::string("D\xFF\0", 3));
}

TEST(RegistryReader, TakesAnUnrelatedEntry) {
    const RegistryEntryPlan entry =
        onlyEntry(R"({"entry": "IOHIDSystem", "properties": {"Location": "External"}})");
    EXPECT_EQ(entry.kind, Kind::other);
    EXPECT_EQ(entry.name, "IOHIDSystem");
    EXPECT_EQ(entry.properties, (PropertyDictionary{{"Location", "External"}}));
}

TEST(RegistryReader, LeavesPropertiesOutAtAnyDepth) {
    const auto entry = onlyEntry(R"({"framebuffer": 2, "without": ["EDID UUID", "SerialNumber"]})");
    EXPECT_EQ(entry.properties,
              (PropertyDictionary{{"DisplayAttributes", attributes({{"ProductName", "Screen"}})}}));
}

TEST(RegistryReader, PutsGivenPropertiesInPlaceOfItsOwn) {
    const auto entry = onlyEntry(R"({"framebuffer": 2, "without": ["DisplayAttributes"],
        "properties": {"EDID UUID": "X", "More": {"Inner": -1}}})");
    EXPECT_EQ(
        entry.properties,
        (PropertyDictionary{{"EDID UUID", "X"}, {"More", PropertyDictionary{{"Inner", std::int64_t{-1}}}}}));
}

TEST(RegistryReader, TakesPropertiesOfAnyType) {
    const auto entry = onlyEntry(R"({"entry": "X", "properties":
        {"a": null, "b": true, "c": 1.5, "d": [1], "e": 9223372036854775807, "f": 9223372036854775808}})");
    const PropertyValue unread{std::monostate()};
    EXPECT_EQ(entry.properties, (PropertyDictionary{{"a", unread},
                                                    {"b", unread},
                                                    {"c", unread},
                                                    {"d", unread},
                                                    {"e", std::int64_t{9223372036854775807}},
                                                    {"f", unread}}));
}

TEST(RegistryReader, RefusesARegistryEntryOfNoKind) {
    EXPECT_EQ(mistakeIn(deskWith("", R"(, "registry": [{"name": "X"}])")),
              "x.json: registry[0]: must have one of framebuffer, proxy and entry");
}

TEST(RegistryReader, RefusesARegistryEntryOfTwoKinds) {
    EXPECT_EQ(mistakeIn(deskWith("", R"(, "registry": [{"proxy": 2, "framebuffer": 2}])")),
              "x.json: registry[0]: must have one of framebuffer, proxy and entry");
}

TEST(RegistryReader, RefusesARegistryEntryOfAnUnknownDisplay) {
    EXPECT_EQ(mistakeIn(deskWith("", R"(, "registry": [{"framebuffer": 2}, {"proxy": 9}])")),
              "x.json: registry[1].proxy: there is no display 9");
}

TEST(RegistryReader, RefusesAFramebufferOfAnUnknownDisplay) {
    EXPECT_EQ(mistakeIn(deskWith("", R"(, "registry": [{"framebuffer": 9}])")),
              "x.json: registry[0].framebuffer: there is no display 9");
}

TEST(RegistryReader, RefusesARegistryEntryWithTwoNames) {
    EXPECT_EQ(mistakeIn(deskWith("", R"(, "registry": [{"entry": "X", "name": "Y"}])")),
              "x.json: registry[0].name: is already given by entry");
}

TEST(RegistryReader, RefusesAnUnrelatedEntryThatLeavesSomethingOut) {
    EXPECT_EQ(mistakeIn(deskWith("", R"(, "registry": [{"entry": "X", "without": ["Location"]}])")),
              "x.json: registry[0].without: has nothing to leave out");
}

TEST(RegistryReader, RefusesAPropertyLeftOutThatIsNotThere) {
    EXPECT_EQ(mistakeIn(deskWith("", R"(, "registry": [{"proxy": 2, "without": ["EDID UUID"]}])")),
              "x.json: registry[0].without: \"EDID UUID\" is not a property of this entry");
}

TEST(RegistryReader, RefusesPropertiesThatAreNoObject) {
    EXPECT_EQ(mistakeIn(deskWith("", R"(, "registry": [{"proxy": 2, "properties": []}])")),
              "x.json: registry[0].properties: must be an object, not a list");
}

}  // namespace
}  // namespace vantrel::simulated
