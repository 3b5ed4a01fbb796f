// A desktop without a screen: what the program puts on it can be read as outlines
// and operated by name.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "runtime/Fatal.h"
#include "ui/Toolkit.h"
#include "ui/outline/OutlineRenderer.h"

namespace vantrel::test {

class FakeView : public ui::View {
  public:
    ui::Renderer& renderer() override { return shown; }
    void onEvent(std::function<void(ui::ElementID, const ui::Event&)> handler) override {
        handler_ = std::move(handler);
    }
    ui::Size fittingSize() const override { return fitting; }

    std::string outline() const { return shown.outline(); }
    bool has(const std::string& accessibleName) const { return !elementsNamed(accessibleName).empty(); }
    // To the first control of that name.
    void send(const std::string& accessibleName, const ui::Event& event) const {
        const auto elements = elementsNamed(accessibleName);
        runtime::require(!elements.empty(), "there is no control of that name");
        handler_(elements.front(), event);
    }
    // As a renderer that has laid out the tree.
    void reportSize(ui::Size size) const {
        const auto elements = shown.find([](const ui::Node& node) { return node.layout.reportsSize; });
        handler_(elements.at(0), ui::Resized{size});
    }

    outline::OutlineRenderer shown;
    ui::Size fitting{340, 400};

  private:
    std::vector<ui::ElementID> elementsNamed(const std::string& name) const {
        return shown.find(
            [&](const ui::Node& node) { return ui::isInteractive(node) && node.accessibility.name == name; });
    }

    std::function<void(ui::ElementID, const ui::Event&)> handler_;
};

class FakeStatusItem : public ui::StatusItem {
  public:
    bool hasButton() const override { return isThere; }
    bool isHosted() const override { return isShownByDesktop; }
    void setImage(const ui::Drawing& newImage) override { image = newImage; }
    void setToolTip(const std::string& text) override { toolTip = text; }
    void onClick(std::function<void()> action) override { click = std::move(action); }
    std::optional<double> screenHeight() const override { return height; }

    bool isThere = true;
    bool isShownByDesktop = true;
    ui::Drawing image;
    std::string toolTip;
    std::function<void()> click;
    std::optional<double> height = 1000;
};

class FakePopover : public ui::Popover {
  public:
    ui::View& content() override { return view; }
    bool isShown() const override { return isOpen; }
    void show() override {
        isOpen = true;
        ++shows;
    }
    void close() override {
        if (!std::exchange(isOpen, false) || !closed_) return;
        closed_();
    }
    void setMode(ui::PopoverMode newMode) override {
        close();
        mode = newMode;
    }
    void onClose(std::function<void()> action) override { closed_ = std::move(action); }
    ui::Size contentSize() const override { return sizes.empty() ? ui::Size{} : sizes.back(); }
    void setContentSize(ui::Size size) override { sizes.push_back(size); }

    FakeView view;
    bool isOpen = false;
    int shows = 0;
    ui::PopoverMode mode = ui::PopoverMode::panel;
    // Every size that it was given.
    std::vector<ui::Size> sizes;

  private:
    std::function<void()> closed_;
};

class FakeWindow : public ui::Window {
  public:
    ui::View& content() override { return view; }
    void show() override { ++shows; }

    FakeView view;
    std::string title;
    int shows = 0;
};

// Keeps what it made alive no longer than its owners do.
class FakeToolkit : public ui::Toolkit {
  public:
    std::unique_ptr<ui::StatusItem> makeStatusItem() override {
        auto item = std::make_unique<FakeStatusItem>();
        statusItem = item.get();
        item->isThere = hasStatusBar;
        item->isShownByDesktop = hasTray;
        return item;
    }
    std::unique_ptr<ui::Popover> makePopover(ui::StatusItem&) override {
        auto made = std::make_unique<FakePopover>();
        popover = made.get();
        made->view.fitting = fittingSize;
        return made;
    }
    std::unique_ptr<ui::Window> makeWindow(const std::string& title) override {
        auto window = std::make_unique<FakeWindow>();
        window->title = title;
        windows.push_back(window.get());
        return window;
    }
    std::optional<double> mainScreenHeight() const override { return mainHeight; }
    void activate() override { ++activations; }
    void terminate() override { ++terminations; }

    bool hasStatusBar = true;
    bool hasTray = true;
    ui::Size fittingSize{340, 400};
    std::optional<double> mainHeight = 900;
    FakeStatusItem* statusItem = nullptr;
    FakePopover* popover = nullptr;
    std::vector<FakeWindow*> windows;
    int activations = 0;
    int terminations = 0;
};

}  // namespace vantrel::test
