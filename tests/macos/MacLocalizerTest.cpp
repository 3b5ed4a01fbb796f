#include <gtest/gtest.h>

#include "macos/CFBench.h"

namespace vantrel::macos {
namespace {

using text::Text;

class MacLocalizerTest : public CFBench {
  protected:
    std::string shown(const Text& text) { return bench.platform.localizer.shown(text); }
    std::map<std::string, std::string>& translations() { return *bench.fake.translations(); }
};

TEST_F(MacLocalizerTest, ShowsATranslationWithItsArguments) {
    translations()["Turn off %@"] = "%@ ausschalten";
    EXPECT_EQ(shown(Text::translated("Turn off %@", {"Alder"})), "Alder ausschalten");
}

TEST_F(MacLocalizerTest, ShowsEnglishWhereThereIsNoTranslation) {
    EXPECT_EQ(shown(Text::translated("Turn off %@", {"Alder"})), "Turn off Alder");
}

TEST_F(MacLocalizerTest, ShowsEnglishWithoutABundle) {
    bench.fake.translations().reset();
    EXPECT_EQ(shown(Text::translated("Quit")), "Quit");
}

TEST_F(MacLocalizerTest, ShowsEnglishWhenTheSystemFails) {
    translations()["Quit"] = "Beenden";
    for (const char* function :
         {"CFBundleGetMainBundle", "CFStringCreateWithBytes", "CFBundleCopyLocalizedString"}) {
        failNext(function);
        EXPECT_EQ(shown(Text::translated("Quit")), "Quit") << function;
    }
    EXPECT_EQ(shown(Text::translated("Quit")), "Beenden");
}

TEST_F(MacLocalizerTest, TranslatesNoVerbatimText) {
    translations()["HDMI 1"] = "wrong";
    EXPECT_EQ(shown(Text::verbatim("HDMI 1")), "HDMI 1");
}

}  // namespace
}  // namespace vantrel::macos
