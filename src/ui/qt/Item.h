// A node on the screen, as Qt shows it: its widget.
// Threads: main thread. Lifetime: it owns its widget; stage and graveyard outlive it.
#pragma once

#include <QRect>
#include <QWidget>
#include <string>

#include "ui/layout/Control.h"
#include "ui/layout/Stage.h"
#include "ui/qt/Graveyard.h"

namespace vantrel::qt {

class Item : public layout::Control {
  public:
    // What every item is made with.
    struct Making {
        layout::Stage& stage;
        Graveyard& graveyard;
        ui::ElementID element;
        QWidget* parent;
    };

    Item(const Making& making, QWidget* widget);
    Item(const Item&) = delete;
    Item& operator=(const Item&) = delete;
    ~Item() override;

    QWidget* widget() const { return widget_; }
    // What the children's widgets lie on.
    virtual QWidget* childrenParent() const { return widget_; }
    // Whether its text doesn't fit; it is its tool tip then.
    bool isCut() const { return node_.help.empty() && !widget_->toolTip().isEmpty(); }

    void apply(const ui::Node& node) final;
    void setFrame(const layout::Rect& frame) final;

  protected:
    void send(const ui::Event& event) const { making_.stage.send(making_.element, event); }
    const ui::Node& node() const { return node_; }
    // In place of the node's help.
    void setToolTip(const std::string& text);

    // What is particular to the kind of node.
    virtual void show(const ui::Node&) {}
    // After the widget has got its place.
    virtual void arrange() {}

  private:
    struct ContextMenu;

    Making making_;
    QWidget* widget_;
    // Without children.
    ui::Node node_;
    ContextMenu* contextMenu_ = nullptr;
};

// A text as Qt shows it where it would look for markup or for shortcuts.
QString plain(const std::string& text);
QString withoutShortcut(const std::string& text);

}  // namespace vantrel::qt
