// Short story files for the tests, and what comes of them.
#pragma once

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <string_view>
#include <variant>

#include "app/StoryFile.h"
#include "app/StoryPlayer.h"
#include "platform/simulated/ShippedDesks.h"
#include "platform/simulated/VirtualTime.h"

namespace vantrel::app {

// `fields` begin with a comma, e.g. `, "endMs": 7`.
inline std::string storyWith(const std::string& steps, const std::string& fields = "") {
    return R"({"title": "T", "steps": [)" + steps + "]" + fields + "}";
}

// The story, or one without steps after a mistake, whose line becomes its title.
inline Story readStoryText(const std::string& text) {
    StoryFileResult result = StoryFile::readText(text, "x.json");
    if (const auto* error = std::get_if<simulated::FileError>(&result)) {
        Story story;
        story.title = error->line();
        return story;
    }
    return std::get<Story>(std::move(result));
}

// The mistake's line, or nothing when the text is a story.
inline std::string mistakeInStory(const std::string& text) {
    const StoryFileResult result = StoryFile::readText(text, "x.json");
    const auto* error = std::get_if<simulated::FileError>(&result);
    return error == nullptr ? "" : error->line();
}

inline simulated::Desk storyDesk(std::string_view name) {
    return std::get<simulated::Desk>(simulated::ShippedDesks::read(name));
}

// What is printed when the story is played on a shipped desk in virtual time.
inline std::string played(const Story& story, std::string_view desk,
                          platform::LogLevel least = platform::LogLevel::standard) {
    std::ostringstream output;
    simulated::VirtualTime time;
    StoryPlayer(story, storyDesk(desk), time, output, least).play();
    return output.str();
}

inline std::string playedSteps(const std::string& steps, std::string_view desk = "default",
                               const std::string& fields = "") {
    const Story story = readStoryText(storyWith(steps, fields));
    EXPECT_EQ(story.title, "T");
    return played(story, desk);
}

// The lines about one display at the end, or about the program for no name.
inline std::string endOf(const std::string& output, const std::string& name = "Last error: ") {
    const std::size_t end = output.find("  the end\n");
    const std::size_t begin = output.find("\n" + name, end);
    if (end == std::string::npos || begin == std::string::npos) return "no end for " + name;
    return output.substr(begin + 1, output.find("\n\n", begin + 1) - begin);
}

}  // namespace vantrel::app
