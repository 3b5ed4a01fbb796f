// One kind of action in a story: its word, and the fields that it has.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/StoryStep.h"
#include "platform/simulated/Desk.h"

namespace vantrel::app {

struct StoryActionKind {
    std::string_view word;
    StoryAction action;
    // Keys of a step, without "atMs" and "do".
    std::vector<std::string_view> required = {};
    std::vector<std::string_view> optional = {};

    bool takes(std::string_view field) const;
    bool needs(std::string_view field) const;

    static const std::vector<StoryActionKind>& all();
    static const StoryActionKind& of(const StoryAction& action);
    // Nothing when there is no such word.
    static const StoryActionKind* named(std::string_view word);

    // "selectInput Halden HX27 (id 2) 0x11": the step without its time.
    static std::string describe(const StoryStep& step, const simulated::Desk& desk);
};

// The word for the refused step of a display configuration.
std::string_view refusalWord(simulated::Refusal refusal);

}  // namespace vantrel::app
