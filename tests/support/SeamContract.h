// What every platform behind the seam keeps to, whatever is on its desk. A
// platform runs these tests by giving a bench of its own:
//
//     struct MyBench {
//         platform::Platform& platform();
//     };
//     INSTANTIATE_TYPED_TEST_SUITE_P(My, SeamContract, MyBench);
//
// A bench is made anew for every test. The tests leave the displays as they found
// them; on real hardware the picture may flicker.
#pragma once

#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/AVService.h"
#include "platform/Platform.h"

namespace vantrel {

template <class Bench>
class SeamContract : public testing::Test {
  protected:
    platform::Platform& platform() { return bench_.platform(); }
    platform::DisplayServices& displays() { return platform().displays; }

    // A number that no platform gives to a display.
    static constexpr platform::DisplayID unknownDisplay = 0xFFFFFFF0;

    std::vector<std::string> walk() {
        std::vector<std::string> names;
        auto iterator = platform().registry.iterateServicePlane();
        if (!iterator) return names;
        while (const auto entry = iterator->next()) names.push_back(entry->name());
        return names;
    }

    // A handle of every external AV service, in the order of the walk.
    std::vector<platform::AVService> services() {
        std::vector<platform::AVService> found;
        auto iterator = platform().registry.iterateServicePlane();
        const auto create = platform().functions.avCreate();
        if (!iterator || create == nullptr) return found;
        while (const auto entry = iterator->next()) {
            if (entry->name() != "DCPAVServiceProxy") continue;
            if (const void* service = create(nullptr, entry->object())) {
                found.emplace_back(platform().registry, service);
            }
        }
        return found;
    }

