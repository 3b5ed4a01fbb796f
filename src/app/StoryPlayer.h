// Plays a story on a desk with the program's own models, and prints what happens
// and what it ends with.
//
// Threads: main thread; blocks until the story is over. Time: the scheduler's, so
// a story takes as long as it says, or no time at all.
#pragma once

#include <memory>
#include <optional>
#include <ostream>
#include <string>

#include "app/Story.h"
#include "app/StoryDefaults.h"
#include "app/StoryLog.h"
#include "model/DisplayManager.h"
#include "platform/Platform.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "runtime/MainLoop.h"
#include "runtime/Observable.h"

namespace vantrel::app {

class StoryPlayer {
  public:
    // The desk has what the story needs (StoryCheck). Log lines from `least` on are
    // printed. Settings are in the folder `state`, or without one in memory. Everything
    // given by reference must outlive the player.
    StoryPlayer(const Story& story, simulated::Desk desk, runtime::Scheduler& scheduler, std::ostream& output,
                platform::LogLevel least, std::optional<std::string> state = std::nullopt);
    StoryPlayer(const StoryPlayer&) = delete;
    StoryPlayer& operator=(const StoryPlayer&) = delete;
    ~StoryPlayer();

    // Once.
    void play();

  private:
    void announce();
    void startProgram();
    void showError();
    void happen(const StoryStep& step);
    void perform(UserAction action, const StoryStep& step);
    void perform(MonitorAction action, const StoryStep& step);
    void perform(WorldAction action, const StoryStep& step);
    void perform(ProgramAction action, const StoryStep& step);

    const Story& story_;
    runtime::Scheduler& scheduler_;
    std::ostream& output_;
    StoryLog log_;
    runtime::MainLoop loop_;
    StoryDefaults defaults_;
    simulated::SimulatedPlatform simulated_;
    platform::Platform platform_;
    runtime::Observer error_;
    // Null while the program doesn't run.
    std::unique_ptr<model::DisplayManager> manager_;
};

}  // namespace vantrel::app
