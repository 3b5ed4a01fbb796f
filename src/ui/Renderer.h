// Draws a tree of nodes with a toolkit. It is told of every difference between the
// tree that it shows and the newest one, and decides nothing: texts, symbols, help,
// names, order and what is enabled come with the node.
//
// What it promises: a change made by the program is never sent back as an event; a
// slider that a person is holding stays under the hand, and shows the newest value
// when it is let go; keyboard focus stays where it is as long as the node stays.
// Threads: main thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

#include "ui/Node.h"

namespace vantrel::ui {

// Names a node on the screen from its insertion to its removal; never reused.
using ElementID = std::uint64_t;
// The parent of the topmost node.
inline constexpr ElementID noElement = 0;

class Renderer {
  public:
    virtual ~Renderer() = default;

    // A new node among its parent's, which move up to make room. Its own children
    // follow one by one; `node.children` is not looked at, here and below.
    virtual void insert(ElementID parent, std::size_t position, ElementID element, const Node& node) = 0;
    // The same control with other properties; or with the same ones, when a person
    // has moved it and it has to show again what the node says.
    virtual void update(ElementID element, const Node& node) = 0;
    // Its parent's children are in the order that they had, but for this one.
    virtual void move(ElementID parent, std::size_t position, ElementID element) = 0;
    // With everything in it.
    virtual void remove(ElementID element) = 0;
    // All differences have been told; time to lay out.
    virtual void finish() = 0;
};

}  // namespace vantrel::ui
