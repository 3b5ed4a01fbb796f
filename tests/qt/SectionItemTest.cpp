#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

TEST(SectionItem, GivesEachRowItsLineAndAControlWithALabelAllOfIt) {
    ViewBench bench(form("General"));
    EXPECT_EQ(bench.place("login").width(), 396);
    EXPECT_LT(bench.place("run").width(), 100);
    EXPECT_EQ(bench.place("run").center().y() - bench.place("login").center().y(), 40);
}

TEST(SectionItem, HasNoRoomForATitleThatItDoesNotHave) {
    const int titled = ViewBench(form("General")).place("section").height();
    EXPECT_LT(ViewBench(form("")).place("section").height(), titled);
}

}  // namespace
}  // namespace vantrel::qt
