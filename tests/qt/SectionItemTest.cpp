#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/Pictures.h"
#include "qt/ViewBench.h"
#include "ui/qt/SectionItem.h"

namespace vantrel::qt {
namespace {

using namespace ui;

Node form(std::string title) {
    Switch labelled;
    labelled.title = "Open at Login";
    Node section{.element = Section{.title = std::move(title)},
                 .children = {Node{.element = labelled}.named("Open at Login").key("login"),
                              button("Run").key("run")}};
    return Node{.element = Form{}, .children = {std::move(section).key("section")}}.width(460);
}

TEST(SectionItem, HasNoRoomForATitleThatItDoesNotHave) {
    const int titled = ViewBench(form("General")).place("section").height();
    EXPECT_LT(ViewBench(form("")).place("section").height(), titled);
}

TEST(SectionItem, PaintsALineBetweenItsRows) {
    ViewBench bench(form("General"));
    const QImage picture = pictureOf(bench.at("section"));
    // Its last row is 40 high.
    const int line = picture.height() - 40;
    const int left = picture.width() / 2;
    EXPECT_NE(picture.pixelColor(left, line), picture.pixelColor(left, line - 1));
    EXPECT_NE(picture.pixelColor(left, line), picture.pixelColor(left, line + 1));
}

}  // namespace
}  // namespace vantrel::qt
