#include <QLineEdit>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/ViewBench.h"
#include "ui/qt/TextFieldItem.h"

namespace vantrel::qt {
namespace {

using namespace ui;

struct Edits {
    std::vector<std::string> texts;

    Node shown(std::string written) {
        TextField field;
        field.text = std::move(written);
        field.placeholder = "Nickname";
        return column(0, {Node{.element = field}
                              .named("Nickname of 0x0F")
                              .onEdit([this](const std::string& text) { texts.push_back(text); })
                              .key("field")})
            .width(200);
    }
};

QLineEdit& fieldOf(ViewBench& bench) { return dynamic_cast<QLineEdit&>(bench.at("field")); }

TEST(TextFieldItem, TellsEachEdit) {
    Edits edits;
    ViewBench bench(edits.shown(""));
    ViewBench::press(fieldOf(bench), Qt::Key_P, "P");
    ViewBench::press(fieldOf(bench), Qt::Key_C, "C");
    EXPECT_THAT(edits.texts, testing::ElementsAre("P", "PC"));
}

TEST(TextFieldItem, TellsNothingOfWhatTheProgramWrites) {
    Edits edits;
    ViewBench bench(edits.shown("PC"));
    bench.show(edits.shown("Windows"));
    EXPECT_EQ(fieldOf(bench).text(), "Windows");
    EXPECT_TRUE(edits.texts.empty());
}

TEST(TextFieldItem, KeepsTheCursorInWhatIsBeingEdited) {
    Edits edits;
    ViewBench bench(edits.shown("Windows PC"));
    fieldOf(bench).setFocus();
    fieldOf(bench).setCursorPosition(3);
    bench.show(edits.shown("Windows PC").padding(4));
    EXPECT_EQ(fieldOf(bench).cursorPosition(), 3);
    bench.show(edits.shown("Windows box"));
    EXPECT_EQ(fieldOf(bench).cursorPosition(), 3);
}

TEST(TextFieldItem, ShowsWhatTheNodeSaysWhenEditingEnds) {
    Edits edits;
    ViewBench bench(edits.shown("PC"));
    ViewBench::press(fieldOf(bench), Qt::Key_X, "x");
    ViewBench::press(fieldOf(bench), Qt::Key_Return);
    EXPECT_EQ(fieldOf(bench).text(), "PC");
}

}  // namespace
}  // namespace vantrel::qt
