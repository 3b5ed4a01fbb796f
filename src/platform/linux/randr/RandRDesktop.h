// What an X server does with the outputs, by its extension RandR: a desktop of any kind on
// X11, or none at all.
//
// The outputs of one CRTC, which show the same picture, have one table: set for one of them,
// it is set for all. Turned off, each goes by itself. An output that comes back to another
// CRTC than it had, or in another mode or place, gets a table that changes nothing.
// Threads: main thread. Like every program on X, it waits for as long as the server takes to
// answer, or another program keeps it grabbed.
// Lifetime: `descriptors` lives longer; the main loop may go first.
// Errors: a server that has gone is a desktop without outputs, for good.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/Descriptors.h"
#include "platform/linux/Desktop.h"
#include "platform/linux/randr/Connection.h"
#include "platform/linux/randr/CrtcTables.h"
#include "platform/linux/randr/Layout.h"
#include "runtime/MainLoop.h"

namespace vantrel::randr {

class RandRDesktop : public linux::Desktop {
  public:
    // On the server that `display` names, as $DISPLAY does; null when there is none, or one
    // that knows less than RandR 1.3.
    static std::unique_ptr<RandRDesktop> open(const std::string& display, linux::Descriptors& descriptors,
                                              runtime::MainLoop& mainLoop);

    std::string name() const override { return "X11"; }
    std::string identity() const override { return identity_; }
    std::vector<Output> outputs() override;
    std::optional<platform::TransferTable> table(const std::string& output) override;
    bool setTable(const std::string& output, const platform::TransferTable& table) override;
    bool keepsTables() const override { return true; }
    // Whether a server is there; which outputs it can turn off shows when it is asked to.
    bool canSwitch() const override { return connection_->isAlive(); }
    std::optional<Arrangement> arrangement(const std::string& output) override;
    bool darken(const std::string& output) override;
    bool light(const std::string& output, const std::optional<Arrangement>& arrangement) override;
    void onChange(std::function<void()> changed) override;

  private:
    RandRDesktop(std::string identity, std::unique_ptr<Connection> connection,
                 linux::Descriptors& descriptors, runtime::MainLoop& mainLoop);

    std::vector<Output> look();
    // The CRTC that shows the output; none when it is dark.
    xcb_randr_crtc_t crtcOf(const std::string& output);
    void takeEvents();
    void tell();

    const std::string identity_;
    const std::unique_ptr<Connection> connection_;
    CrtcTables tables_;
    runtime::MainLoop::Poster poster_;

    std::function<void()> changed_;
    // What the listener has been told.
    std::vector<Output> told_;
    bool isTellingPosted_ = false;
    // Gone with this object, for work that is posted.
    const std::shared_ptr<bool> isThere_ = std::make_shared<bool>(true);
    std::unique_ptr<linux::Descriptors::Watch> watch_;
};

}  // namespace vantrel::randr
