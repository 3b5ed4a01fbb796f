#include <gtest/gtest.h>

#include "macos/CFBench.h"

namespace vantrel::macos {
namespace {

const std::string ioKit = "/System/Library/Frameworks/IOKit.framework/IOKit";

class MacSymbolLoaderTest : public CFBench {
  protected:
    MacSymbolLoader loader;
};

TEST_F(MacSymbolLoaderTest, FindsASymbolInItsLibraryOnly) {
    void* library = loader.open(ioKit);
    ASSERT_NE(library, nullptr);
    EXPECT_NE(loader.lookUp(library, "IOAVServiceReadI2C"), nullptr);
    EXPECT_EQ(loader.lookUp(library, "CGSConfigureDisplayEnabled"), nullptr);
}

TEST_F(MacSymbolLoaderTest, OpensTheSameLibraryAgain) { EXPECT_EQ(loader.open(ioKit), loader.open(ioKit)); }

TEST_F(MacSymbolLoaderTest, OpensNoLibraryThatIsNotThere) {
    EXPECT_EQ(loader.open("/System/Library/Frameworks/None.framework/None"), nullptr);
    EXPECT_EQ(loader.open("/no/such/library"), nullptr);
}

TEST_F(MacSymbolLoaderTest, AsksTheRealLinkerForOtherLibraries) {
    void* library = loader.open("libm.so.6");
    ASSERT_NE(library, nullptr);
    EXPECT_NE(loader.lookUp(library, "cos"), nullptr);
}

}  // namespace
}  // namespace vantrel::macos
