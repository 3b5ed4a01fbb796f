// A Desktop that is GNOME's, on Wayland or X11, by Mutter's D-Bus interface.
//
// Threads: main thread. Lifetime: descriptors and main loop outlive it.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/linux/Bus.h"
#include "platform/linux/ChangeNotice.h"
#include "platform/linux/Descriptors.h"
#include "platform/linux/Desktop.h"
#include "platform/linux/mutter/DisplayConfig.h"
#include "platform/linux/mutter/DisplayState.h"
#include "runtime/MainLoop.h"

namespace vantrel::mutter {

class MutterDesktop : public linux::Desktop {
  public:
    // On the session's bus. Nothing when Mutter isn't there.
    static std::unique_ptr<MutterDesktop> open(linux::Descriptors& descriptors, runtime::MainLoop& mainLoop);
    MutterDesktop(const MutterDesktop&) = delete;
    MutterDesktop& operator=(const MutterDesktop&) = delete;
    ~MutterDesktop() override;

    std::string name() const override { return "GNOME"; }
    std::string identity() const override { return identity_; }
    bool isThere() override { return config_.isThere(); }
    std::vector<Output> outputs() override;

    std::optional<platform::TransferTable> table(const std::string& output) override;
    bool setTable(const std::string& output, const platform::TransferTable& table) override;
    // A table is set by a call, not by an object that would go with its owner: Mutter asks
    // nobody whether he is still there.
    bool keepsTables() const override { return true; }

    bool canSwitch() const override;
    std::optional<Arrangement> arrangement(const std::string& output) override;
    bool darken(const std::string& output) override;
    bool light(const std::string& output, const std::optional<Arrangement>& arrangement) override;

    void onChange(std::function<void()> changed) override { notice_->listen(std::move(changed)); }

  private:
    using NextLayout = std::function<std::vector<Layout>(const DisplayState& state)>;

    MutterDesktop(linux::Descriptors& descriptors, runtime::MainLoop& mainLoop);

    // Nothing where Mutter doesn't answer; then it is asked again later.
    std::optional<DisplayState> state();
    std::vector<Output> current();
    std::uint32_t tableCapacity(std::uint32_t serial, std::uint32_t crtc);
    // Asks for the first of those layouts that Mutter takes; an empty list asks for nothing.
    bool change(const NextLayout& next);

    runtime::MainLoop& mainLoop_;
    linux::Bus bus_;
    mutable DisplayConfig config_;
    std::string identity_;
    // By CRTC, as long as the serial is the same.
    std::map<std::uint32_t, std::uint32_t> capacities_;
    std::uint32_t capacitiesSerial_ = 0;
    std::optional<runtime::MainLoop::TimerID> again_;
    // Made last: with what there is at first.
    std::unique_ptr<linux::ChangeNotice> notice_;
};

}  // namespace vantrel::mutter
