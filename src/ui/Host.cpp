#include "ui/Host.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "runtime/Fatal.h"

namespace vantrel::ui {

// A node on the screen. `node.children` is empty: they are in `children`.
struct Host::Shown {
    ElementID element;
    std::string identity;
    Node node;
    std::vector<std::unique_ptr<Shown>> children;
};

namespace {

// What makes a node the same one as in the last tree: its kind with its key, or
// with its place among the nodes of that kind that have none.
std::vector<std::string> identitiesOf(const std::vector<Node>& nodes) {
    std::vector<std::string> identities;
    std::map<std::size_t, int> places;
    std::set<std::string> taken;
    for (const Node& node : nodes) {
        const std::size_t kind = node.element.index();
        std::string identity = std::to_string(kind);
        if (node.id.empty()) {
            identity += "#" + std::to_string(places[kind]++);
        } else {
            identity += ":" + node.id;
        }
        runtime::require(taken.insert(identity).second, "two nodes of one parent have the same key");
        identities.push_back(std::move(identity));
    }
    return identities;
}

bool movesItsControl(const Event& event) {
    return std::visit(
        []<class E>(const E&) {
            return std::is_same_v<E, Toggled> || std::is_same_v<E, Slid> || std::is_same_v<E, Chosen> ||
                   std::is_same_v<E, Edited>;
        },
        event);
}

}  // namespace

Host::Host(runtime::MainLoop& loop, Component& root, Renderer& renderer)
    : loop_(loop), root_(root), renderer_(renderer), observer_([this] { changed(); }) {
    build();
}

Host::~Host() {
    if (pending_) loop_.cancel(*pending_);
}

void Host::changed() {
    if (pending_) return;
    pending_ = loop_.post([this] {
        pending_.reset();
        build();
    });
}

void Host::build() {
    ++builds_;
    Node tree = observer_.track([this] { return root_.body(); });
    if (!shown_) {
        shown_ = insert(noElement, 0, std::move(tree));
    } else {
        runtime::require(shown_->node.element.index() == tree.element.index(),
                         "a view's topmost node has become another kind of thing");
        update(*shown_, std::move(tree));
    }
    touched_.clear();
    renderer_.finish();
}

std::unique_ptr<Host::Shown> Host::insert(ElementID parent, std::size_t position, Node node) {
    auto children = std::exchange(node.children, {});
    auto shown = std::make_unique<Shown>(Shown{++lastElement_, {}, std::move(node), {}});
    renderer_.insert(parent, position, shown->element, shown->node);
    auto identities = identitiesOf(children);
    for (std::size_t index = 0; index < children.size(); ++index) {
        auto& child = shown->children.emplace_back(insert(shown->element, index, std::move(children[index])));
        child->identity = std::move(identities[index]);
    }
    return shown;
}

void Host::update(Shown& shown, Node node) {
    auto children = std::exchange(node.children, {});
    const bool isEqual = node == shown.node;
    // Even an equal node brings handlers that know more.
    shown.node = std::move(node);
    if (!isEqual || touched_.contains(shown.element)) renderer_.update(shown.element, shown.node);
    updateChildren(shown, std::move(children));
}

void Host::updateChildren(Shown& shown, std::vector<Node> children) {
    auto identities = identitiesOf(children);
    std::erase_if(shown.children, [&](const auto& child) {
        if (std::ranges::find(identities, child->identity) != identities.end()) return false;
        renderer_.remove(child->element);
        return true;
    });
    for (std::size_t index = 0; index < children.size(); ++index) {
        const auto begin = shown.children.begin() + static_cast<std::ptrdiff_t>(index);
        const auto old = std::find_if(begin, shown.children.end(), [&](const auto& child) {
            return child->identity == identities[index];
        });
        if (old == shown.children.end()) {
            auto child = insert(shown.element, index, std::move(children[index]));
            child->identity = std::move(identities[index]);
            shown.children.insert(begin, std::move(child));
            continue;
        }
        if (old != begin) {
            renderer_.move(shown.element, index, (*old)->element);
            std::rotate(begin, old, std::next(old));
        }
        update(*shown.children[index], std::move(children[index]));
    }
}

Host::Shown* Host::find(Shown& below, ElementID element) const {
    if (below.element == element) return &below;
    for (const auto& child : below.children) {
        if (Shown* const found = find(*child, element)) return found;
    }
    return nullptr;
}

void Host::deliver(ElementID element, const Event& event) {
    const Shown* const shown = find(*shown_, element);
    if (shown == nullptr || !shown->node.isEnabled) return;
    // The handler may replace the tree that it is part of.
    const auto handler = shown->node.handler;
    if (handler.function) handler.function(event);
    if (!movesItsControl(event)) return;
    touched_.insert(element);
    changed();
}

std::optional<ElementID> Host::find(const std::function<bool(const Node&)>& holds) const {
    const auto search = [&holds](const auto& self, const Shown& shown) -> std::optional<ElementID> {
        if (holds(shown.node)) return shown.element;
        for (const auto& child : shown.children) {
            if (const auto found = self(self, *child)) return found;
        }
        return std::nullopt;
    };
    return search(search, *shown_);
}

Node Host::tree() const {
    const auto whole = [](const auto& self, const Shown& shown) -> Node {
        Node node = shown.node;
        for (const auto& child : shown.children) node.children.push_back(self(self, *child));
        return node;
    };
    return whole(whole, *shown_);
}

}  // namespace vantrel::ui
