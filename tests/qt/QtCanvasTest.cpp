#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/SampleTrees.h"
#include "qt/ViewBench.h"
#include "ui/qt/QtCanvas.h"

namespace vantrel::qt {
namespace {

using namespace ui;

Node keyed(std::string key) { return button(key).key(key); }

Node buttons(std::vector<std::string> keys) {
    std::vector<Node> nodes;
    for (std::string& key : keys) nodes.push_back(keyed(std::move(key)));
    return column(4, std::move(nodes));
}

std::vector<std::string> tabOrder(ViewBench& bench, std::size_t count) {
    std::vector<std::string> keys;
    bench.view().widget().setFocus();
    for (std::size_t i = 0; i < count; ++i) {
        QWidget* const focused = QApplication::focusWidget();
        ViewBench::press(*focused, Qt::Key_Tab);
        keys.push_back(QApplication::focusWidget()->objectName().toStdString());
    }
    return keys;
}

TEST(QtCanvas, KeepsTheKeyboardAcrossUpdatesAndMoves) {
    ViewBench bench(buttons({"a", "b", "c"}));
    bench.at("b").setFocus();
    bench.show(buttons({"new", "c", "b", "a"}));
    EXPECT_TRUE(bench.at("b").hasFocus());
    EXPECT_GT(bench.place("b").top(), bench.place("c").top());
    bench.show(buttons({"b"}).padding(20));
    EXPECT_TRUE(bench.at("b").hasFocus());
}

TEST(QtCanvas, LetsTheKeyboardGoThroughTheTreeInItsOrder) {
    ViewBench bench(buttons({"a", "c"}));
    bench.show(buttons({"d", "a", "b", "c"}));
    EXPECT_THAT(tabOrder(bench, 4), testing::ElementsAre("d", "a", "b", "c"));
}

TEST(QtCanvas, ShowsTheTreeInItsOrderToAssistiveTechnology) {
    ViewBench bench(buttons({"a", "c"}).key("column"));
    bench.show(buttons({"d", "a", "b", "c"}).key("column"));
    auto* const column = QAccessible::queryAccessibleInterface(&bench.at("column"));
    std::vector<std::string> names;
    for (int i = 0; i < column->childCount(); ++i) {
        names.push_back(column->child(i)->text(QAccessible::Name).toStdString());
    }
    EXPECT_THAT(names, testing::ElementsAre("d", "a", "b", "c"));
}

TEST(QtCanvas, LaysItselfOutAgainForAnotherFont) {
    ViewBench bench(column(0, {text("Brightness").key("text")}));
    const int before = bench.place("text").height();
    const QFont font = QApplication::font();
    QFont large = font;
    large.setPixelSize(30);
    QApplication::setFont(large);
    bench.settle();
    EXPECT_GT(bench.place("text").height(), before);
    QApplication::setFont(font);
}

TEST(QtCanvas, SurvivesBeingToldOfEveryKindOfNodeAgainAndAgain) {
    ViewBench bench(column(0, {samplePopover(), sampleForm()}));
    for (int round = 0; round < 3; ++round) {
        bench.show(column(0, {sampleForm()}));
        bench.show(column(0, {samplePopover(), sampleForm()}));
        bench.show(column(0, {}));
    }
    EXPECT_EQ(bench.window().findChild<QWidget*>("form"), nullptr);
}

TEST(QtCanvas, DoesLaterWhatIsAskedFor) {
    QWidget widget;
    QtCanvas canvas(widget);
    bool isDone = false;
    canvas.later([&] { isDone = true; });
    EXPECT_FALSE(isDone);
    QCoreApplication::processEvents();
    EXPECT_TRUE(isDone);
}

TEST(QtCanvas, DoesNothingLaterWhenItsWidgetIsGone) {
    bool isDone = false;
    {
        QWidget widget;
        QtCanvas(widget).later([&] { isDone = true; });
    }
    QCoreApplication::processEvents();
    EXPECT_FALSE(isDone);
}

}  // namespace
}  // namespace vantrel::qt
