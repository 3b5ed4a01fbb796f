// A simulated desk with the program's views on it, set up for one picture: what a
// person does is done by the controls' names.
// Threads: main thread. Needs a QtApplication.
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "app/NoLog.h"
#include "model/DisplayManager.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "platform/simulated/VirtualTime.h"
#include "runtime/MainLoop.h"
#include "ui/Host.h"
#include "ui/qt/PictureView.h"

namespace vantrel::app {

class PictureStage {
  public:
    enum class Subject { popover, settings };

    // Every monitor that answers has been read. The localizer outlives the stage.
    PictureStage(simulated::Desk desk, Subject subject, platform::Localizer& localizer);
    PictureStage(const PictureStage&) = delete;
    PictureStage& operator=(const PictureStage&) = delete;
    ~PictureStage();

    void wait(std::chrono::milliseconds time) { loop_.runFor(time); }
    // To the first control of that name; one that isn't there stops the program.
    void press(const std::string& name) { send(name, ui::Pressed{}); }
    void toggle(const std::string& name, bool isOn) { send(name, ui::Toggled{isOn}); }
    void choose(const std::string& name, std::size_t option) { send(name, ui::Chosen{option}); }
    void edit(const std::string& name, const std::string& text) { send(name, ui::Edited{text}); }

    model::DisplayManager& manager() { return *manager_; }
    simulated::SimulatedPlatform& simulated() { return simulated_; }

    // As the views would like to be.
    void layOut();
    std::vector<std::string> cutTexts() const { return picture_->cutTexts(); }
    // False when the file can't be written.
    bool save(const std::string& path, double ratio);

  private:
    void send(const std::string& name, const ui::Event& event);

    simulated::VirtualTime time_;
    runtime::MainLoop loop_{time_};
    simulated::SimulatedPlatform simulated_;
    NoLog log_;
    platform::Platform platform_;
    std::unique_ptr<model::DisplayManager> manager_;
    std::unique_ptr<qt::PictureView> picture_;
    std::unique_ptr<ui::Component> component_;
    std::unique_ptr<ui::Host> host_;
};

}  // namespace vantrel::app
