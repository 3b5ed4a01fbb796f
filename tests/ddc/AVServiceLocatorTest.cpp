#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ddc/AVServiceLocator.h"
#include "support/ScriptedBus.h"
#include "support/SteppingClock.h"

namespace vantrel::ddc {
namespace {

using namespace std::string_literals;

using platform::PropertyDictionary;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Entries = std::vector<AVServiceLocator::Entry>;

// What the walk finds out about a link, apart from its handle.
struct Identity {
    std::optional<std::string> edidUUID;
    std::optional<std::uint32_t> serial;
    std::optional<std::string> productName;
    bool operator==(const Identity&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Identity& identity) {
        return out << identity.edidUUID.value_or("no UUID") << ", "
                   << (identity.serial ? std::to_string(*identity.serial) : "no serial") << ", "
                   << identity.productName.value_or("no name");
    }
};

const Identity none;
const Identity left{"10ACE0A1", 7, "Left"};
const Identity right{"1E6D0777", 8, "Right"};

class AVServiceLocatorTest : public testing::Test {
  protected:
    // A framebuffer of a monitor, which a test may then damage.
    PropertyDictionary& framebuffer(const Identity& identity, const std::string& name = "AppleCLCD2") {
        PropertyDictionary product{{"SerialNumber", std::int64_t{*identity.serial}},
                                   {"ProductName", *identity.productName}};
        PropertyDictionary attributes{{"ProductAttributes", std::move(product)}};
        bus.entries.push_back(
            {name,
             {{"EDID UUID", *identity.edidUUID}, {"DisplayAttributes", std::move(attributes)}},
             nullptr});
        return bus.entries.back().properties;
    }
    static PropertyDictionary& productOf(PropertyDictionary& properties) {
        auto& attributes = std::get<PropertyDictionary>(properties.at("DisplayAttributes"));
        return std::get<PropertyDictionary>(attributes.at("ProductAttributes"));
    }
    static PropertyDictionary& attributesOf(PropertyDictionary& properties) {
        return std::get<PropertyDictionary>(properties.at("DisplayAttributes"));
    }
    void proxy(PropertyDictionary properties = {{"Location", "External"s}},
               const std::string& name = "DCPAVServiceProxy") {
        bus.entries.push_back({name, std::move(properties), &link});
    }
    void proxyWithoutHandle() {
        proxy();
        bus.entries.back().service = nullptr;
    }
    void other(const std::string& name = "AppleARMPE") { bus.entries.push_back({name, {}, &link}); }

    Entries walk() { return AVServiceLocator::externalServices(bus, bus.functions()); }
    std::vector<Identity> identities() {
        std::vector<Identity> found;
        for (const AVServiceLocator::Entry& entry : walk()) {
            found.push_back({entry.edidUUID, entry.serial, entry.productName});
        }
        return found;
    }

