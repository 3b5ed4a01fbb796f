#include "app/PictureStage.h"

#include <utility>

#include "runtime/Fatal.h"
#include "views/MenuContent.h"
#include "views/SettingsView.h"

namespace vantrel::app {

using namespace std::chrono_literals;

namespace {

constexpr double screenHeight = 1100;
// Long enough for the slowest monitor to be read, or given up.
constexpr auto readingTime = 2min;

std::unique_ptr<ui::Component> componentOf(PictureStage::Subject subject,
                                           const views::Environment& environment) {
    if (subject == PictureStage::Subject::settings) return std::make_unique<views::SettingsView>(environment);
    return std::make_unique<views::MenuContent>(environment, views::MenuContent::Surroundings{
                                                                 .openSettings = [] {},
                                                                 .quit = [] {},
                                                                 .screenHeight = [] { return screenHeight; },
                                                                 .sizeChanged = [](ui::Size) {},
                                                             });
}

platform::Platform withLocalizer(const platform::Platform& all, platform::Localizer& localizer) {
    return {all.scheduler, all.mainLoop,  all.displays, all.registry,  all.functions, all.baseTables,
            all.defaults,  all.workspace, localizer,    all.loginItem, all.obstacles, all.log};
}

}  // namespace

PictureStage::PictureStage(simulated::Desk desk, Subject subject, platform::Localizer& localizer)
    : simulated_(std::move(desk), time_, loop_),
      platform_(withLocalizer(simulated_.platform(log_), localizer)),
      manager_(std::make_unique<model::DisplayManager>(platform_)),
      picture_(std::make_unique<qt::PictureView>()),
      component_(componentOf(subject, {*manager_, platform_.localizer, platform_.loginItem})),
      host_(std::make_unique<ui::Host>(loop_, *component_, picture_->view().renderer())) {
    wait(readingTime);
}

PictureStage::~PictureStage() {
    host_.reset();
    component_.reset();
    // What is drawn refers to models too.
    picture_.reset();
    manager_.reset();
    time_.finishThreads();
}

void PictureStage::send(const std::string& name, const ui::Event& event) {
    const auto element = host_->find([&name](const ui::Node& node) {
        return ui::isInteractive(node) && node.isEnabled && node.accessibility.name == name;
    });
    runtime::require(element.has_value(), "a picture needs a control that isn't there");
    host_->deliver(*element, event);
    wait(1ms);
}

void PictureStage::layOut() { picture_->layOut(picture_->view().fittingSize()); }

bool PictureStage::save(const std::string& path, double ratio) {
    layOut();
    return picture_->save(path, ratio);
}

}  // namespace vantrel::app
