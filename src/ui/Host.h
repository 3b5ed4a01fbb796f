// Keeps what a renderer shows equal to what a component's body says: makes the tree
// anew when something that it read has changed, at most once in a pass of the main
// loop, and tells the renderer the differences.
//
// Order: an event goes to the handler of the newest tree; for a node that is gone
// it is dropped. A control that a person has moved is told to the renderer again
// when its handlers have run, also when its node says what it said before: what was
// not accepted goes back.
// Threads: main thread. Lifetime: loop, component and renderer outlive the host;
// when it goes, the renderer keeps showing the last tree.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <vector>

#include "runtime/MainLoop.h"
#include "runtime/Observable.h"
#include "ui/Component.h"
#include "ui/Renderer.h"

namespace vantrel::ui {

class Host {
  public:
    // Shows the first tree at once.
    Host(runtime::MainLoop& loop, Component& root, Renderer& renderer);
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
    ~Host();

    void deliver(ElementID element, const Event& event);

    // The first node from the top that holds, as those who operate it from outside
    // need it.
    std::optional<ElementID> find(const std::function<bool(const Node&)>& holds) const;
    // The tree as it is shown.
    Node tree() const;
    // Whether nothing has changed since it was made.
    bool isUpToDate() const { return !pending_; }
    // How often the tree was made.
    std::size_t builds() const { return builds_; }

  private:
    struct Shown;

    void changed();
    void build();
    std::unique_ptr<Shown> insert(ElementID parent, std::size_t position, Node node);
    void update(Shown& shown, Node node);
    void updateChildren(Shown& shown, std::vector<Node> children);
    Shown* find(Shown& below, ElementID element) const;

    runtime::MainLoop& loop_;
    Component& root_;
    Renderer& renderer_;
    runtime::Observer observer_;
    std::unique_ptr<Shown> shown_;
    // What a person has moved since the last tree.
    std::set<ElementID> touched_;
    ElementID lastElement_ = noElement;
    std::optional<runtime::MainLoop::TimerID> pending_;
    std::size_t builds_ = 0;
};

}  // namespace vantrel::ui
