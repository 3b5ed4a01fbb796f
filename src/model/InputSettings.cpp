#include "model/InputSettings.h"

#include <utility>

namespace vantrel::model {

namespace Store = persistence::Store;

InputSettings::InputSettings(platform::Defaults& defaults, std::string key)
    : defaults_(defaults),
      key_(std::move(key)),
      aliases_(Store::inputAliases(defaults_, key_)),
      hidden_(Store::hiddenInputs(defaults_, key_)),
      focusInput_(Store::focusInput(defaults_, key_)),
      macInput_(Store::macInput(defaults_, key_)),
      customInputs_(Store::customInputs(defaults_, key_)) {}

void InputSettings::setAliases(Aliases aliases) {
    Store::setInputAliases(defaults_, aliases, key_);
    aliases_.set(std::move(aliases));
}

void InputSettings::setHidden(std::set<Input> inputs) {
    Store::setHiddenInputs(defaults_, inputs, key_);
    hidden_.set(std::move(inputs));
}

void InputSettings::setFocusInput(std::optional<Input> input) {
    Store::setFocusInput(defaults_, input, key_);
    focusInput_.set(input);
}

void InputSettings::setMacInput(std::optional<Input> input) {
    Store::setMacInput(defaults_, input, key_);
    macInput_.set(input);
}

void InputSettings::setCustomInputs(std::optional<std::vector<Input>> inputs) {
    Store::setCustomInputs(defaults_, inputs, key_);
    customInputs_.set(std::move(inputs));
}

}  // namespace vantrel::model
