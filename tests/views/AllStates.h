// Every tree that the views can show, as far as trees differ in what is in them:
// for what has to hold in all of them.
#pragma once

#include <chrono>
#include <functional>
#include <string>

#include "views/ViewDesks.h"
#include "views/ViewRig.h"

namespace vantrel::test {

using StateVisitor = std::function<void(const std::string& state, const ui::Node& tree)>;

inline constexpr const char* nickname = "Windows PC";
// The system's own words.
inline constexpr const char* loginRefusal = "Operation not permitted";

inline void visitMenus(platform::Localizer* localizer, const StateVisitor& visit) {
    using Beginning = ViewRig::Beginning;
    // What a control is called depends on the language.
    const auto nameOf = [](const ViewRig& view, const std::string& key) {
        return view.keyed(key).accessibility.name;
    };
    {
        ViewRig view(deskOf({}), Beginning::loaded, localizer);
        view.showMenu();
        visit("an empty desk", view.tree());
    }
    {
        ViewRig view(deskWith(monitorPlan(2, "Alder")), Beginning::fresh, localizer);
        view.showMenu();
        visit("a monitor that loads", view.tree());
    }
    {
        ViewRig view(deskWith(richAlder()), Beginning::loaded, localizer);
        view.display()->inputSettings().setAliases({{otherInput, nickname}});
        view.showMenu();
        visit("a monitor that is ready", view.tree());
        view.display()->feature(0x8D)->current.set(1);
        view.toggle(nameOf(view, "more"), true);
        visit("everything there is", view.tree());
        view.press(nameOf(view, "run"));
        visit("an action to be confirmed", view.tree());
        view.display()->setControlMode(model::ControlMode::software);
        view.settle();
        visit("software controls", view.tree());
        view.display()->inputSettings().setFocusInput(thirdInput);
        view.toggle(nameOf(view, "output"), false);
        visit("an output to be turned off", view.tree());
        view.press(nameOf(view, "turn off"));
        view.runFor(std::chrono::seconds(10));
        visit("an output that is off", view.tree());
        view.press(nameOf(view, "turn on"));
        view.runFor(std::chrono::milliseconds(500));
        visit("a monitor that returns", view.tree());
    }
    {
        ViewRig view(deskWith(deafAlder()), Beginning::loaded, localizer);
        view.showMenu();
        visit("a monitor without DDC", view.tree());
        view.display()->setControlMode(model::ControlMode::ddc);
        view.settle();
        visit("a monitor without the DDC that it should have", view.tree());
        view.rig.perform(view.manager().disableOutput(view.display(), std::nullopt));
        view.runFor(std::chrono::seconds(10));
        visit("a monitor that can't be reached", view.tree());
    }
    {
        ViewRig view(deskOf({monitorPlan(2, "Alder")}), Beginning::loaded, localizer);
        view.showMenu();
        view.rig.perform(view.manager().disableOutput(view.display(), std::nullopt));
        view.settle();
        visit("an error", view.tree());
    }
}

inline void visitSettings(platform::Localizer* localizer, const StateVisitor& visit) {
    using Beginning = ViewRig::Beginning;
    {
        ViewRig view(deskOf({}), Beginning::loaded, localizer);
        view.rig.simulated.refuseLoginItem(loginRefusal);
        view.showSettings();
        view.toggle(view.keyed("login").accessibility.name, true);
        visit("settings without a monitor, refused", view.tree());
    }
    {
        ViewRig view(deskWith(deafAlder()), Beginning::loaded, localizer);
        view.showSettings();
        visit("settings of a monitor without DDC", view.tree());
    }
    {
        ViewRig view(deskWith(monitorPlan(2, "Alder")), Beginning::loaded, localizer);
        view.display()->inputSettings().setAliases({{otherInput, nickname}});
        view.display()->inputSettings().setHidden({computersInput});
        view.display()->addInput(0x1B);
        view.display()->addInput(0xF1);
        view.showSettings();
        view.toggle(view.keyed("capabilities").accessibility.name, true);
        visit("settings of a monitor with a list of its user's", view.tree());
    }
}

inline void visitAllStates(platform::Localizer* localizer, const StateVisitor& visit) {
    visitMenus(localizer, visit);
    visitSettings(localizer, visit);
}

}  // namespace vantrel::test
