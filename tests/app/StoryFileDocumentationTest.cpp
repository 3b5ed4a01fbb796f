// docs/stories.md has a heading per kind of object or value, and below it a table
// whose first column has the words in backquotes.
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>

#include "app/ShippedStories.h"
#include "app/StoryActionKind.h"
#include "app/StoryFile.h"
#include "app/StoryText.h"

namespace vantrel::app {
namespace {

using Vocabulary = std::map<std::string, std::set<std::string>>;
using testing::HasSubstr;

std::string documentation() {
    const auto root = std::filesystem::path(__FILE__).parent_path().parent_path().parent_path();
    std::ifstream file(root / "docs" / "stories.md");
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

std::string documentedFields(const StoryActionKind& kind) {
    std::string fields;
    const auto add = [&fields](const std::string& field) { fields += (fields.empty() ? "" : ", ") + field; };
    for (const auto field : kind.required) add("`" + std::string(field) + "`");
    for (const auto field : kind.optional) add("(`" + std::string(field) + "`)");
    return fields.empty() ? " " : " " + fields + " ";
}

TEST(StoryFileDocumentation, HasEveryWordThatTheReaderKnowsAndNoOther) {
    Vocabulary known;
    for (const simulated::Words& words : StoryFile::vocabulary()) {
        known[std::string(words.heading)].insert(words.words.begin(), words.words.end());
    }
    EXPECT_EQ(documentedWords(), known);
}

TEST(StoryFileDocumentation, NamesTheFieldsOfEveryAction) {
    const std::string text = documentation();
    for (const StoryActionKind& kind : StoryActionKind::all()) {
        EXPECT_THAT(text, HasSubstr("\n| `" + std::string(kind.word) + "` |" + documentedFields(kind) + "|"));
    }
}

TEST(StoryFileDocumentation, HasAnExampleThatCanBeRead) {
    const std::string text = documentation();
    const std::string fence = "```json\n";
    const std::size_t start = text.find(fence);
    ASSERT_NE(start, std::string::npos);
    const std::size_t begin = start + fence.size();
    EXPECT_EQ(mistakeInStory(text.substr(begin, text.find("```", begin) - begin)), "");
}

TEST(StoryFileDocumentation, NamesEveryShippedStoryAndItsDesk) {
    const std::string text = documentation();
    for (const ShippedStories::Entry& entry : ShippedStories::list()) {
        const auto story = std::get<Story>(ShippedStories::read(entry.name));
        EXPECT_THAT(text,
                    HasSubstr("\n| `" + std::string(entry.name) + "` | `" + story.desk.value() + "` |"));
    }
}

}  // namespace
}  // namespace vantrel::app
