// What the user decided about one monitor's inputs. Every change is stored at
// once. Main thread.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "persistence/Store.h"
#include "runtime/Observable.h"

namespace vantrel::model {

class InputSettings {
  public:
    using Input = persistence::Store::Input;
    using Aliases = persistence::Store::InputAliases;

    InputSettings(platform::Defaults& defaults, std::string key);

    // The user's own names of inputs.
    const Aliases& aliases() const { return aliases_.get(); }
    void setAliases(Aliases aliases);

    // Inputs that are not offered.
    const std::set<Input>& hidden() const { return hidden_.get(); }
    void setHidden(std::set<Input> inputs);

    // Where to switch the monitor when the output to it is turned off.
    std::optional<Input> focusInput() const { return focusInput_.get(); }
    void setFocusInput(std::optional<Input> input);

    // The input on which the monitor shows this computer.
    std::optional<Input> macInput() const { return macInput_.get(); }
    void setMacInput(std::optional<Input> input);

    // The user's list instead of the detected one. For a display's inputs use
    // ExternalDisplay::setCustomInputs, which also changes what is offered.
    const std::optional<std::vector<Input>>& customInputs() const { return customInputs_.get(); }
    void setCustomInputs(std::optional<std::vector<Input>> inputs);

  private:
    platform::Defaults& defaults_;
    std::string key_;
    runtime::Observable<Aliases> aliases_;
    runtime::Observable<std::set<Input>> hidden_;
    runtime::Observable<std::optional<Input>> focusInput_;
    runtime::Observable<std::optional<Input>> macInput_;
    runtime::Observable<std::optional<std::vector<Input>>> customInputs_;
};

}  // namespace vantrel::model
