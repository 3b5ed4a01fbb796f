#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <utility>

#include "platform/PrivateFunctions.h"
#include "platform/SubstituteLibraries.h"

namespace vantrel::platform {
namespace {

constexpr const char* ioKit = "/System/Library/Frameworks/IOKit.framework/IOKit";
constexpr const char* skyLight = "/System/Library/PrivateFrameworks/SkyLight.framework/SkyLight";
constexpr const char* coreGraphics = "/System/Library/Frameworks/CoreGraphics.framework/CoreGraphics";
constexpr const char* displayServices =
    "/System/Library/PrivateFrameworks/DisplayServices.framework/DisplayServices";
constexpr std::array libraries{ioKit, skyLight, coreGraphics, displayServices};
constexpr std::array symbols{"IOAVServiceCreateWithService", "IOAVServiceWriteI2C",
                             "IOAVServiceReadI2C",           "CGSConfigureDisplayEnabled",
                             "DisplayServicesGetBrightness", "DisplayServicesSetBrightness"};

extern "C" {
static const void* testCreate(const void*, std::uint32_t) { return nullptr; }
static std::int32_t testWrite(const void*, std::uint32_t, std::uint32_t, const void*, std::uint32_t) {
    return 1;
}
static std::int32_t testRead(const void*, std::uint32_t, std::uint32_t, void*, std::uint32_t) { return 2; }
static std::int32_t testConfigure(void*, std::uint32_t, bool) { return 3; }
static std::int32_t testGet(std::uint32_t, float*) { return 4; }
static std::int32_t testSet(std::uint32_t, float) { return 5; }
}

class SubstituteLibrariesTest : public testing::Test {
  protected:
    static std::set<std::pair<std::string, std::string>> found(SubstituteLibraries& loader) {
        std::set<std::pair<std::string, std::string>> found;
        for (const char* library : libraries) {
            for (const char* symbol : symbols) {
                if (loader.lookUp(loader.open(library), symbol) != nullptr) found.emplace(library, symbol);
            }
        }
        return found;
    }

    SubstituteLibraries all{{testCreate, testWrite, testRead, testConfigure, testGet, testSet}};
    SubstituteLibraries none{{}};
};

TEST_F(SubstituteLibrariesTest, GivesEachFunctionByTheNameThatTheProgramLooksFor) {
    PrivateFunctions functions(all);
    EXPECT_EQ(functions.avCreate(), testCreate);
    EXPECT_EQ(functions.avWrite(), testWrite);
    EXPECT_EQ(functions.avRead(), testRead);
    EXPECT_EQ(functions.configureEnabled(), testConfigure);
    EXPECT_EQ(functions.getBrightness(), testGet);
    EXPECT_EQ(functions.setBrightness(), testSet);
}

TEST_F(SubstituteLibrariesTest, HasEachFunctionInItsLibrariesOnly) {
    const std::set<std::pair<std::string, std::string>> expected{
        {ioKit, "IOAVServiceCreateWithService"},
        {ioKit, "IOAVServiceWriteI2C"},
        {ioKit, "IOAVServiceReadI2C"},
        {skyLight, "CGSConfigureDisplayEnabled"},
        {coreGraphics, "CGSConfigureDisplayEnabled"},
        {displayServices, "DisplayServicesGetBrightness"},
        {displayServices, "DisplayServicesSetBrightness"}};
    EXPECT_EQ(found(all), expected);
}

TEST_F(SubstituteLibrariesTest, OpensTheSameLibraryAgain) {
    std::set<void*> handles;
    for (const char* library : libraries) {
        EXPECT_NE(all.open(library), nullptr) << library;
        EXPECT_EQ(all.open(library), all.open(library)) << library;
        handles.insert(all.open(library));
    }
    EXPECT_EQ(handles.size(), libraries.size());
}

TEST_F(SubstituteLibrariesTest, OpensNoOtherLibrary) {
    for (const char* path : {"", "/", "libc.so.6", "/System/Library/Frameworks/IOKit.framework/IOKi",
                             "/System/Library/Frameworks/IOKit.framework/IOKit2",
                             "/system/library/frameworks/iokit.framework/iokit"}) {
        EXPECT_EQ(all.open(path), nullptr) << path;
    }
}

TEST_F(SubstituteLibrariesTest, HasNoOtherSymbol) {
    for (const char* library : libraries) {
        for (const char* symbol : {"", "malloc", "IOAVServiceCreate", "IOAVServiceReadI2C2"}) {
            EXPECT_EQ(all.lookUp(all.open(library), symbol), nullptr) << symbol;
        }
    }
    EXPECT_EQ(all.lookUp(nullptr, "IOAVServiceReadI2C"), nullptr);
}

TEST_F(SubstituteLibrariesTest, LacksWhatTheSystemLacks) {
    for (const char* library : libraries) EXPECT_NE(none.open(library), nullptr);
    EXPECT_TRUE(found(none).empty());
    PrivateFunctions functions(none);
    EXPECT_EQ(functions.avCreate(), nullptr);
    EXPECT_EQ(functions.setBrightness(), nullptr);
    SubstituteLibraries some{{.avCreate = testCreate,
                              .avWrite = nullptr,
                              .avRead = testRead,
                              .configureEnabled = nullptr,
                              .getBrightness = testGet,
                              .setBrightness = nullptr}};
    PrivateFunctions few(some);
    EXPECT_EQ(few.avRead(), testRead);
    EXPECT_EQ(few.avWrite(), nullptr);
    EXPECT_EQ(few.configureEnabled(), nullptr);
    EXPECT_EQ(few.getBrightness(), testGet);
}

}  // namespace
}  // namespace vantrel::platform
