#include "ui/Node.h"

#include <utility>
#include <variant>

#include "runtime/Fatal.h"

namespace vantrel::ui {

namespace {

// A handler for one kind of event, called with what `value` makes of it.
template <class Kind, class Value, class Action>
Node::Handler handlerOf(Action action, Value value) {
    return {[action = std::move(action), value](const Event& event) {
        const auto* expected = std::get_if<Kind>(&event);
        runtime::require(expected != nullptr, "a node got an event of another kind of control");
        action(value(*expected));
    }};
}

}  // namespace

Node Node::key(std::string value) && {
    id = std::move(value);
    return std::move(*this);
}

Node Node::padding(int all) && { return std::move(*this).padding(all, all); }

Node Node::padding(int horizontal, int vertical) && {
    layout.horizontalPadding = horizontal;
    layout.verticalPadding = vertical;
    return std::move(*this);
}

Node Node::width(int points) && {
    layout.width = points;
    return std::move(*this);
}

Node Node::height(int points) && {
    layout.height = points;
    return std::move(*this);
}

Node Node::heightBetween(int minimum, int maximum) && {
    layout.minimumHeight = minimum;
    layout.maximumHeight = maximum;
    return std::move(*this);
}

Node Node::fillWidth() && {
    layout.fillsWidth = true;
    return std::move(*this);
}

Node Node::withHelp(std::string text) && {
    help = std::move(text);
    return std::move(*this);
}

Node Node::enabled(bool isOn) && {
    isEnabled = isOn;
    return std::move(*this);
}

Node Node::named(std::string accessibleName) && {
    accessibility.name = std::move(accessibleName);
    return std::move(*this);
}

Node Node::valued(std::string accessibleValue) && {
    accessibility.value = std::move(accessibleValue);
    return std::move(*this);
}

Node Node::described(std::string text) && {
    accessibility.description = std::move(text);
    return std::move(*this);
}

Node Node::onPress(std::function<void()> action) && {
    handler = {[action = std::move(action)](const Event&) { action(); }};
    return std::move(*this);
}

Node Node::onToggle(std::function<void(bool)> action) && {
    handler = handlerOf<Toggled>(std::move(action), [](const Toggled& event) { return event.isOn; });
    return std::move(*this);
}

Node Node::onSlide(std::function<void(double)> action) && {
    handler = handlerOf<Slid>(std::move(action), [](const Slid& event) { return event.value; });
    return std::move(*this);
}

Node Node::onChoose(std::function<void(std::size_t)> action) && {
    handler = handlerOf<Chosen>(std::move(action), [](const Chosen& event) { return event.option; });
    return std::move(*this);
}

Node Node::onEdit(std::function<void(const std::string&)> action) && {
    handler = handlerOf<Edited>(std::move(action), [](const Edited& event) { return event.text; });
    return std::move(*this);
}

Node Node::onResize(std::function<void(Size)> action) && {
    layout.reportsSize = true;
    handler = handlerOf<Resized>(std::move(action), [](const Resized& event) { return event.size; });
    return std::move(*this);
}

Node Node::withContextMenu(std::vector<std::string> items, std::function<void(std::size_t)> action) && {
    contextMenu = std::move(items);
    handler =
        handlerOf<ContextChosen>(std::move(action), [](const ContextChosen& event) { return event.item; });
    return std::move(*this);
}

bool isInteractive(const Node& node) {
    return std::visit(
        []<class E>(const E&) {
            return std::is_same_v<E, Disclosure> || std::is_same_v<E, Button> || std::is_same_v<E, Tile> ||
                   std::is_same_v<E, Switch> || std::is_same_v<E, Slider> || std::is_same_v<E, Picker> ||
                   std::is_same_v<E, Menu> || std::is_same_v<E, TextField>;
        },
        node.element);
}

}  // namespace vantrel::ui
