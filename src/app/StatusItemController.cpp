#include "app/StatusItemController.h"

#include <chrono>
#include <string>
#include <utility>

#include "app/MenuBarIcon.h"

namespace vantrel::app {

using namespace std::chrono_literals;
using platform::Log;
using platform::LogLevel;
using text::Text;

namespace {

// Without any screen to ask.
constexpr double usualScreenHeight = 800;
// Desktops may show a status item only seconds after the program has started.
constexpr auto hostPatience = 5s;

std::string dimensions(ui::Size size) {
    return std::to_string(size.width) + " x " + std::to_string(size.height);
}

}  // namespace

StatusItemController::StatusItemController(platform::Platform& platform, ui::Toolkit& toolkit,
                                           model::DisplayManager& manager)
    : platform_(platform),
      toolkit_(toolkit),
      manager_(manager),
      statusItem_(toolkit.makeStatusItem()),
      popover_(toolkit.makePopover(*statusItem_)) {
    if (statusItem_->hasButton()) {
        statusItem_->setImage(MenuBarIcon::image());
        statusItem_->setToolTip("Vantrel");
        statusItem_->onClick([this] { togglePopover(); });
    }
    menu_ = show(popover_->content(), menuContent());
    sizer_.emplace(popover_->content().fittingSize());
    popover_->setContentSize(sizer_->requestedSize());
    popover_->onClose([this] { popoverDidClose(); });
    hostTimer_ = platform_.mainLoop.after(hostPatience, [this] { watchForAHost(); });
}

StatusItemController::~StatusItemController() {
    if (hostTimer_) platform_.mainLoop.cancel(*hostTimer_);
    if (sizeTimer_) platform_.mainLoop.cancel(*sizeTimer_);
    // Nobody is left to hear of it.
    popover_->onClose({});
}

StatusItemController::Shown StatusItemController::show(ui::View& view,
                                                       std::unique_ptr<ui::Component> component) {
    auto host = std::make_unique<ui::Host>(platform_.mainLoop, *component, view.renderer());
    view.onEvent([shown = host.get()](ui::ElementID element, const ui::Event& event) {
        shown->deliver(element, event);
    });
    return {std::move(component), std::move(host)};
}

std::unique_ptr<ui::Component> StatusItemController::menuContent() {
    return std::make_unique<views::MenuContent>(
        environment(), views::MenuContent::Surroundings{
                           .openSettings = [this] { openSettings(); },
                           .quit = [this] { toolkit_.terminate(); },
                           .screenHeight = [this] { return screenHeight(); },
                           .sizeChanged = [this](ui::Size size) { resizePopover(size); },
                           .note = [this] { return note_.get(); },
                       });
}

views::Environment StatusItemController::environment() const {
    return {manager_, platform_.localizer, platform_.loginItem};
}

void StatusItemController::togglePopover() {
    if (popover_->isShown()) {
        popover_->close();
        return;
    }
    if (statusItem_->hasButton()) openPopover();
}

void StatusItemController::openPopover() {
    if (!popover_->isShown()) {
        manager_.refresh();
        manager_.loadAll();
        // The keyboard's brightness keys change it too.
        if (manager_.builtIn()) manager_.builtIn()->refresh();
    }
    popover_->show();
}

void StatusItemController::openSettings() {
    if (!isWindow_) popover_->close();
    if (!settingsWindow_) {
        settingsWindow_ =
            toolkit_.makeWindow(platform_.localizer.shown(Text::translated("Vantrel Settings")));
        settings_ = show(settingsWindow_->content(), std::make_unique<views::SettingsView>(environment()));
    }
    toolkit_.activate();
    settingsWindow_->show();
}

double StatusItemController::screenHeight() const {
    if (const auto height = statusItem_->screenHeight()) return *height;
    return toolkit_.mainScreenHeight().value_or(usualScreenHeight);
}

void StatusItemController::resizePopover(ui::Size size) {
    if (!sizer_->request(size)) return;
    sizeTimer_ = platform_.mainLoop.post([this] {
        sizeTimer_.reset();
        applyPendingSize();
    });
}

void StatusItemController::applyPendingSize() {
    switch (sizer_->apply(platform_.scheduler.now())) {
        case PopoverSizer::Decision::leave:
            return;
        case PopoverSizer::Decision::resize:
            platform_.log.write(Log::ui, LogLevel::debug,
                                "Menu popover resized to " + dimensions(sizer_->requestedSize()) +
                                    ", AppKit had " + dimensions(popover_->contentSize()));
            popover_->setContentSize(sizer_->requestedSize());
            return;
        case PopoverSizer::Decision::hold:
            platform_.log.write(Log::ui, LogLevel::fault,
                                "Menu popover kept resizing (last " + dimensions(sizer_->askedSize()) +
                                    "), holding its size");
            return;
    }
}

void StatusItemController::popoverDidClose() {
    sizer_->popoverDidClose();
    if (!isWindow_) return;
    isWindow_ = false;
    note_.set({});
    if (!statusItem_->isHosted()) {
        toolkit_.terminate();
        return;
    }
    // Not inside its closing.
    hostTimer_ = platform_.mainLoop.post([this] {
        hostTimer_.reset();
        popover_->setMode(ui::PopoverMode::panel);
    });
}

void StatusItemController::watchForAHost() {
    hostTimer_.reset();
    if (!statusItem_->isHosted()) beAWindow();
}

void StatusItemController::beAWindow() {
    popover_->setMode(ui::PopoverMode::window);
    isWindow_ = true;
    note_.set(platform_.localizer.shown(
        Text::translated("This desktop shows no status icons, so Vantrel is a window. Closing it quits.")));
    openPopover();
}

}  // namespace vantrel::app
