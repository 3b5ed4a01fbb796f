// The sample trees as pictures, in both palettes and at two scales: into the folder
// that VANTREL_PICTURES names, and everywhere with something to see in them.
#include <gtest/gtest.h>

#include "qt/Pictures.h"
#include "qt/SampleTrees.h"
#include "qt/ViewBench.h"
#include "ui/qt/Look.h"

namespace vantrel::qt {
namespace {

class GalleryTest : public testing::TestWithParam<std::tuple<bool, int>> {
  protected:
    void SetUp() override {
        QApplication::setPalette(std::get<0>(GetParam()) ? darkPalette() : lightPalette());
    }
    void TearDown() override { QApplication::setPalette(QPalette()); }

    QImage picture(const std::string& name, ui::Node tree) {
        const auto [isDark, ratio] = GetParam();
        ViewBench bench(std::move(tree), {500, 2000});
        const QSize size = bench.view().fittingPixels();
        bench.window().resize(size);
        bench.view().widget().resize(size);
        bench.settle();
        const QImage content = pictureOf(bench.view().widget(), ratio);
        QImage whole(content.size(), QImage::Format_RGB32);
        whole.fill(Look::current().window);
        whole.setDevicePixelRatio(ratio);
        QPainter(&whole).drawImage(QPoint(), content);
        const QString folder = qEnvironmentVariable("VANTREL_PICTURES");
        const QString file = QString("%1/%2-%3-%4x.png")
                                 .arg(folder, QString::fromStdString(name), isDark ? "dark" : "light")
                                 .arg(ratio);
        EXPECT_TRUE(folder.isEmpty() || whole.save(file));
        return whole;
    }

    // How many pixels have exactly this colour.
    static int count(const QImage& image, const QColor& color) {
        int found = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) found += image.pixelColor(x, y) == color ? 1 : 0;
        }
        return found;
    }
};

TEST_P(GalleryTest, ThePopoverShowsItsCardsInThePalettesColors) {
    const QImage image = picture("popover", samplePopover());
    EXPECT_GT(count(image, Look::current().card), 20000);
    EXPECT_GT(count(image, Look::current().accent), 1000);
}

TEST_P(GalleryTest, TheFormShowsItsSections) {
    const QImage image = picture("form", sampleForm());
    EXPECT_GT(count(image, Look::current().card), 50000);
}

INSTANTIATE_TEST_SUITE_P(PalettesAndScales, GalleryTest,
                         testing::Combine(testing::Bool(), testing::Values(1, 2)));

}  // namespace
}  // namespace vantrel::qt
