// A node on the screen: its widget, and the room that it needs.
//
// Sizes are made from the top down whenever the view lays itself out: widths first,
// then the heights that they lead to. They are in pixels.
// Threads: main thread. Lifetime: its parent's item owns it, it owns its widget.
#pragma once

#include <QRect>
#include <QWidget>
#include <cstdint>
#include <memory>
#include <vector>

#include "ui/Node.h"
#include "ui/qt/Stage.h"
#include "ui/qt/WidthShares.h"

namespace vantrel::qt {

class Item {
  public:
    Item(Stage& stage, ui::ElementID element, QWidget* widget);
    Item(const Item&) = delete;
    Item& operator=(const Item&) = delete;
    virtual ~Item();

    ui::ElementID element() const { return element_; }
    QWidget* widget() const { return widget_; }
    // What the children's widgets lie on.
    virtual QWidget* childrenParent() const { return widget_; }
    const std::vector<std::unique_ptr<Item>>& children() const { return children_; }

    // Shows what the node says.
    void update(const ui::Node& node);
    // Again, with everything in it: the look has changed.
    void refresh();

    void insertChild(std::size_t position, std::unique_ptr<Item> child);
    void moveChild(std::size_t position, ui::ElementID element);
    void removeChild(ui::ElementID element);

    // With the padding, or as wide and high as the node says.
    WidthRange widths() const;
    int height(int width) const;
    // Takes all the width that there is.
    bool expands() const { return node_.layout.fillsWidth || contentExpands(); }
    // Takes height that is left over in a column.
    virtual bool expandsVertically() const { return false; }
    // Can do with less height than it asks for.
    virtual bool canShrink() const { return false; }
    bool reportsSize() const { return node_.layout.reportsSize; }
    // Whether its text doesn't fit; it is its tool tip then.
    bool isCut() const { return node_.help.empty() && !widget_->toolTip().isEmpty(); }
    // Whether what is before it in a row takes all the width that there is.
    virtual void setBehindExpanding(bool) {}
    // In the coordinates of the parent's childrenParent().
    void place(const QRect& geometry);
    QRect geometry() const { return geometry_; }

  protected:
    Stage& stage() const { return stage_; }
    void send(const ui::Event& event) const { stage_.send(element_, event); }
    const ui::Node& node() const { return node_; }
    // In place of the node's help.
    void setToolTip(const std::string& text);

    // What is particular to the kind of node.
    virtual void apply(const ui::Node& node) = 0;
    virtual WidthRange contentWidths() const = 0;
    virtual int contentHeight(int width) const = 0;
    virtual bool contentExpands() const { return false; }
    // Whether the padding belongs to the widget, with what it paints.
    virtual bool isContainer() const { return false; }
    // After the widget has got its place: places what is in it. The rectangle is
    // in the widget's coordinates, inside the padding.
    virtual void arrange(const QRect&) {}

  private:
    struct ContextMenu;

    WidthRange measureWidths() const;
    int measureHeight(int width) const;

    Stage& stage_;
    ui::ElementID element_;
    QWidget* widget_;
    // Without children.
    ui::Node node_;
    QRect geometry_;
    // Each container asks for them more than once.
    mutable std::uint64_t measuredWidths_ = 0;
    mutable WidthRange widths_;
    mutable std::uint64_t measuredHeight_ = 0;
    mutable int heightsWidth_ = 0;
    mutable int height_ = 0;
    ContextMenu* contextMenu_ = nullptr;
    std::vector<std::unique_ptr<Item>> children_;
};

// A text as Qt shows it where it would look for markup or for shortcuts.
QString plain(const std::string& text);
QString withoutShortcut(const std::string& text);

}  // namespace vantrel::qt
