// What the program looks like in a language whose words are longer.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "app/PictureStage.h"
#include "platform/simulated/ShippedDesks.h"
#include "support/LongTexts.h"
#include "support/PictureApplication.h"

namespace vantrel::app {
namespace {

class TranslationTest : public testing::Test {
  protected:
    simulated::Desk desk() { return std::get<simulated::Desk>(simulated::ShippedDesks::read("default")); }
    std::string shown(const std::string& key, std::vector<std::string> arguments = {}) {
        return localizer_.shown(text::Text::translated(key, std::move(arguments)));
    }
    // Texts of the program's own that can't be read as a whole; names of monitors and
    // inputs may be too long for any place.
    std::vector<std::string> cutTranslations(PictureStage& stage) {
        stage.layOut();
        std::vector<std::string> cut = stage.cutTexts();
        std::erase_if(cut, [](const std::string& text) { return !text.starts_with("["); });
        return cut;
    }

    test::PictureApplication application_;
    test::LongTexts localizer_;
};

TEST_F(TranslationTest, FitsIntoThePopover) {
    PictureStage stage(desk(), PictureStage::Subject::popover, localizer_);
    stage.toggle(shown("More Monitor Settings"), true);
    EXPECT_THAT(cutTranslations(stage), testing::IsEmpty());
}

TEST_F(TranslationTest, FitsWhenItAsksForConfirmation) {
    PictureStage stage(desk(), PictureStage::Subject::popover, localizer_);
    stage.toggle(shown("More Monitor Settings"), true);
    stage.press(shown("Run"));
    const std::string name = stage.manager().externals().at(1)->name();
    stage.toggle(shown("Video output to %@", {name}), false);
    EXPECT_THAT(cutTranslations(stage), testing::IsEmpty());
}

TEST_F(TranslationTest, FitsOnADisplayThatIsTurnedOff) {
    PictureStage stage(desk(), PictureStage::Subject::popover, localizer_);
    stage.manager().start(stage.manager().disableOutput(stage.manager().externals().at(0), std::nullopt));
    stage.wait(std::chrono::seconds(10));
    EXPECT_THAT(cutTranslations(stage), testing::IsEmpty());
}

TEST_F(TranslationTest, FitsIntoTheSettings) {
    PictureStage stage(desk(), PictureStage::Subject::settings, localizer_);
    stage.toggle(shown("Capabilities string (MCCS)"), true);
    EXPECT_THAT(cutTranslations(stage), testing::IsEmpty());
}

}  // namespace
}  // namespace vantrel::app
