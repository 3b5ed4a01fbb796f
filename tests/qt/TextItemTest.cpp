#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/ViewBench.h"
#include "ui/qt/TextItem.h"

namespace vantrel::qt {
namespace {

using namespace ui;

TEST(TextItem, HasTheWholeTextAsHelpOnlyWhileItIsCut) {
    const std::string name = "Halden Wide 27UP850 in the corner";
    ViewBench bench(column(0, {text(name).key("name")}).width(60));
    EXPECT_EQ(bench.at("name").toolTip().toStdString(), name);
    bench.show(column(0, {text(name).key("name")}).width(400));
    EXPECT_EQ(bench.at("name").toolTip(), "");
}

TEST(TextItem, KeepsItsOwnHelpWhileItIsCut) {
    ViewBench bench(column(0, {text("A text that is too long").withHelp("Help").key("name")}).width(40));
    EXPECT_EQ(bench.at("name").toolTip(), "Help");
}

TEST(TextItem, ShowsMarkupAsItIsWritten) {
    ViewBench bench(column(0, {text("<b>A monitor</b> with markup").key("name")}).width(40));
    EXPECT_EQ(bench.at("name").toolTip(), "<span>&lt;b&gt;A monitor&lt;/b&gt; with markup</span>");
}

TEST(TextItem, WrapsIntoTheWidthThatThereIs) {
    ViewBench bench(column(0, {wrappedText("First, the monitor switches to its other input.").key("text"),
                               text("x").key("line")})
                        .width(120));
    EXPECT_LE(bench.place("text").width(), 120);
    EXPECT_GE(bench.place("text").height(), 3 * bench.place("line").height());
}

}  // namespace
}  // namespace vantrel::qt
