#include <gtest/gtest.h>
#include <memory>

#include "app/PictureStage.h"
#include "platform/EnglishLocalizer.h"
#include "support/PictureApplication.h"
#include "support/TestDesks.h"

namespace vantrel::app {
namespace {

class PictureStageTest : public testing::Test {
  protected:
    test::PictureApplication application_;
    platform::EnglishLocalizer english_;
};

TEST_F(PictureStageTest, BeginsWithEveryMonitorRead) {
    PictureStage stage(test::usualDesk(), PictureStage::Subject::popover, english_);
    for (const auto& display : stage.manager().externals())
        EXPECT_EQ(display->loadState(), model::ExternalDisplay::LoadState::ready);
}

TEST_F(PictureStageTest, OperatesControlsByTheirNames) {
    PictureStage stage(test::usualDesk(), PictureStage::Subject::popover, english_);
    stage.toggle("Video output to Alder", false);
    stage.press("Turn Output Off");
    stage.wait(std::chrono::seconds(2));
    EXPECT_EQ(stage.manager().disabled().size(), 1U);
}

TEST_F(PictureStageTest, EndsWithNothingLeft) {
    auto stage = std::make_unique<PictureStage>(test::usualDesk(), PictureStage::Subject::settings, english_);
    stage.reset();
    // A second simulated computer can only begin when the first one has ended.
    PictureStage another(test::usualDesk(), PictureStage::Subject::popover, english_);
    EXPECT_EQ(another.manager().externals().size(), 2U);
}

}  // namespace
}  // namespace vantrel::app
