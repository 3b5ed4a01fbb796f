// A renderer without a screen. It keeps the tree as it was told of it, difference
// by difference, so that what every renderer is told can be read and checked.
//
// Errors: a difference that can't be (an unknown element, a position outside, a
// control that turns into another kind) stops the program.
// Threads: main thread.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "ui/Renderer.h"

namespace vantrel::outline {

class OutlineRenderer : public ui::Renderer {
  public:
    void insert(ui::ElementID parent, std::size_t position, ui::ElementID element,
                const ui::Node& node) override;
    void update(ui::ElementID element, const ui::Node& node) override;
    void move(ui::ElementID parent, std::size_t position, ui::ElementID element) override;
    void remove(ui::ElementID element) override;
    void finish() override { isFinished_ = true; }

    // Before the first insertion, and between a difference and finish(), there is
    // no tree to look at: it stops the program.
    ui::Node tree() const;
    std::string outline() const;
    // The elements whose nodes hold, from top to bottom. The nodes come without
    // their children.
    std::vector<ui::ElementID> find(const std::function<bool(const ui::Node&)>& holds) const;

  private:
    struct Shown {
        ui::ElementID parent;
        // Without its children.
        ui::Node node;
        std::vector<ui::ElementID> children;
    };

    Shown& at(ui::ElementID element);
    std::vector<ui::ElementID>& childrenOf(ui::ElementID parent);
    void forget(ui::ElementID element);
    ui::ElementID root() const;
    ui::Node whole(ui::ElementID element) const;
    void visit(ui::ElementID element,
               const std::function<void(ui::ElementID, const ui::Node&)>& visitor) const;

    std::map<ui::ElementID, Shown> shown_;
    std::vector<ui::ElementID> topmost_;
    bool isFinished_ = false;
};

}  // namespace vantrel::outline
