#include "ui/outline/OutlineRenderer.h"

#include <algorithm>
#include <cstddef>

#include "runtime/Fatal.h"
#include "ui/outline/Outline.h"

namespace vantrel::outline {

using ui::ElementID;
using ui::Node;

namespace {

Node withoutChildren(const Node& node) {
    Node copy = node;
    copy.children.clear();
    return copy;
}

void insertAt(std::vector<ElementID>& siblings, std::size_t position, ElementID element) {
    runtime::require(position <= siblings.size(),
                     "a position behind the last place among an element's siblings");
    siblings.insert(siblings.begin() + static_cast<std::ptrdiff_t>(position), element);
}

}  // namespace

void OutlineRenderer::insert(ElementID parent, std::size_t position, ElementID element, const Node& node) {
    isFinished_ = false;
    runtime::require(element != ui::noElement, "an element without an identifier");
    runtime::require(parent != ui::noElement || topmost_.empty(), "a second topmost element");
    insertAt(childrenOf(parent), position, element);
    const bool isNew = shown_.try_emplace(element, Shown{parent, withoutChildren(node), {}}).second;
    runtime::require(isNew, "an element is inserted a second time");
}

void OutlineRenderer::update(ElementID element, const Node& node) {
    isFinished_ = false;
    Shown& shown = at(element);
    runtime::require(shown.node.element.index() == node.element.index(),
                     "an element becomes another kind of thing");
    shown.node = withoutChildren(node);
}

void OutlineRenderer::move(ElementID parent, std::size_t position, ElementID element) {
    isFinished_ = false;
    runtime::require(at(element).parent == parent, "an element is moved within a parent that isn't its own");
    auto& siblings = childrenOf(parent);
    std::erase(siblings, element);
    insertAt(siblings, position, element);
}

void OutlineRenderer::remove(ElementID element) {
    isFinished_ = false;
    std::erase(childrenOf(at(element).parent), element);
    forget(element);
}

void OutlineRenderer::forget(ElementID element) {
    const std::vector<ElementID> children = at(element).children;
    for (const ElementID child : children) forget(child);
    shown_.erase(element);
}

OutlineRenderer::Shown& OutlineRenderer::at(ElementID element) {
    const auto found = shown_.find(element);
    runtime::require(found != shown_.end(), "a difference of an element that isn't shown");
    return found->second;
}

std::vector<ElementID>& OutlineRenderer::childrenOf(ElementID parent) {
    return parent == ui::noElement ? topmost_ : at(parent).children;
}

ElementID OutlineRenderer::root() const {
    runtime::require(isFinished_ && !topmost_.empty(), "a tree is looked at that isn't told to its end");
    return topmost_.front();
}

Node OutlineRenderer::whole(ElementID element) const {
    const Shown& shown = shown_.at(element);
    Node node = shown.node;
    for (const ElementID child : shown.children) node.children.push_back(whole(child));
    return node;
}

Node OutlineRenderer::tree() const { return whole(root()); }

std::string OutlineRenderer::outline() const { return outlineOf(tree()); }

void OutlineRenderer::visit(ElementID element,
                            const std::function<void(ElementID, const Node&)>& visitor) const {
    const Shown& shown = shown_.at(element);
    visitor(element, shown.node);
    for (const ElementID child : shown.children) visit(child, visitor);
}

std::vector<ElementID> OutlineRenderer::find(const std::function<bool(const Node&)>& holds) const {
    std::vector<ElementID> found;
    visit(root(), [&](ElementID element, const Node& node) {
        if (holds(node)) found.push_back(element);
    });
    return found;
}

}  // namespace vantrel::outline
