#include <QHelpEvent>
#include <QToolTip>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/ViewBench.h"
#include "ui/qt/TileItem.h"

namespace vantrel::qt {
namespace {

using namespace ui;

Node tile(
    bool isSelected, std::function<void()> press = [] {}) {
    Tile tile;
    tile.title = "HDMI 1";
    tile.symbol = "cable.connector.horizontal";
    tile.isSelected = isSelected;
    tile.badge = "laptopcomputer";
    tile.badgeHelp = "The Mac is connected to this input";
    tile.padding = 6;
    tile.cornerRadius = 7;
    return column(0, {Node{.element = tile}.named("HDMI 1").onPress(std::move(press)).key("tile")})
        .width(150);
}

TEST(TileItem, IsPressedByPointerAndKeyboard) {
    int presses = 0;
    ViewBench bench(tile(false, [&] { ++presses; }));
    ViewBench::click(bench.at("tile"));
    ViewBench::press(bench.at("tile"), Qt::Key_Space);
    EXPECT_EQ(presses, 2);
}

TEST(TileItem, IsChosenWhenTheNodeSaysSo) {
    ViewBench bench(tile(false));
    const auto isChecked = [&] {
        return QAccessible::queryAccessibleInterface(&bench.at("tile"))->state().checked;
    };
    ViewBench::click(bench.at("tile"));
    EXPECT_FALSE(isChecked());
    bench.show(tile(true));
    EXPECT_TRUE(isChecked());
}

TEST(TileItem, ExplainsItsBadge) {
    ViewBench bench(tile(true));
    QWidget& widget = bench.at("tile");
    const QPoint badge(widget.width() - 10, widget.height() / 2);
    QHelpEvent event(QEvent::ToolTip, badge, widget.mapToGlobal(badge));
    QApplication::sendEvent(&widget, &event);
    EXPECT_EQ(QToolTip::text(), "The Mac is connected to this input");
}

}  // namespace
}  // namespace vantrel::qt