    test::SteppingClock clock;
    test::ScriptedService link;
    test::ScriptedBus bus{clock};
};

TEST_F(AVServiceLocatorTest, EmptyRegistryHasNoLinks) { EXPECT_THAT(identities(), IsEmpty()); }

TEST_F(AVServiceLocatorTest, WithoutAnIteratorThereAreNoLinks) {
    framebuffer(left);
    proxy();
    bus.canIterate = false;
    EXPECT_THAT(identities(), IsEmpty());
}

TEST_F(AVServiceLocatorTest, LinkHasTheIdentityOfTheFramebufferBeforeIt) {
    framebuffer(left);
    proxy();
    EXPECT_THAT(identities(), ElementsAre(left));
}

TEST_F(AVServiceLocatorTest, BothNamesOfFramebuffersAreKnown) {
    framebuffer(left, "IOMobileFramebufferShim");
    proxy();
    framebuffer(right, "AppleCLCD2");
    proxy();
    EXPECT_THAT(identities(), ElementsAre(left, right));
}

TEST_F(AVServiceLocatorTest, SimilarNamesAreNoFramebuffers) {
    for (const char* name :
         {"AppleCLCD", "AppleCLCD2 ", "appleclcd2", "IOMobileFramebuffer", "IOMobileFramebufferShim2", ""}) {
        framebuffer(left, name);
    }
    proxy();
    EXPECT_THAT(identities(), ElementsAre(none));
}

TEST_F(AVServiceLocatorTest, SimilarNamesAreNoLinks) {
    for (const char* name :
         {"DCPAVServiceProxy2", "DCPAVService", "dcpavserviceproxy", "AVServiceProxy", ""}) {
        proxy({{"Location", "External"s}}, name);
    }
    EXPECT_THAT(identities(), IsEmpty());
}

TEST_F(AVServiceLocatorTest, IllFormedNamesAreNeitherFramebuffersNorLinks) {
    framebuffer(left, "AppleCLCD2\xFF");
    proxy({{"Location", "External"s}}, "DCPAVServiceProxy\xC3");
    proxy({{"Location", "External"s}}, "\xFE\xFF");
    proxy();
    EXPECT_THAT(identities(), ElementsAre(none));
}

TEST_F(AVServiceLocatorTest, NamesEndAtTheirFirstNUL) {
    framebuffer(left, "AppleCLCD2\0shim"s);
    proxy({{"Location", "External"s}}, "DCPAVServiceProxy\0\xFF"s);
    proxy({{"Location", "External"s}}, "\0DCPAVServiceProxy"s);
    EXPECT_THAT(identities(), ElementsAre(left));
}

TEST_F(AVServiceLocatorTest, LinksAreInRegistryOrder) {
    framebuffer(right);
    proxy();
    framebuffer(left);
    proxy();
    EXPECT_THAT(identities(), ElementsAre(right, left));
}

TEST_F(AVServiceLocatorTest, OtherEntriesBetweenAreSkipped) {
    other();
    framebuffer(left);
    other();
    other("DCPAVControllerProxy");
    proxy();
    other();
    EXPECT_THAT(identities(), ElementsAre(left));
}

TEST_F(AVServiceLocatorTest, LinkWithoutAFramebufferHasNoIdentity) {
    proxy();
    EXPECT_THAT(identities(), ElementsAre(none));
}

TEST_F(AVServiceLocatorTest, IdentityIsUsedOnce) {
    framebuffer(left);
    proxy();
    proxy();
    EXPECT_THAT(identities(), ElementsAre(left, none));
}

TEST_F(AVServiceLocatorTest, LaterFramebufferReplacesTheIdentity) {
    framebuffer(left);
    framebuffer(right);
    proxy();
    EXPECT_THAT(identities(), ElementsAre(right));
}

TEST_F(AVServiceLocatorTest, LaterFramebufferWithoutPropertiesClearsTheIdentity) {
    framebuffer(left);
    framebuffer(right).clear();
    proxy();
    EXPECT_THAT(identities(), ElementsAre(none));
}

TEST_F(AVServiceLocatorTest, MissingEDIDUUIDIsAbsent) {
    framebuffer(left);
    framebuffer(left).erase("EDID UUID");
    proxy();
    EXPECT_THAT(identities(), ElementsAre(Identity{std::nullopt, 7, "Left"}));
}

TEST_F(AVServiceLocatorTest, EDIDUUIDThatIsNoStringIsAbsent) {
    framebuffer(left)["EDID UUID"] = std::int64_t{0x10AC};
    proxy();
    framebuffer(left)["EDID UUID"] = PropertyDictionary();
    proxy();
    framebuffer(left)["EDID UUID"] = std::monostate();
    proxy();
    EXPECT_THAT(identities(), testing::AllOf(SizeIs(3), testing::Each(Identity{std::nullopt, 7, "Left"})));
}

TEST_F(AVServiceLocatorTest, MissingDisplayAttributesLeaveOnlyTheEDIDUUID) {
    framebuffer(right);
    framebuffer(left).erase("DisplayAttributes");
    proxy();
    EXPECT_THAT(identities(), ElementsAre(Identity{"10ACE0A1", std::nullopt, std::nullopt}));
}

TEST_F(AVServiceLocatorTest, DisplayAttributesThatAreNoDictionaryLeaveOnlyTheEDIDUUID) {
    framebuffer(right);
    framebuffer(left)["DisplayAttributes"] = "attributes"s;
    proxy();
    EXPECT_THAT(identities(), ElementsAre(Identity{"10ACE0A1", std::nullopt, std::nullopt}));
}

TEST_F(AVServiceLocatorTest, MissingProductAttributesLeaveOnlyTheEDIDUUID) {
    framebuffer(right);
    attributesOf(framebuffer(left)).erase("ProductAttributes");
    proxy();
    EXPECT_THAT(identities(), ElementsAre(Identity{"10ACE0A1", std::nullopt, std::nullopt}));
}

TEST_F(AVServiceLocatorTest, ProductAttributesThatAreNoDictionaryLeaveOnlyTheEDIDUUID) {
    framebuffer(right);
    attributesOf(framebuffer(left))["ProductAttributes"] = std::int64_t{1};
    proxy();
    EXPECT_THAT(identities(), ElementsAre(Identity{"10ACE0A1", std::nullopt, std::nullopt}));
}

TEST_F(AVServiceLocatorTest, ProductAttributesBesideTheDisplayAttributesDoNotCount) {
    PropertyDictionary& properties = framebuffer(left);
    properties["ProductAttributes"] = productOf(properties);
    properties.erase("DisplayAttributes");
    proxy();
    EXPECT_THAT(identities(), ElementsAre(Identity{"10ACE0A1", std::nullopt, std::nullopt}));
}

TEST_F(AVServiceLocatorTest, MissingSerialIsAbsent) {
    framebuffer(right);
    productOf(framebuffer(left)).erase("SerialNumber");
    proxy();
    EXPECT_THAT(identities(), ElementsAre(Identity{"10ACE0A1", std::nullopt, "Left"}));
}

TEST_F(AVServiceLocatorTest, SerialThatIsNoNumberIsAbsent) {
    productOf(framebuffer(left))["SerialNumber"] = "7"s;
    proxy();
    EXPECT_THAT(identities(), ElementsAre(Identity{"10ACE0A1", std::nullopt, "Left"}));
}

TEST_F(AVServiceLocatorTest, SerialZeroIsPresent) {
    productOf(framebuffer(left))["SerialNumber"] = std::int64_t{0};
    proxy();
    EXPECT_THAT(identities(), ElementsAre(Identity{"10ACE0A1", 0, "Left"}));
}

TEST_F(AVServiceLocatorTest, LargestSerialIsTaken) {
    productOf(framebuffer(left))["SerialNumber"] = std::int64_t{0xFFFFFFFF};
    proxy();
    EXPECT_THAT(identities(), ElementsAre(Identity{"10ACE0A1", 0xFFFFFFFF, "Left"}));
}

TEST_F(AVServiceLocatorTest, SerialIsTheLow32BitsOfItsNumber) {
    productOf(framebuffer(left))["SerialNumber"] = std::int64_t{-2};
    proxy();
    productOf(framebuffer(left))["SerialNumber"] = std::int64_t{0x100000005};
    proxy();
    EXPECT_THAT(identities(),
                ElementsAre(Identity{"10ACE0A1", 0xFFFFFFFE, "Left"}, Identity{"10ACE0A1", 5, "Left"}));
}

TEST_F(AVServiceLocatorTest, MissingProductNameIsAbsent) {
    framebuffer(right);
    productOf(framebuffer(left)).erase("ProductName");
    proxy();
    EXPECT_THAT(identities(), ElementsAre(Identity{"10ACE0A1", 7, std::nullopt}));
}

TEST_F(AVServiceLocatorTest, ProductNameThatIsNoStringIsAbsent) {
    productOf(framebuffer(left))["ProductName"] = std::int64_t{2720};
    proxy();
    EXPECT_THAT(identities(), ElementsAre(Identity{"10ACE0A1", 7, std::nullopt}));
}

TEST_F(AVServiceLocatorTest, InternalLinkIsSkipped) {
    framebuffer(left);
    proxy({{"Location", "Embedded"s}});
    EXPECT_THAT(identities(), IsEmpty());
}

TEST_F(AVServiceLocatorTest, LinkWithoutALocationIsSkipped) {
    proxy({});
    EXPECT_THAT(identities(), IsEmpty());
}

TEST_F(AVServiceLocatorTest, LinkWhoseLocationIsNotExactlyExternalIsSkipped) {
    proxy({{"Location", "external"s}});
    proxy({{"Location", "External "s}});
    proxy({{"Location", std::int64_t{1}}});
    proxy({{"Location", std::monostate()}});
    EXPECT_THAT(identities(), IsEmpty());
}

TEST_F(AVServiceLocatorTest, IdentitySurvivesASkippedLink) {
    framebuffer(left);
    proxy({{"Location", "Embedded"s}});
    proxy();
    EXPECT_THAT(identities(), ElementsAre(left));
}

TEST_F(AVServiceLocatorTest, NoHandleIsMadeForAnInternalLink) {
    proxy({{"Location", "Embedded"s}});
    proxy();
    const Entries entries = walk();
    EXPECT_EQ(bus.liveHandles(), 1);
}

TEST_F(AVServiceLocatorTest, IdentitySurvivesALinkWithoutAHandle) {
    framebuffer(left);
    proxyWithoutHandle();
    proxy();
    EXPECT_THAT(identities(), ElementsAre(left));
}

TEST_F(AVServiceLocatorTest, WithoutTheCreateFunctionThereAreNoLinks) {
    bus.missingSymbols = {"IOAVServiceCreateWithService"};
    framebuffer(left);
    proxy();
    proxy();
    EXPECT_THAT(identities(), IsEmpty());
}

TEST_F(AVServiceLocatorTest, HandleIsMadeFromTheLinksOwnEntry) {
    test::ScriptedService second;
    proxy();
    proxy();
    bus.entries.back().service = &second;
    second.nextWrites({5});
    const Entries entries = walk();
    ASSERT_THAT(entries, SizeIs(2));
    EXPECT_EQ(bus.functions().avWrite()(entries[0].service.get(), 0x37, 0x51, "", 0), 0);
    EXPECT_EQ(bus.functions().avWrite()(entries[1].service.get(), 0x37, 0x51, "", 0), 5);
}

TEST_F(AVServiceLocatorTest, HandlesLiveAsLongAsTheirEntries) {
    proxy();
    proxy();
    {
        const Entries entries = walk();
        EXPECT_EQ(bus.liveHandles(), 2);
    }
    EXPECT_EQ(bus.liveHandles(), 0);
}

TEST_F(AVServiceLocatorTest, CopiesOfAnEntryShareItsHandle) {
    proxy();
    std::optional<Entries> entries = walk();
    const AVServiceLocator::Entry copy = entries->at(0);
    entries.reset();
    EXPECT_EQ(bus.liveHandles(), 1);
}

TEST_F(AVServiceLocatorTest, EveryWalkMakesHandlesOfItsOwn) {
    proxy();
    const Entries first = walk();
    const Entries second = walk();
    EXPECT_NE(first[0].service.get(), second[0].service.get());
    EXPECT_EQ(bus.liveHandles(), 2);
}

TEST_F(AVServiceLocatorTest, EveryRegistryEntryIsVisitedAndGivenBackBeforeTheNext) {
    other();
    framebuffer(left);
    proxy({{"Location", "Embedded"s}});
    proxy();
    other();
    const Entries entries = walk();
    EXPECT_EQ(bus.visitedEntries(), 5);
    EXPECT_EQ(bus.mostLiveEntries(), 1);
    EXPECT_EQ(bus.liveEntries(), 0);
    EXPECT_EQ(bus.liveIterators(), 0);
}

}  // namespace
}  // namespace vantrel::ddc