  private:
    Bench bench_;
};

TYPED_TEST_SUITE_P(SeamContract);

// Displays.

TYPED_TEST_P(SeamContract, ListsEveryOnlineDisplayOnce) {
    const auto online = this->displays().onlineDisplays();
    const std::set<platform::DisplayID> different(online.begin(), online.end());
    EXPECT_EQ(different.size(), online.size());
}

TYPED_TEST_P(SeamContract, ListsTheSameDisplaysInTheSameOrderAgain) {
    EXPECT_EQ(this->displays().onlineDisplays(), this->displays().onlineDisplays());
}

TYPED_TEST_P(SeamContract, HasOneBuiltInDisplayAtTheMost) {
    const auto online = this->displays().onlineDisplays();
    const auto isBuiltIn = [this](platform::DisplayID id) { return this->displays().isBuiltIn(id); };
    EXPECT_LE(std::count_if(online.begin(), online.end(), isBuiltIn), 1);
}

TYPED_TEST_P(SeamContract, KnowsNothingOfAnUnknownDisplay) {
    const auto unknown = TestFixture::unknownDisplay;
    EXPECT_FALSE(this->displays().isBuiltIn(unknown));
    EXPECT_EQ(this->displays().vendorNumber(unknown), 0);
    EXPECT_EQ(this->displays().modelNumber(unknown), 0);
    EXPECT_EQ(this->displays().serialNumber(unknown), 0);
    EXPECT_EQ(this->displays().screenName(unknown), std::nullopt);
    EXPECT_EQ(this->displays().transferTableCapacity(unknown), 0);
    EXPECT_EQ(this->displays().transferTable(unknown, 256), std::nullopt);
}

// Transfer tables.

TYPED_TEST_P(SeamContract, ReadsATableWithAsManySamplesPerChannelAsItCanHoldAtTheMost) {
    for (const platform::DisplayID id : this->displays().onlineDisplays()) {
        const std::uint32_t capacity = this->displays().transferTableCapacity(id);
        const auto table = this->displays().transferTable(id, capacity);
        if (!table) continue;
        EXPECT_LE(table->red.size(), capacity);
        EXPECT_EQ(table->green.size(), table->red.size());
        EXPECT_EQ(table->blue.size(), table->red.size());
    }
}

TYPED_TEST_P(SeamContract, HasNoTableWithoutACapacity) {
    for (const platform::DisplayID id : this->displays().onlineDisplays()) {
        if (this->displays().transferTableCapacity(id) > 0) continue;
        EXPECT_EQ(this->displays().transferTable(id, 256), std::nullopt);
    }
}

TYPED_TEST_P(SeamContract, GivesATableBackAsItWasSetAndRestoresIt) {
    for (const platform::DisplayID id : this->displays().onlineDisplays()) {
        const std::uint32_t capacity = this->displays().transferTableCapacity(id);
        const auto base = this->displays().transferTable(id, capacity);
        if (!base) continue;
        platform::TransferTable dark = *base;
        for (auto* channel : {&dark.red, &dark.green, &dark.blue}) {
            for (float& sample : *channel) sample *= 0.5F;
        }
        this->displays().setTransferTable(id, dark);
        EXPECT_EQ(this->displays().transferTable(id, capacity), dark);
        this->displays().restoreColorSyncSettings();
        EXPECT_EQ(this->displays().transferTable(id, capacity), base);
    }
}

// Configurations.

TYPED_TEST_P(SeamContract, LeavesTheDisplaysAsTheyAreWhenAConfigurationIsCancelled) {
    const auto before = this->displays().onlineDisplays();
    const auto configuration = this->displays().beginConfiguration();
    ASSERT_TRUE(configuration);
    if (const auto configure = this->platform().functions.configureEnabled(); configure && !before.empty()) {
        EXPECT_EQ(configure(*configuration, before.front(), true), 0);
    }
    this->displays().cancelConfiguration(*configuration);
    EXPECT_EQ(this->displays().onlineDisplays(), before);
}

TYPED_TEST_P(SeamContract, CompletesAConfigurationThatChangesNothing) {
    const auto before = this->displays().onlineDisplays();
    const auto configuration = this->displays().beginConfiguration();
    ASSERT_TRUE(configuration);
    EXPECT_TRUE(this->displays().completeConfiguration(*configuration,
                                                       platform::DisplayServices::configureForSession));
    EXPECT_EQ(this->displays().onlineDisplays(), before);
}

TYPED_TEST_P(SeamContract, BeginsAConfigurationAfterAnotherHasEnded) {
    for (int time = 0; time < 2; ++time) {
        const auto configuration = this->displays().beginConfiguration();
        ASSERT_TRUE(configuration);
        this->displays().cancelConfiguration(*configuration);
    }
}

TYPED_TEST_P(SeamContract, CallsNoReconfigurationCallbackWhenItIsRegistered) {
    const auto called = std::make_shared<bool>(false);
    this->displays().onReconfiguration([called](platform::DisplayID, std::uint32_t) { *called = true; });
    EXPECT_FALSE(*called);
}

// Registry.

TYPED_TEST_P(SeamContract, WalksTheRegistryInTheSameOrderAgain) { EXPECT_EQ(this->walk(), this->walk()); }

TYPED_TEST_P(SeamContract, NamesNoEntryWithANulOrMoreThanItsBufferHolds) {
    for (const std::string& name : this->walk()) {
        EXPECT_EQ(name.find('\0'), std::string::npos);
        EXPECT_LT(name.size(), 128U);
    }
}

TYPED_TEST_P(SeamContract, HasNoPropertyThatAnEntryDoesNotHave) {
    auto iterator = this->platform().registry.iterateServicePlane();
    ASSERT_TRUE(iterator);
    while (const auto entry = iterator->next()) {
        EXPECT_EQ(entry->property("no property of this name"), std::nullopt);
    }
}

TYPED_TEST_P(SeamContract, PutsAFramebufferBeforeEveryExternalService) {
    auto iterator = this->platform().registry.iterateServicePlane();
    ASSERT_TRUE(iterator);
    bool hasFramebuffer = false;
    while (const auto entry = iterator->next()) {
        const std::string name = entry->name();
        if (name == "AppleCLCD2" || name == "IOMobileFramebufferShim") hasFramebuffer = true;
        if (name != "DCPAVServiceProxy") continue;
        EXPECT_TRUE(hasFramebuffer);
        EXPECT_TRUE(entry->property("Location"));
        hasFramebuffer = false;
    }
}

// Private functions.

TYPED_TEST_P(SeamContract, FindsTheSamePrivateFunctionsAgain) {
    auto& functions = this->platform().functions;
    EXPECT_EQ(functions.avCreate(), functions.avCreate());
    EXPECT_EQ(functions.configureEnabled(), functions.configureEnabled());
    EXPECT_EQ(functions.getBrightness(), functions.getBrightness());
}

TYPED_TEST_P(SeamContract, GivesAHandleOfEveryServiceAgain) {
    const auto first = this->services();
    const auto second = this->services();
    ASSERT_EQ(first.size(), second.size());
    for (std::size_t index = 0; index < first.size(); ++index) {
        EXPECT_NE(first[index].get(), nullptr);
        EXPECT_NE(second[index].get(), nullptr);
    }
}

TYPED_TEST_P(SeamContract, AcknowledgesNothingAtAnAddressWhereNobodyIs) {
    const auto write = this->platform().functions.avWrite();
    if (write == nullptr) return;  // a platform may lack it
    constexpr std::uint32_t nobody = 0x08;
    const std::uint8_t byte = 0;
    for (const platform::AVService& service : this->services()) {
        EXPECT_NE(write(service.get(), nobody, 0, &byte, 1), 0);
    }
}

TYPED_TEST_P(SeamContract, ReadsTheLevelOfABuiltInPanelBetweenItsEnds) {
    const auto getBrightness = this->platform().functions.getBrightness();
    if (getBrightness == nullptr) return;  // a platform may lack it
    for (const platform::DisplayID id : this->displays().onlineDisplays()) {
        float level = -1;
        if (!this->displays().isBuiltIn(id) || getBrightness(id, &level) != 0) continue;
        EXPECT_GE(level, 0);
        EXPECT_LE(level, 1);
    }
}

TYPED_TEST_P(SeamContract, HasNoLevelOfAnUnknownDisplay) {
    const auto getBrightness = this->platform().functions.getBrightness();
    if (getBrightness == nullptr) return;  // a platform may lack it
    float level = 0;
    EXPECT_NE(getBrightness(TestFixture::unknownDisplay, &level), 0);
}

// Texts.

TYPED_TEST_P(SeamContract, ShowsAVerbatimTextAsItStands) {
    EXPECT_EQ(this->platform().localizer.shown(text::Text::verbatim("HDMI 1 %@")), "HDMI 1 %@");
}

REGISTER_TYPED_TEST_SUITE_P(
    SeamContract, ListsEveryOnlineDisplayOnce, ListsTheSameDisplaysInTheSameOrderAgain,
    HasOneBuiltInDisplayAtTheMost, KnowsNothingOfAnUnknownDisplay,
    ReadsATableWithAsManySamplesPerChannelAsItCanHoldAtTheMost, HasNoTableWithoutACapacity,
    GivesATableBackAsItWasSetAndRestoresIt, LeavesTheDisplaysAsTheyAreWhenAConfigurationIsCancelled,
    CompletesAConfigurationThatChangesNothing, BeginsAConfigurationAfterAnotherHasEnded,
    CallsNoReconfigurationCallbackWhenItIsRegistered, WalksTheRegistryInTheSameOrderAgain,
    NamesNoEntryWithANulOrMoreThanItsBufferHolds, HasNoPropertyThatAnEntryDoesNotHave,
    PutsAFramebufferBeforeEveryExternalService, FindsTheSamePrivateFunctionsAgain,
    GivesAHandleOfEveryServiceAgain, AcknowledgesNothingAtAnAddressWhereNobodyIs,
    ReadsTheLevelOfABuiltInPanelBetweenItsEnds, HasNoLevelOfAnUnknownDisplay, ShowsAVerbatimTextAsItStands);

}  // namespace vantrel
