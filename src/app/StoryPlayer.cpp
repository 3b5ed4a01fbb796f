#include "app/StoryPlayer.h"

#include <utility>
#include <variant>

#include "app/StateReport.h"
#include "app/StoryActionKind.h"
#include "app/StoryUser.h"
#include "app/StoryWorld.h"
#include "runtime/Fatal.h"

namespace vantrel::app {

StoryPlayer::StoryPlayer(const Story& story, simulated::Desk desk, runtime::Scheduler& scheduler,
                         std::ostream& output, platform::LogLevel least, std::optional<std::string> state)
    : story_(story),
      scheduler_(scheduler),
      output_(output),
      log_(scheduler, output, least),
      loop_(scheduler),
      defaults_(std::move(state), log_),
      simulated_(std::move(desk), scheduler, loop_),
      platform_(simulated_.platform(log_, defaults_)),
      error_([this] { loop_.post([this] { showError(); }); }) {}

StoryPlayer::~StoryPlayer() {
    manager_.reset();
    scheduler_.finishThreads();
}

void StoryPlayer::play() {
    announce();
    startProgram();
    for (const StoryStep& step : story_.steps) {
        loop_.after(step.at, [this, &step] { happen(step); });
    }
    loop_.runFor(story_.end);
    log_.step("the end");
    log_.close();
    output_ << "\n";
    StateReport(manager_.get(), simulated_, output_).print();
}

void StoryPlayer::announce() {
    const simulated::Desk& desk = simulated_.world().desk();
    output_ << story_.title << "\n";
    if (!story_.description.empty()) output_ << story_.description << "\n";
    output_ << "Desk: " << desk.title << "\n\n" << std::flush;
}

void StoryPlayer::startProgram() {
    defaults_.open();
    manager_ = std::make_unique<model::DisplayManager>(platform_);
    showError();
}

// As the popover does it: whenever there is something to say.
void StoryPlayer::showError() {
    if (!manager_) return;
    const auto error = error_.track([this] { return manager_->lastError(); });
    if (error) log_.message(*error);
}

void StoryPlayer::happen(const StoryStep& step) {
    log_.step(StoryActionKind::describe(step, simulated_.world().desk()));
    std::visit([this, &step](auto action) { perform(action, step); }, step.action);
}

void StoryPlayer::perform(UserAction action, const StoryStep& step) {
    if (!manager_) return log_.message("the program is not running");
    if (const auto refusal = StoryUser(*manager_).perform(action, step)) log_.message(*refusal);
}

void StoryPlayer::perform(MonitorAction action, const StoryStep& step) {
    StoryWorld(simulated_).perform(action, step);
}

void StoryPlayer::perform(WorldAction action, const StoryStep& step) {
    StoryWorld(simulated_).perform(action, step);
}

void StoryPlayer::perform(ProgramAction action, const StoryStep&) {
    switch (action) {
        case ProgramAction::quit:
            if (!manager_) return log_.message("the program is not running");
            return manager_.reset();
        case ProgramAction::start:
            if (manager_) return log_.message("the program is running");
            return startProgram();
    }
    runtime::fatal("a program's action of no kind");
}

}  // namespace vantrel::app
