// Trees that a test writes, laid out on a canvas without a screen.
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <utility>

#include "support/FakeCanvas.h"
#include "support/VirtualLoop.h"
#include "ui/Component.h"
#include "ui/Host.h"
#include "ui/Nodes.h"
#include "ui/layout/BoxRenderer.h"

namespace vantrel::layout {

class LayoutBench {
  public:
    explicit LayoutBench(ui::Node first, int height = 600) : tree_(std::move(first)) {
        canvas.available = height;
        renderer.onEvent([this](ui::ElementID element, const ui::Event& event) {
            if (host_) host_->deliver(element, event);
        });
        host_.emplace(virtualLoop_.loop, tree_, renderer);
        settle();
    }

    void show(ui::Node tree) {
        tree_.tree = std::move(tree);
        tree_.version.set(tree_.version.get() + 1);
        settle();
    }
    // Everything that has been asked for happens.
    void settle() {
        virtualLoop_.loop.runDue();
        canvas.runLater();
        virtualLoop_.loop.runDue();
    }

    // Of the control with this key, on what its parent's children lie on.
    Rect frame(const std::string& key) const { return canvas.at(key).frame; }

    test::FakeCanvas canvas;
    BoxRenderer renderer{canvas};

  private:
    struct Tree : ui::Component {
        explicit Tree(ui::Node first) : tree(std::move(first)) {}

        ui::Node body() override {
            version.get();
            return tree;
        }

        runtime::Observable<int> version{0};
        ui::Node tree;
    };

    test::VirtualLoop virtualLoop_;
    Tree tree_;
    std::optional<ui::Host> host_;
};

// Of a fixed size.
inline ui::Node block(std::string key, int width, int height) {
    return ui::image("display").width(width).height(height).key(std::move(key));
}

// As wide as its text.
inline ui::Node word(std::string key, std::string shown) {
    return ui::text(std::move(shown)).key(std::move(key));
}

inline void PrintTo(const Rect& rect, std::ostream* out) {
    *out << rect.x << ", " << rect.y << ", " << rect.width << " x " << rect.height;
}

inline void PrintTo(const PixelSize& size, std::ostream* out) { *out << size.width << " x " << size.height; }

}  // namespace vantrel::layout
