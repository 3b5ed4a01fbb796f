#include "views/InputChoice.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace vantrel::views {

ui::Node inputChoice(const model::ExternalDisplay& display, InputChoice choice) {
    std::vector<std::optional<InputChoice::Input>> inputs{std::nullopt};
    ui::Picker picker{.title = choice.title, .options = {std::move(choice.none)}};
    for (const InputChoice::Input input : display.visibleInputs()) {
        inputs.emplace_back(input);
        picker.options.push_back(display.inputName(input));
    }
    const auto chosen = std::ranges::find(inputs, choice.chosen);
    if (chosen != inputs.end()) picker.selected = static_cast<std::size_t>(chosen - inputs.begin());
    return ui::Node{std::move(picker)}
        .onChoose([inputs, onChoose = std::move(choice.onChoose)](std::size_t option) {
            onChoose(inputs.at(option));
        })
        .named(std::move(choice.title))
        .fillWidth();
}

}  // namespace vantrel::views
