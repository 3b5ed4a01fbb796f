// One thing on a screen and what is in it: a plain value that a view makes anew
// whenever something that it shows has changed. Nothing in it refers to a model or
// to a toolkit, except what its handler holds.
//
// Nodes of one parent are told apart by their keys. A key that stays is the same
// control for the person who uses it; one without a key is known by its place.
// Comparing two nodes leaves their handlers out.
//
//     column(10, {
//         text("Brightness", Font::callout),
//         Node{Slider{.value = 42, .maximum = 100}}.onSlide([](double v) { ... }).named("Brightness"),
//     }).key("card")
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "ui/Accessibility.h"
#include "ui/Element.h"
#include "ui/Event.h"
#include "ui/Layout.h"

namespace vantrel::ui {

struct Node {
    // Called on the main thread; may change models and view state.
    struct Handler {
        std::function<void(const Event&)> function;
        // What is done, not what is shown.
        bool operator==(const Handler&) const { return true; }
    };

    Element element;
    std::vector<Node> children = {};
    // Set by key().
    std::string id = {};
    Layout layout = {};
    Accessibility accessibility = {};
    // Shown when the pointer rests on it.
    std::string help = {};
    bool isEnabled = true;
    std::vector<std::string> contextMenu = {};
    Handler handler = {};

    bool operator==(const Node&) const = default;

    // Each returns the node itself, so that they can be put in a row.
    Node key(std::string value) &&;
    Node padding(int all) &&;
    Node padding(int horizontal, int vertical) &&;
    Node width(int points) &&;
    Node height(int points) &&;
    Node heightBetween(int minimum, int maximum) &&;
    Node fillWidth() &&;
    Node withHelp(std::string text) &&;
    Node enabled(bool isOn) &&;
    // For people who don't see it: its name, and its value or a description.
    Node named(std::string accessibleName) &&;
    Node valued(std::string accessibleValue) &&;
    Node described(std::string text) &&;

    Node onPress(std::function<void()> action) &&;
    Node onToggle(std::function<void(bool)> action) &&;
    Node onSlide(std::function<void(double)> action) &&;
    Node onChoose(std::function<void(std::size_t)> action) &&;
    Node onEdit(std::function<void(const std::string&)> action) &&;
    Node onResize(std::function<void(Size)> action) &&;
    Node withContextMenu(std::vector<std::string> items, std::function<void(std::size_t)> action) &&;
};

// Whether a person can operate it.
bool isInteractive(const Node& node);

}  // namespace vantrel::ui
