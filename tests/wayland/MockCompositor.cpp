#include "wayland/MockCompositor.h"

#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
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
    : socket_(folder_.path("wayland-0")) {
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
    workSource_ = wl_event_loop_add_fd(
        wl_display_get_event_loop(desk_.display), thread_.bell(), WL_EVENT_READABLE,
        [](int, std::uint32_t, void* data) {
            static_cast<test::PeerThread*>(data)->takeWork();
            return 0;
        },
        &thread_);
    thread_.start("compositor", [this] { serve(); });
}

void MockCompositor::run(std::function<void(MockDesk& desk)> work) {
    thread_.run([this, &work] {
        work(desk_);
        wl_display_flush_clients(desk_.display);
    });
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

void MockCompositor::die() {
    if (desk_.display == nullptr) return;
    thread_.end();
    wl_event_source_remove(workSource_);
    wl_display_destroy_clients(desk_.display);
    wl_display_destroy(std::exchange(desk_.display, nullptr));
}

void MockCompositor::serve() {
    wl_event_loop* const loop = wl_display_get_event_loop(desk_.display);
    while (!thread_.isOver()) {
        wl_display_flush_clients(desk_.display);
        wl_event_loop_dispatch(loop, -1);
    }
}

}  // namespace vantrel::wayland
