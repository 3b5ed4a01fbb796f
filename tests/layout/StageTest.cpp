#include <gtest/gtest.h>
#include <string>

#include "ui/layout/Stage.h"

namespace vantrel::layout {
namespace {

using namespace ui;

TEST(Stage, SendsWhatAPersonDoes) {
    Stage stage;
    int sent = 0;
    stage.onEvent([&](ElementID, const Event&) { ++sent; });
    stage.send(1, Pressed{});
    EXPECT_EQ(sent, 1);
}

TEST(Stage, SendsNothingWhileTheProgramChangesWhatIsShown) {
    Stage stage;
    int sent = 0;
    stage.onEvent([&](ElementID, const Event&) { ++sent; });
    {
        const Stage::Telling outer(stage);
        { const Stage::Telling inner(stage); }
        stage.send(1, Pressed{});
    }
    EXPECT_EQ(sent, 0);
    stage.send(1, Pressed{});
    EXPECT_EQ(sent, 1);
}

TEST(Stage, MayBeGivenAnotherHandlerByTheOneThatItCalls) {
    Stage stage;
    std::string heard;
    stage.onEvent([&, name = std::string("the first handler")](ElementID, const Event&) {
        stage.onEvent([&](ElementID, const Event&) { heard += ", then the second"; });
        heard = name;
    });
    stage.send(1, Pressed{});
    stage.send(1, Pressed{});
    EXPECT_EQ(heard, "the first handler, then the second");
}

TEST(Stage, MeasuresAnewWithEachChange) {
    Stage stage;
    const auto before = stage.measuring();
    EXPECT_EQ(stage.measuring(), before);
    { const Stage::Telling telling(stage); }
    EXPECT_NE(stage.measuring(), before);
}

}  // namespace
}  // namespace vantrel::layout
