#include "wayland/MockCompositor.h"

#include <cstring>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

#include "runtime/Fatal.h"

namespace vantrel::wayland {
namespace {

int listenAt(const std::string& path) {
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    runtime::require(path.size() < sizeof address.sun_path, "the folder's path is too long for a socket");
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    const bool isListening =
        ::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
        ::listen(socket, 8) == 0;
    runtime::require(isListening, "no socket can be listened at");
    return socket;
}

}  // namespace

MockCompositor::MockCompositor(const Protocols& protocols, const std::vector<MockMonitor>& monitors)
    : socket_(folder_.path("wayland-0")),
      bell_(::eventfd(0, EFD_CLOEXEC)),
      done_(scheduler_.makeGate()),
      pause_(scheduler_.makeGate()) {
    desk_.display = wl_display_create();
    wl_display_add_socket_fd(desk_.display, listenAt(socket_));
    for (const MockMonitor& monitor : monitors)
        desk_.monitors.push_back(std::make_unique<MockMonitor>(monitor));
    outputs_.emplace(desk_, protocols.outputVersion, protocols.hasGammaControl);
    if (protocols.hasWlr) wlr_.emplace(desk_, 2);
    if (protocols.hasKDE) kde_.emplace(desk_);
    desk_.publish = [this] {
        if (kde_) kde_->publish();
        if (wlr_) wlr_->publish();
        outputs_->publish();
    };
    desk_.publish();
    wl_event_loop_add_fd(
        wl_display_get_event_loop(desk_.display), bell_, WL_EVENT_READABLE,
        [](int, std::uint32_t, void* data) {
            static_cast<MockCompositor*>(data)->takeWork();
            return 0;
        },
        this);
    scheduler_.startThread("compositor", runtime::QualityOfService::userInitiated, [this] { serve(); });
}

void MockCompositor::run(std::function<void(MockDesk& desk)> work) {
    {
        const std::scoped_lock hold(lock_);
        work_ = [this, work = std::move(work)] { work(desk_); };
    }
    ::eventfd_write(bell_, 1);
    done_->wait(std::nullopt);
}

void MockCompositor::change(std::function<void(MockDesk& desk)> work) {
    run([work = std::move(work)](MockDesk& desk) {
        work(desk);
        desk.publish();
    });
}

MockMonitor MockCompositor::monitor(const std::string& name) {
    std::optional<MockMonitor> found;
    run([&](MockDesk& desk) { found = desk.monitor(name); });
    return *found;
}

void MockCompositor::finishWlr() {
    run([this](MockDesk&) { wlr_->finish(); });
}

void MockCompositor::seizeControl(const std::string& name) {
    run([this, &name](MockDesk& desk) { outputs_->seizeControl(desk.monitor(name)); });
}

void MockCompositor::pause() {
    run([this](MockDesk&) {
        done_->open();
        pause_->wait(std::nullopt);
    });
}

void MockCompositor::goOn() {
    pause_->open();
    done_->wait(std::nullopt);
}

void MockCompositor::die() {
    if (desk_.display == nullptr) return;
    run([this](MockDesk&) { isOver_ = true; });
    scheduler_.finishThreads();
    wl_display_destroy_clients(desk_.display);
    wl_display_destroy(std::exchange(desk_.display, nullptr));
    ::close(bell_);
}

void MockCompositor::serve() {
    wl_event_loop* const loop = wl_display_get_event_loop(desk_.display);
    while (!isOver_) {
        wl_display_flush_clients(desk_.display);
        wl_event_loop_dispatch(loop, -1);
    }
}

void MockCompositor::takeWork() {
    eventfd_t rings = 0;
    ::eventfd_read(bell_, &rings);
    std::function<void()> work;
    {
        const std::scoped_lock hold(lock_);
        work = std::move(work_);
    }
    work();
    wl_display_flush_clients(desk_.display);
    done_->open();
}

}  // namespace vantrel::wayland
