// Views of a simulated desk in virtual time, shown in an outline and operated by
// the names that their controls have for people who don't see them.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "support/ManagerRig.h"
#include "ui/Host.h"
#include "ui/outline/Outline.h"
#include "ui/outline/OutlineRenderer.h"
#include "views/MenuContent.h"
#include "views/SettingsView.h"

namespace vantrel::test {

// The lines of an outline without their indentation.
inline std::vector<std::string> linesOf(const std::string& outline) {
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < outline.size();) {
        const std::size_t begin = outline.find_first_not_of(' ', at);
        const std::size_t end = outline.find('\n', begin);
        lines.push_back(outline.substr(begin, end - begin));
        at = end + 1;
    }
    return lines;
}

inline void walk(const ui::Node& node, const std::function<void(const ui::Node&)>& visitor) {
    visitor(node);
    for (const ui::Node& child : node.children) walk(child, visitor);
}

class ViewRig {
  public:
    enum class Beginning { loaded, fresh };
    using Display = std::shared_ptr<model::ExternalDisplay>;

    explicit ViewRig(simulated::Desk desk = usualDesk(), Beginning beginning = Beginning::loaded,
                     platform::Localizer* localizer = nullptr)
        : rig(std::move(desk), localizer),
          environment{beginning == Beginning::loaded ? rig.startAndLoad() : rig.start(),
                      rig.watched.localizer, rig.watched.loginItem} {}

    void showMenu() {
        begin(std::make_unique<views::MenuContent>(
            environment, views::MenuContent::Surroundings{
                             .openSettings = [this] { ++settingsOpened; },
                             .quit = [this] { ++quits; },
                             .screenHeight = [this] { return screenHeight.get(); },
                             .sizeChanged = [this](ui::Size size) { sizes.push_back(size); },
                             .icon = icon,
                         }));
    }
    void showSettings() { begin(std::make_unique<views::SettingsView>(environment)); }
    void show(std::unique_ptr<ui::Component> component) { begin(std::move(component)); }
    // The topmost node must stay of one kind.
    void show(std::function<ui::Node()> body) { begin(std::make_unique<Function>(std::move(body))); }
    void hide() {
        end();
        settle();
    }

    // Operate the one control with this accessible name.
    void press(const std::string& name) { deliver(name, ui::Pressed{}); }
    void toggle(const std::string& name, bool isOn) { deliver(name, ui::Toggled{isOn}); }
    void slide(const std::string& name, double value) { deliver(name, ui::Slid{value}); }
    void edit(const std::string& name, const std::string& text) { deliver(name, ui::Edited{text}); }
    void choose(const std::string& name, std::size_t option) { deliver(name, ui::Chosen{option}); }
    void chooseInContextMenu(const std::string& name, std::size_t item) {
        deliver(name, ui::ContextChosen{item});
    }
    void resize(ui::Size size) {
        deliver([](const ui::Node& n) { return n.layout.reportsSize; }, ui::Resized{size});
    }
    // Lets what was begun happen, as far as it takes no time.
    void settle() { rig.runFor(std::chrono::milliseconds(1)); }
    void runFor(ManagerRig::Duration duration) { rig.runFor(duration); }

    ui::Node tree() const { return renderer_->tree(); }
    std::string outline() const { return renderer_->outline(); }
    std::vector<std::string> lines() const { return linesOf(outline()); }
    // With everything in it.
    ui::Node named(const std::string& name) const {
        return one([&](const ui::Node& node) { return node.accessibility.name == name; });
    }
    ui::Node keyed(const std::string& key) const {
        return one([&](const ui::Node& node) { return node.id == key; });
    }
    ui::Node one(const std::function<bool(const ui::Node&)>& holds) const {
        std::vector<ui::Node> found;
        walk(tree(), [&](const ui::Node& node) {
            if (holds(node)) found.push_back(node);
        });
        runtime::require(found.size() == 1, "not one node is meant in\n" + outline());
        return found.front();
    }

    Display display(platform::DisplayID id = 2) const { return rig.display(id); }
    model::DisplayManager& manager() const { return *rig.manager; }

    ManagerRig rig;
    views::Environment environment;
    int settingsOpened = 0;
    int quits = 0;
    std::vector<ui::Size> sizes;
    runtime::Observable<double> screenHeight{1000};
    ui::Symbol icon = ui::applicationIcon;

  private:
    class Function : public ui::Component {
      public:
        explicit Function(std::function<ui::Node()> body) : body_(std::move(body)) {}
        ui::Node body() override { return body_(); }

      private:
        std::function<ui::Node()> body_;
    };

    void end() {
        host_.reset();
        renderer_.reset();
        component_.reset();
    }
    void begin(std::unique_ptr<ui::Component> component) {
        end();
        component_ = std::move(component);
        renderer_ = std::make_unique<outline::OutlineRenderer>();
        host_.emplace(rig.loop, *component_, *renderer_);
        settle();
    }
    void deliver(const std::string& name, const ui::Event& event) {
        deliver([&](const ui::Node& node) { return node.accessibility.name == name; }, event);
    }
    void deliver(const std::function<bool(const ui::Node&)>& holds, const ui::Event& event) {
        const auto elements = renderer_->find(holds);
        runtime::require(elements.size() == 1, "not one control is meant in\n" + outline());
        host_->deliver(elements.front(), event);
        settle();
    }

    std::unique_ptr<ui::Component> component_;
    std::unique_ptr<outline::OutlineRenderer> renderer_;
    std::optional<ui::Host> host_;
};

}  // namespace vantrel::test
