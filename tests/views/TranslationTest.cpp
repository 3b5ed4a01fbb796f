#include <gtest/gtest.h>
#include <regex>
#include <set>

#include "support/PseudoLocalizer.h"
#include "ui/outline/Outline.h"
#include "views/AllStates.h"

namespace vantrel::views {
namespace {

using test::PseudoLocalizer;
using test::visitAllStates;
using test::walk;

// Every text of a node that a person may read or hear.
std::vector<std::string> textsOf(const ui::Node& node) {
    std::vector<std::string> texts{node.help, node.accessibility.name, node.accessibility.value,
                                   node.accessibility.description};
    texts.insert(texts.end(), node.contextMenu.begin(), node.contextMenu.end());
    std::visit(
        [&texts]<class E>(const E& shown) {
            if constexpr (requires { shown.title; }) texts.push_back(shown.title);
            if constexpr (requires { shown.text; }) texts.push_back(shown.text);
            if constexpr (requires { shown.badgeHelp; }) texts.push_back(shown.badgeHelp);
            if constexpr (requires { shown.note; }) texts.push_back(shown.note);
            if constexpr (requires { shown.placeholder; }) texts.push_back(shown.placeholder);
            if constexpr (requires { shown.options; }) {
                texts.insert(texts.end(), shown.options.begin(), shown.options.end());
            }
        },
        node.element);
    return texts;
}

// What is left of a text without the pieces that the localizer made, spaces and
// what is the same in every language: numbers with their unit, codes.
std::string unlocalized(const std::string& text) {
    static const std::regex sameEverywhere(R"(\(0x[0-9A-F]+\)|0x[0-9A-F]+|[0-9]+%?| )");
    return std::regex_replace(PseudoLocalizer::withoutLocalized(text), sameEverywhere, "");
}

TEST(Translation, NoTextEscapesIt) {
    const std::set<std::string> given{
        "", "Alder", "WindowsPC", "Operationnotpermitted",
        unlocalized("(prot(monitor)type(lcd)vcp(10 12 60(0F 11 12) 62)mccs_ver(2.1))")};
    int localized = 0;
    PseudoLocalizer localizer;
    visitAllStates(&localizer, [&](const std::string& state, const ui::Node& tree) {
        walk(tree, [&](const ui::Node& node) {
            for (const std::string& text : textsOf(node)) {
                if (PseudoLocalizer::withoutLocalized(text) != text) ++localized;
                EXPECT_TRUE(given.contains(unlocalized(text))) << state << ": \"" << text << "\"";
            }
        });
    });
    EXPECT_GT(localized, 300);
}

TEST(Translation, NoTranslationLacksAnArgument) {
    PseudoLocalizer localizer;
    visitAllStates(&localizer, [&](const std::string& state, const ui::Node& tree) {
        EXPECT_EQ(outline::outlineOf(tree).find("%@"), std::string::npos) << state;
    });
}

TEST(Translation, OnlyTheProgramsNameIsNeverTranslated) {
    PseudoLocalizer localizer;
    test::ViewRig view(test::deskOf({}), test::ViewRig::Beginning::loaded, &localizer);
    view.showMenu();
    EXPECT_EQ(std::get<ui::Text>(view.keyed("title").children.at(1).element).text, "‹Vantrel›");
    EXPECT_EQ(std::get<ui::Text>(view.keyed("no monitor").children.at(0).element).text,
              "«No external monitor connected.»");
}

}  // namespace
}  // namespace vantrel::views
