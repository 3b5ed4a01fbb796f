#include <QTextEdit>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/ViewBench.h"
#include "ui/qt/SelectableTextItem.h"

namespace vantrel::qt {
namespace {

using namespace ui;

Node shown(std::string characters) {
    Text text;
    text.text = std::move(characters);
    text.wraps = true;
    text.isSelectable = true;
    return column(0, {Node{.element = std::move(text)}.fillWidth().key("raw")}).width(200);
}

QTextEdit& textOf(ViewBench& bench) { return dynamic_cast<QTextEdit&>(bench.at("raw")); }

TEST(SelectableTextItem, CanBeSelectedAndNotEdited) {
    ViewBench bench(shown("(prot(monitor)type(lcd))"));
    EXPECT_TRUE(textOf(bench).isReadOnly());
    textOf(bench).selectAll();
    EXPECT_EQ(textOf(bench).textCursor().selectedText(), "(prot(monitor)type(lcd))");
}

TEST(SelectableTextItem, IsHighEnoughForAllOfIt) {
    ViewBench bench(shown(std::string(300, 'x')));
    EXPECT_GE(textOf(bench).height(), static_cast<int>(textOf(bench).document()->size().height()));
}

TEST(SelectableTextItem, KeepsTheSelectionWhenItIsToldTheSame) {
    ViewBench bench(shown("one"));
    textOf(bench).selectAll();
    bench.show(shown("one").padding(3));
    EXPECT_TRUE(textOf(bench).textCursor().hasSelection());
}

}  // namespace
}  // namespace vantrel::qt
