// docs/simulation.md has a heading per kind of object or value, and below it a
// table whose first column has the words in backquotes.
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>

#include "platform/simulated/DeskFile.h"
#include "platform/simulated/ShippedDesks.h"

namespace vantrel::simulated {
namespace {

using Vocabulary = std::map<std::string, std::set<std::string>>;

std::string documentation() {
    const auto root = std::filesystem::path(__FILE__).parent_path().parent_path().parent_path();
    std::ifstream file(root / "docs" / "simulation.md");
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
}

// The words of the tables below third-level headings.
Vocabulary documentedWords() {
    Vocabulary result;
    std::istringstream text(documentation());
    std::string heading;
    for (std::string line; std::getline(text, line);) {
        if (line.starts_with("#")) heading = line.starts_with("### ") ? line.substr(4) : "";
        if (heading.empty() || !line.starts_with("| `")) continue;
        result[heading].insert(line.substr(3, line.find('`', 3) - 3));
    }
    return result;
}

TEST(DeskFileDocumentation, HasEveryWordThatTheReaderKnowsAndNoOther) {
    Vocabulary known;
    for (const DeskFile::Words& words : DeskFile::vocabulary()) {
        known[std::string(words.heading)].insert(words.words.begin(), words.words.end());
    }
    EXPECT_EQ(documentedWords(), known);
}

TEST(DeskFileDocumentation, HasAnExampleThatCanBeRead) {
    const std::string text = documentation();
    const std::string fence = "```json\n";
    const std::size_t start = text.find(fence);
    ASSERT_NE(start, std::string::npos);
    const std::string example =
        text.substr(start + fence.size(), text.find("```", start + 3) - start - fence.size());
    const DeskFileResult result = DeskFile::readText(example, "example");
    const auto* error = std::get_if<DeskFileError>(&result);
    EXPECT_EQ(error, nullptr) << error->line();
}

TEST(DeskFileDocumentation, NamesEveryShippedDesk) {
    const std::string text = documentation();
    for (const ShippedDesks::Entry& desk : ShippedDesks::list()) {
        EXPECT_THAT(text, testing::HasSubstr("| `" + std::string(desk.name) + "` |"));
    }
}

}  // namespace
}  // namespace vantrel::simulated
