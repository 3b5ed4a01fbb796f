// A session whose computer sleeps, wakes and closes its lid when a test says so.
// Threads: main thread.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "linux/SysfsTree.h"
#include "platform/linux/Session.h"

namespace vantrel::linux {

class FakeSession : public Session {
  public:
    // Sets the backlights of the tree, if there is one.
    explicit FakeSession(const SysfsTree* tree = nullptr) : tree_(tree) {}

    void wake() const {
        for (const auto& woken : woken_) woken();
    }
    void openLid() { moveLid(false); }
    void closeLid() { moveLid(true); }
    // Whether it sets no backlight from now on.
    bool refuses = false;
    // What it was asked to set: "intel_backlight 50".
    std::vector<std::string> backlights;

    void onWake(std::function<void()> woken) override { woken_.push_back(std::move(woken)); }
    bool isLidClosed() override { return isLidClosed_; }
    void onLid(std::function<void()> moved) override { lidMoved_ = std::move(moved); }
    bool setBacklight(const std::string& name, std::uint32_t value) override {
        backlights.push_back(name + " " + std::to_string(value));
        if (refuses) return false;
        if (tree_ != nullptr) tree_->setBacklight(name, value);
        return true;
    }

  private:
    void moveLid(bool isClosed) {
        isLidClosed_ = isClosed;
        if (lidMoved_) lidMoved_();
    }

    const SysfsTree* tree_;
    bool isLidClosed_ = false;
    std::vector<std::function<void()>> woken_;
    std::function<void()> lidMoved_;
};

}  // namespace vantrel::linux
