#include "app/StoryFile.h"

#include <array>
#include <chrono>

#include "app/StoryActionKind.h"
#include "platform/simulated/JSONFile.h"
#include "platform/simulated/JSONText.h"
#include "platform/simulated/ObjectShape.h"
#include "platform/simulated/ShippedDesks.h"
#include "platform/simulated/ValueReaders.h"

namespace vantrel::app::StoryFile {
namespace {

using namespace simulated::ValueReaders;
using namespace std::chrono_literals;
using simulated::Duration;
using simulated::FileError;
using simulated::JSONPlace;
using simulated::Refusal;
using simulated::Words;
namespace JSONText = simulated::JSONText;

// What a story without an end leaves the last step to have its effect.
constexpr Duration usualRest = 30s;
// Far more than anybody writes.
constexpr std::size_t mostSteps = 10'000;

std::optional<StoryAction> action(const JSONPlace& place) {
    const auto word = place.text();
    if (!word) return std::nullopt;
    if (const StoryActionKind* kind = StoryActionKind::named(*word)) return kind->action;
    place.report(JSONText::inQuotes(*word) + " is not an action");
    return std::nullopt;
}

std::optional<double> level(const JSONPlace& place) { return place.number(0, 1); }

const WordTable<model::ControlMode>& controlModes() {
    static std::array<std::string, model::allControlModes.size()> names;
    static const WordTable<model::ControlMode> table = [] {
        WordTable<model::ControlMode> result{"Control modes", {}};
        for (std::size_t index = 0; index < names.size(); ++index) {
            names[index] = rawValue(model::allControlModes[index]);
            result.entries.emplace_back(names[index], model::allControlModes[index]);
        }
        return result;
    }();
    return table;
}

const WordTable<Refusal>& refusals() {
    static const WordTable<Refusal> table = [] {
        WordTable<Refusal> result{"Refusals", {}};
        for (const auto refusal : {Refusal::nothing, Refusal::begin, Refusal::enable, Refusal::complete}) {
            result.entries.emplace_back(refusalWord(refusal), refusal);
        }
        return result;
    }();
    return table;
}

// An action has its own fields and no others.
void checkFields(const JSONPlace& place, const StoryStep& step) {
    if (!place.has("do")) return;
    const StoryActionKind& kind = StoryActionKind::of(step.action);
    for (const auto& [key, member] : place.members()) {
        if (key != "atMs" && key != "do" && !kind.takes(key)) {
            member.report("does not belong to " + std::string(kind.word));
        }
    }
    for (const std::string_view key : kind.required) {
        if (!place.has(std::string(key))) place.member(std::string(key)).report("is missing");
    }
    if (kind.action == StoryAction(UserAction::dimmer) && !step.brightness && !step.contrast) {
        place.report("must have brightness, contrast or both");
    }
}

const simulated::ObjectShape<StoryStep>& stepShape() {
    using S = StoryStep;
    using simulated::into;
    constexpr auto required = simulated::Field<S>::Need::required;
    static const simulated::ObjectShape<S> shape{
        "Step",
        {
            {"atMs", into(&S::at, milliseconds), required},
            {"do", into(&S::action, action), required},
            {"display", into(&S::display, code<platform::DisplayID>)},
            {"input", into(&S::input, code<std::uint16_t>)},
            {"code", into(&S::code, code<std::uint8_t>)},
            {"value", into(&S::value, code<std::uint16_t>)},
            {"brightness", into(&S::brightness, level)},
            {"contrast", into(&S::contrast, level)},
            {"mode", into(&S::mode, controlModes())},
            {"flags", into(&S::flags, code<std::uint32_t>)},
            {"refusal", into(&S::refusal, refusals())},
        },
        checkFields};
    return shape;
}

std::optional<std::vector<StoryStep>> steps(const JSONPlace& place) {
    std::vector<StoryStep> result;
    for (const JSONPlace& element : place.elements()) {
        auto step = stepShape()(element);
        if (!step) return std::nullopt;
        if (!result.empty() && step->at < result.back().at) {
            element.member("atMs").report("is before the step above it");
        }
        result.push_back(*step);
    }
    if (result.size() > mostSteps) {
        place.report("has more than " + std::to_string(mostSteps) + " steps");
        return std::nullopt;
    }
    return result;
}

std::optional<std::optional<std::string>> desk(const JSONPlace& place) {
    auto name = place.text();
    if (!name) return std::nullopt;
    if (!simulated::ShippedDesks::text(*name)) {
        place.report(JSONText::inQuotes(*name) + " is not a desk that comes with the program");
    }
    return name;
}

void checkEnd(const JSONPlace& place, Story& story) {
    const Duration last = story.steps.empty() ? Duration(0) : story.steps.back().at;
    if (!place.has("endMs")) story.end = last + usualRest;
    if (story.end < last) place.member("endMs").report("is before the last step");
}

const simulated::ObjectShape<Story>& storyShape() {
    using simulated::into;
    constexpr auto required = simulated::Field<Story>::Need::required;
    static const simulated::ObjectShape<Story> shape{
        "Story",
        {
            {"title", into(&Story::title, simulated::ValueReaders::text), required},
            {"description", into(&Story::description, simulated::ValueReaders::text)},
            {"desk", into(&Story::desk, desk)},
            {"steps", into(&Story::steps, steps), required},
            {"endMs", into(&Story::end, milliseconds)},
        },
        checkEnd};
    return shape;
}

}  // namespace

StoryFileResult readText(std::string_view text, std::string_view file) {
    Story story;
    const auto readStory = [&story](const JSONPlace& root) { story = storyShape()(root).value_or(Story{}); };
    if (auto error = simulated::JSONFile::read(text, file, readStory)) return *std::move(error);
    return story;
}

StoryFileResult readFile(const std::filesystem::path& path) {
    auto contents = simulated::JSONFile::contents(path);
    if (auto* error = std::get_if<FileError>(&contents)) return std::move(*error);
    return readText(std::get<std::string>(contents), path.string());
}

std::vector<Words> vocabulary() {
    Words actions{"Actions", {}};
    for (const StoryActionKind& kind : StoryActionKind::all()) actions.words.push_back(kind.word);
    return {storyShape().words(), stepShape().words(), std::move(actions), controlModes().words(),
            refusals().words()};
}

}  // namespace vantrel::app::StoryFile
