// Any bytes are a story that keeps its promises, or one mistake told in one line.
#include <algorithm>
#include <cstdint>
#include <string_view>

#include "app/StoryActionKind.h"
#include "app/StoryFile.h"
#include "runtime/Fatal.h"

using namespace vantrel;
using namespace vantrel::app;

namespace {

void checkStory(const Story& story) {
    simulated::Duration last{0};
    for (const StoryStep& step : story.steps) {
        runtime::require(step.at >= last, "steps are in the order of their times");
        last = step.at;
        const StoryActionKind& kind = StoryActionKind::of(step.action);
        runtime::require(!kind.needs("input") || step.input, "a step has the input that it needs");
        runtime::require(!kind.needs("brightness") || step.brightness, "a step has the level that it needs");
        const bool dims = step.action == StoryAction(UserAction::dimmer);
        runtime::require(!dims || step.brightness || step.contrast, "a dimmer step moves a slider");
    }
    runtime::require(story.end >= last, "no step comes after the end");
}

void checkError(const simulated::FileError& error) {
    runtime::require(!error.reason.empty(), "a mistake has a reason");
    const std::string line = error.line();
    const auto isPrintable = [](char character) { return character >= 0x20 && character < 0x7F; };
    runtime::require(std::all_of(line.begin(), line.end(), isPrintable), "a mistake is one printable line");
    runtime::require(line.size() < 4096, "a mistake is short");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const StoryFileResult result = StoryFile::readText(text, "x.json");
    if (const auto* story = std::get_if<Story>(&result)) checkStory(*story);
    if (const auto* error = std::get_if<simulated::FileError>(&result)) checkError(*error);
    return 0;
}
