#include <QImage>
#include <gtest/gtest.h>
#include <sstream>
#include <string>

#include "app/Pictures.h"
#include "app/VantrelApp.h"
#include "support/TemporaryFolder.h"

namespace vantrel::app {
namespace {

struct Outcome {
    int status;
    std::string output;
    std::string errors;
};

Outcome draw(const std::string& folder) {
    std::istringstream input;
    std::ostringstream output;
    std::ostringstream errors;
    const int status = VantrelApp(input, output, errors).run({"--screenshot", folder});
    return {status, output.str(), errors.str()};
}

QImage picture(const test::TemporaryFolder& folder, const std::string& name) {
    return QImage(QString::fromStdString(folder.path("made/" + name)));
}

TEST(Pictures, AreDrawnInBothSchemesAndTwiceAsLarge) {
    const test::TemporaryFolder folder;
    const Outcome outcome = draw(folder.path("made"));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_NE(outcome.output.find(folder.path("made/popover-light.png") + "\n"), std::string::npos);
    const QImage light = picture(folder, "popover-light.png");
    const QImage dark = picture(folder, "popover-dark.png");
    EXPECT_EQ(light.width(), 340);
    EXPECT_EQ(picture(folder, "popover-light@2x.png").size(), light.size() * 2);
    EXPECT_GT(light.pixelColor(1, 1).lightness(), 200);
    EXPECT_LT(dark.pixelColor(1, 1).lightness(), 80);
    EXPECT_EQ(picture(folder, "settings-light.png").width(), 460);
    // A panel as high as the screen allows, with more to scroll to.
    EXPECT_GT(picture(folder, "sixteen-monitors-light.png").height(), 900);
    EXPECT_LT(picture(folder, "sixteen-monitors-light.png").height(), 1100);
}

TEST(Pictures, NameAFolderThatCanNotBeMade) {
    const test::TemporaryFolder folder;
    folder.put("file", "in the way");
    const Outcome outcome = draw(folder.path("file/below"));
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors,
              "vantrel: can't make the folder " + folder.path("file/below") + ": Not a directory\n");
}

}  // namespace
}  // namespace vantrel::app
