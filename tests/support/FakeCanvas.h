// A toolkit without a screen: its controls have sizes that a test can reckon with, and
// note what they are told.
#pragma once

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "runtime/Fatal.h"
#include "ui/layout/Box.h"
#include "ui/layout/Canvas.h"

namespace vantrel::test {

// A letter is 10 wide and 20 high. A slider is 60 wide and expands; a disclosure's title
// is 24 high, a section's 16; a spacer needs nothing; everything else is 16 wide and high.
class FakeControl : public layout::Control {
  public:
    FakeControl(std::vector<FakeControl*>& all, std::vector<std::string>& gone, layout::Control* above)
        : parent(above), all_(all), gone_(gone) {
        all_.push_back(this);
    }
    FakeControl(const FakeControl&) = delete;
    FakeControl& operator=(const FakeControl&) = delete;
    ~FakeControl() override {
        std::erase(all_, this);
        gone_.push_back(node.id);
    }

    void apply(const ui::Node& shown) override {
        node = shown;
        ++applied;
        if (onApply) onApply();
    }
    void setFrame(const layout::Rect& place) override { frame = place; }

    layout::WidthRange widths() const override {
        ++measured;
        if (const auto* text = std::get_if<ui::Text>(&node.element)) return {10, lengthOf(text->text)};
        if (const auto* disclosure = std::get_if<ui::Disclosure>(&node.element)) {
            return {0, lengthOf(disclosure->title)};
        }
        if (isSpacer()) return {};
        if (expands()) return {60, 60};
        return {16, 16};
    }
    int height(int width) const override {
        if (const auto* text = std::get_if<ui::Text>(&node.element)) {
            const int line = std::max(10, width / 10 * 10);
            return text->wraps ? 20 * ((lengthOf(text->text) + line - 1) / line) : 20;
        }
        if (std::holds_alternative<ui::Disclosure>(node.element)) return 24;
        if (const auto* section = std::get_if<ui::Section>(&node.element)) {
            return section->title.empty() ? 0 : 16;
        }
        return isSpacer() ? 0 : 16;
    }
    bool expands() const override { return std::holds_alternative<ui::Slider>(node.element); }
    void setBehindExpanding(bool isBehind) override { isBehindExpanding = isBehind; }
    void showPanel(const layout::Rect& place, const std::vector<int>& tops) override {
        panel = place;
        lines = tops;
    }
    void placeTitle(const layout::Rect& place) override { title = place; }
    void setContentSize(int width, int height) override { content = {0, 0, width, height}; }

    layout::Control* const parent;
    ui::Node node{.element = ui::Spacer{}};
    layout::Rect frame, panel, title, content;
    std::vector<int> lines;
    bool isBehindExpanding = false;
    int applied = 0;
    mutable int measured = 0;
    std::function<void()> onApply;

  private:
    bool isSpacer() const { return std::holds_alternative<ui::Spacer>(node.element); }
    static int lengthOf(const std::string& text) { return 10 * static_cast<int>(text.size()); }

    std::vector<FakeControl*>& all_;
    std::vector<std::string>& gone_;
};

class FakeCanvas : public layout::Canvas {
  public:
    std::unique_ptr<layout::Control> make(layout::Stage& stage, ui::ElementID element, const ui::Node&,
                                          layout::Control* parent) override {
        auto control = std::make_unique<FakeControl>(controls, gone, parent);
        if (eagerEvents) control->onApply = [&stage, element] { stage.send(element, ui::Pressed{}); };
        return control;
    }
    int pixels(double points) const override { return static_cast<int>(std::lround(points * scale)); }
    ui::Size points(double width, double height) const override { return {width / scale, height / scale}; }
    int height() const override { return available; }
    void order(const layout::Box& root) override {
        ordered.clear();
        addTo(ordered, root);
        ++orders;
    }
    void later(std::function<void()> work) override { waiting.push_back(std::move(work)); }

    void runLater() {
        for (const auto& work : std::exchange(waiting, {})) work();
    }
    FakeControl& at(const std::string& key) const {
        const auto found = std::ranges::find_if(
            controls, [&](const FakeControl* control) { return control->node.id == key; });
        if (found == controls.end()) runtime::fatal("no control with the key " + key);
        return **found;
    }

    double scale = 1;
    int available = 600;
    // Whether controls tell of a press whenever they are told what to show.
    bool eagerEvents = false;
    std::vector<FakeControl*> controls;
    // The keys of those that are gone, in the order in which they went.
    std::vector<std::string> gone;
    // The keys in the order of the tree when it was last told, and how often it was.
    std::vector<std::string> ordered;
    int orders = 0;
    std::vector<std::function<void()>> waiting;

  private:
    static void addTo(std::vector<std::string>& keys, const layout::Box& box) {
        keys.push_back(static_cast<const FakeControl&>(box.control()).node.id);
        for (const auto& child : box.children()) addTo(keys, *child);
    }
};

}  // namespace vantrel::test
