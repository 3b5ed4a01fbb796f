// Shows a tree of nodes as widgets on one widget.
//
// The topmost node has its natural size, or less height when the widget has less. A
// node's size is reported when the differences have been told; the topmost node's as
// it would like it to be.
// Threads: main thread. Lifetime: the widget outlives it.
#pragma once

#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "ui/Renderer.h"
#include "ui/qt/Item.h"
#include "ui/qt/Stage.h"

namespace vantrel::qt {

class QtRenderer : public ui::Renderer {
  public:
    explicit QtRenderer(QWidget& canvas) : canvas_(canvas) {}
    ~QtRenderer() override;

    void insert(ui::ElementID parent, std::size_t position, ui::ElementID element,
                const ui::Node& node) override;
    void update(ui::ElementID element, const ui::Node& node) override;
    void move(ui::ElementID parent, std::size_t position, ui::ElementID element) override;
    void remove(ui::ElementID element) override;
    void finish() override;

    void onEvent(std::function<void(ui::ElementID, const ui::Event&)> handler);
    // After each finish, with the new fitting size laid out.
    void onFinish(std::function<void()> action) { finished_ = std::move(action); }

    // In pixels.
    QSize fittingSize() const;
    // Into the canvas as it is now.
    void layOut();
    // The desktop's font or palette has changed.
    void refresh();
    // Texts that were cut because there is no room for them.
    std::vector<std::string> cutTexts() const;
    // Null when there is no such node.
    const Item* item(ui::ElementID element) const;

  private:
    void orderWidgets(const Item& item, QWidget*& last);
    void reportSizes();

    QWidget& canvas_;
    Stage stage_;
    std::unique_ptr<Item> root_;
    std::map<ui::ElementID, Item*> items_;
    std::map<ui::ElementID, ui::ElementID> parents_;
    std::map<ui::ElementID, QSize> reported_;
    std::function<void()> finished_;
    bool isOrderNew_ = false;
};

}  // namespace vantrel::qt
