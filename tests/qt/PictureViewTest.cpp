#include <QApplication>
#include <QImage>
#include <QPalette>
#include <gtest/gtest.h>

#include "support/TemporaryFolder.h"
#include "ui/Nodes.h"
#include "ui/qt/PictureView.h"

namespace vantrel::qt {
namespace {

class PictureViewTest : public testing::Test {
  protected:
    PictureViewTest() {
        const ui::Node label = ui::text("Vantrel");
        picture_.view().renderer().insert(ui::noElement, 0, 1, label);
        picture_.view().renderer().finish();
        picture_.layOut({120, 40});
    }
    ~PictureViewTest() override { QApplication::setPalette(QPalette()); }

    QImage saved(double ratio) {
        EXPECT_TRUE(picture_.save(folder_.path("picture.png"), ratio));
        return QImage(QString::fromStdString(folder_.path("picture.png")));
    }

    test::TemporaryFolder folder_;
    PictureView picture_;
};

TEST_F(PictureViewTest, HasTheSizeThatItWasLaidOutAt) {
    EXPECT_EQ(saved(1).size(), QSize(120, 40));
    EXPECT_EQ(saved(2).size(), QSize(240, 80));
}

TEST_F(PictureViewTest, IsDrawnInTheSchemesColors) {
    PictureView::use(Scheme::light);
    EXPECT_GT(saved(1).pixelColor(119, 39).lightness(), 200);
    PictureView::use(Scheme::dark);
    EXPECT_LT(saved(1).pixelColor(119, 39).lightness(), 80);
}

TEST_F(PictureViewTest, SaysThatAFileCanNotBeWritten) {
    EXPECT_FALSE(picture_.save(folder_.path("missing/picture.png"), 1));
}

}  // namespace
}  // namespace vantrel::qt
