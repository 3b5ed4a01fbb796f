#include <atomic>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>

#include "platform/PrivateFunctions.h"
#include "support/FakeSymbolLoader.h"

namespace vantrel::platform {
namespace {

const std::string ioKit = "/System/Library/Frameworks/IOKit.framework/IOKit";
const std::string skyLight = "/System/Library/PrivateFrameworks/SkyLight.framework/SkyLight";
const std::string coreGraphics = "/System/Library/Frameworks/CoreGraphics.framework/CoreGraphics";
const std::string displayServices =
    "/System/Library/PrivateFrameworks/DisplayServices.framework/DisplayServices";

const void* create(const void*, std::uint32_t) { return nullptr; }
std::int32_t write(const void*, std::uint32_t, std::uint32_t, const void*, std::uint32_t) { return 0; }
std::int32_t read(const void*, std::uint32_t, std::uint32_t, void*, std::uint32_t) { return 0; }
std::int32_t configure(void*, std::uint32_t, bool) { return 0; }
std::int32_t configureElsewhere(void*, std::uint32_t, bool) { return 1; }
std::int32_t getLevel(std::uint32_t, float*) { return 0; }
std::int32_t setLevel(std::uint32_t, float) { return 0; }

class PrivateFunctionsTest : public testing::Test {
  protected:
    using Calls = std::vector<std::string>;
    test::FakeSymbolLoader loader;
    PrivateFunctions functions{loader};
};

TEST_F(PrivateFunctionsTest, LooksNothingUpBeforeItIsUsed) { EXPECT_EQ(loader.calls(), Calls{}); }

TEST_F(PrivateFunctionsTest, FindsAVServiceCreationInIOKit) {
    loader.addSymbol(ioKit, "IOAVServiceCreateWithService", create);
    EXPECT_EQ(functions.avCreate(), &create);
}

TEST_F(PrivateFunctionsTest, FindsTheI2CWriteInIOKit) {
    loader.addSymbol(ioKit, "IOAVServiceWriteI2C", write);
    EXPECT_EQ(functions.avWrite(), &write);
}

TEST_F(PrivateFunctionsTest, FindsTheI2CReadInIOKit) {
    loader.addSymbol(ioKit, "IOAVServiceReadI2C", read);
    EXPECT_EQ(functions.avRead(), &read);
}

TEST_F(PrivateFunctionsTest, FindsTheBrightnessFunctionsInDisplayServices) {
    loader.addSymbol(displayServices, "DisplayServicesGetBrightness", getLevel);
    loader.addSymbol(displayServices, "DisplayServicesSetBrightness", setLevel);
    EXPECT_EQ(functions.getBrightness(), &getLevel);
    EXPECT_EQ(functions.setBrightness(), &setLevel);
}

TEST_F(PrivateFunctionsTest, TakesDisplayConfigurationFromSkyLightFirst) {
    loader.addSymbol(skyLight, "CGSConfigureDisplayEnabled", configure);
    loader.addSymbol(coreGraphics, "CGSConfigureDisplayEnabled", configureElsewhere);
    EXPECT_EQ(functions.configureEnabled(), &configure);
    EXPECT_EQ(loader.calls(), (Calls{"open " + skyLight, "look up CGSConfigureDisplayEnabled"}));
}

TEST_F(PrivateFunctionsTest, FindsDisplayConfigurationInCoreGraphicsWhenSkyLightDoesNotOpen) {
    loader.addSymbol(coreGraphics, "CGSConfigureDisplayEnabled", configure);
    EXPECT_EQ(functions.configureEnabled(), &configure);
    EXPECT_EQ(loader.calls(),
              (Calls{"open " + skyLight, "open " + coreGraphics, "look up CGSConfigureDisplayEnabled"}));
}

TEST_F(PrivateFunctionsTest, FindsDisplayConfigurationInCoreGraphicsWhenSkyLightLacksIt) {
    loader.addLibrary(skyLight);
    loader.addSymbol(coreGraphics, "CGSConfigureDisplayEnabled", configure);
    EXPECT_EQ(functions.configureEnabled(), &configure);
    EXPECT_EQ(loader.calls(), (Calls{"open " + skyLight, "look up CGSConfigureDisplayEnabled",
                                     "open " + coreGraphics, "look up CGSConfigureDisplayEnabled"}));
}

TEST_F(PrivateFunctionsTest, EveryFunctionIsAbsentWithoutLibraries) {
    EXPECT_EQ(functions.avCreate(), nullptr);
    EXPECT_EQ(functions.avWrite(), nullptr);
    EXPECT_EQ(functions.avRead(), nullptr);
    EXPECT_EQ(functions.configureEnabled(), nullptr);
    EXPECT_EQ(functions.getBrightness(), nullptr);
    EXPECT_EQ(functions.setBrightness(), nullptr);
}

TEST_F(PrivateFunctionsTest, LooksAFunctionUpOnce) {
    loader.addSymbol(ioKit, "IOAVServiceReadI2C", read);
    EXPECT_EQ(functions.avRead(), &read);
    EXPECT_EQ(functions.avRead(), &read);
    EXPECT_EQ(loader.calls(), (Calls{"open " + ioKit, "look up IOAVServiceReadI2C"}));
}

TEST_F(PrivateFunctionsTest, LooksAnAbsentFunctionUpOnceToo) {
    EXPECT_EQ(functions.avRead(), nullptr);
    loader.addSymbol(ioKit, "IOAVServiceReadI2C", read);
    EXPECT_EQ(functions.avRead(), nullptr);
    EXPECT_EQ(loader.calls(), Calls{"open " + ioKit});
}

TEST_F(PrivateFunctionsTest, LooksOneFunctionUpWithoutTheOthers) {
    loader.addSymbol(ioKit, "IOAVServiceReadI2C", read);
    loader.addSymbol(ioKit, "IOAVServiceWriteI2C", write);
    EXPECT_EQ(functions.avRead(), &read);
    EXPECT_EQ(loader.calls(), (Calls{"open " + ioKit, "look up IOAVServiceReadI2C"}));
}

// Real threads on purpose: the first uses may meet.
TEST_F(PrivateFunctionsTest, LooksAFunctionUpOnceFromManyThreads) {
    loader.addSymbol(ioKit, "IOAVServiceWriteI2C", write);
    constexpr int count = 8;
    std::atomic<int> ready = 0;
    std::vector<AVServiceWriteI2C> found(count, nullptr);
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < count; ++i) {
        threads.emplace_back([&, i] {
            for (++ready; ready < count;) std::this_thread::yield();
            found[i] = functions.avWrite();
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(found, std::vector<AVServiceWriteI2C>(count, &write));
    EXPECT_EQ(loader.calls(), (Calls{"open " + ioKit, "look up IOAVServiceWriteI2C"}));
}

}  // namespace
}  // namespace vantrel::platform
