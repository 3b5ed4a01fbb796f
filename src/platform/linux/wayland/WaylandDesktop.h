// A Desktop that is a Wayland compositor with the protocols of wlroots or of KDE, or with
// none of them: then its outputs are listed only.
//
// Threads: main thread. Errors: a compositor that has gone has no outputs any more, even
// when another one takes its place: that is another desktop.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/linux/ChangeNotice.h"
#include "platform/linux/Descriptors.h"
#include "platform/linux/Desktop.h"
#include "platform/linux/wayland/Connection.h"
#include "platform/linux/wayland/Deadline.h"
#include "platform/linux/wayland/Globals.h"
#include "runtime/Clock.h"

namespace vantrel::wayland {

class WaylandDesktop : public linux::Desktop {
  public:
    // What the environment says of the session.
    struct Session {
        // WAYLAND_DISPLAY.
        std::string display;
        // XDG_CURRENT_DESKTOP; may be empty.
        std::string desktop;
        // False for a program that only switches outputs: learning how large a table is
        // keeps all others from it, if only for a moment.
        bool wantsTables = true;
    };

    // Nothing when no compositor is there.
    static std::unique_ptr<WaylandDesktop> open(const Session& session, linux::Descriptors& descriptors,
                                                const runtime::Clock& clock);
    WaylandDesktop(const WaylandDesktop&) = delete;
    WaylandDesktop& operator=(const WaylandDesktop&) = delete;

    std::string name() const override;
    std::string identity() const override;
    bool isThere() override;
    std::vector<Output> outputs() override;

    std::optional<platform::TransferTable> table(const std::string& output) override;
    bool setTable(const std::string& output, const platform::TransferTable& table) override;
    // The compositor gives every output its own table back when its client goes.
    bool keepsTables() const override { return false; }

    bool canSwitch() const override;
    std::optional<Arrangement> arrangement(const std::string& output) override;
    bool darken(const std::string& output) override;
    bool light(const std::string& output, const std::optional<Arrangement>& arrangement) override;

    void onChange(std::function<void()> changed) override { notice_->listen(std::move(changed)); }

  private:
    WaylandDesktop(const Session& session, std::unique_ptr<Connection> connection,
                   linux::Descriptors& descriptors, const runtime::Clock& clock);

    Deadline soon() const;
    // Learns what there is by now.
    void read();
    // Learns what newly announced objects are.
    void learn(const Deadline& deadline);
    std::vector<Output> current() const;
    std::optional<Head> head(const std::string& name) const;
    Shape shapeForNewcomer(const Head& head) const;
    bool ask(const std::string& output, const std::optional<Shape>& shape, const Deadline& deadline);

    const Session session_;
    const runtime::Clock& clock_;
    const std::unique_ptr<Connection> connection_;
    const std::unique_ptr<Globals> globals_;
    // Of how many objects of the compositor all is known.
    int described_ = 0;
    std::unique_ptr<linux::ChangeNotice> notice_;
    std::unique_ptr<linux::Descriptors::Watch> watch_;
};

}  // namespace vantrel::wayland
