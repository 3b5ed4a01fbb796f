#include "platform/linux/randr/Connection.h"

#include <csignal>
#include <string_view>

#include "platform/linux/randr/Owned.h"

namespace vantrel::randr {
namespace {

constexpr std::uint32_t neededMajor = 1;
constexpr std::uint32_t neededMinor = 3;
constexpr std::uint16_t events = XCB_RANDR_NOTIFY_MASK_SCREEN_CHANGE | XCB_RANDR_NOTIFY_MASK_CRTC_CHANGE |
                                 XCB_RANDR_NOTIFY_MASK_OUTPUT_CHANGE | XCB_RANDR_NOTIFY_MASK_OUTPUT_PROPERTY;
// The property that holds what the monitor says of itself (RandR 1.3, "EDID").
constexpr std::string_view edidProperty = "EDID";
// Set in what another client sent (X11, "Events").
constexpr std::uint8_t sentFlag = 0x80;

void ignoreBrokenPipes() {
    const auto before = std::signal(SIGPIPE, SIG_IGN);
    if (before != SIG_DFL && before != SIG_ERR) std::signal(SIGPIPE, before);
}

const xcb_screen_t* screenOf(xcb_connection_t* connection, int number) {
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; screens.rem > 0 && number > 0; --number) xcb_screen_next(&screens);
    return screens.rem > 0 ? screens.data : nullptr;
}

Connection::Density densityOf(int width, int height, int millimetersWide, int millimetersHigh) {
    if (width <= 0 || height <= 0) return {};
    return {static_cast<double>(millimetersWide) / width, static_cast<double>(millimetersHigh) / height};
}

}  // namespace

std::unique_ptr<Connection> Connection::open(const std::string& display) {
    if (display.empty()) return nullptr;
    ignoreBrokenPipes();
    int screen = 0;
    std::unique_ptr<Connection> opened(new Connection(xcb_connect(display.c_str(), &screen)));
    if (!opened->isAlive() || !opened->prepare(screen)) return nullptr;
    return opened;
}

bool Connection::prepare(int number) {
    const xcb_screen_t* const screen = screenOf(connection_, number);
    const xcb_query_extension_reply_t* const randr = xcb_get_extension_data(connection_, &xcb_randr_id);
    if (screen == nullptr || randr == nullptr || randr->present == 0) return false;
    const auto asked = xcb_randr_query_version(connection_, neededMajor, neededMinor);
    const auto named = xcb_intern_atom(connection_, 0, edidProperty.size(), edidProperty.data());
    const Owned<xcb_randr_query_version_reply_t> version(
        xcb_randr_query_version_reply(connection_, asked, nullptr));
    const Owned<xcb_intern_atom_reply_t> edid(xcb_intern_atom_reply(connection_, named, nullptr));
    if (!version || !edid || version->major_version != neededMajor || version->minor_version < neededMinor) {
        return false;
    }
    root_ = screen->root;
    edid_ = edid->atom;
    firstEvent_ = randr->first_event;
    density_ = densityOf(screen->width_in_pixels, screen->height_in_pixels, screen->width_in_millimeters,
                         screen->height_in_millimeters);
    return succeeds(xcb_randr_select_input_checked(connection_, root_, events));
}

bool Connection::succeeds(xcb_void_cookie_t request) const {
    const Owned<xcb_generic_error_t> error(xcb_request_check(connection_, request));
    return !error && isAlive();
}

bool Connection::takeEvents() {
    bool isAny = false;
    while (const auto event = Owned<xcb_generic_event_t>(xcb_poll_for_event(connection_))) {
        isAny = concernsOutputs(*event) || isAny;
    }
    return isAny;
}

bool Connection::concernsOutputs(const xcb_generic_event_t& event) {
    const int kind = event.response_type & ~sentFlag;
    if (kind == firstEvent_ + XCB_RANDR_SCREEN_CHANGE_NOTIFY) {
        const auto& change = reinterpret_cast<const xcb_randr_screen_change_notify_event_t&>(event);
        density_ = densityOf(change.width, change.height, change.mwidth, change.mheight);
        return true;
    }
    if (kind != firstEvent_ + XCB_RANDR_NOTIFY) return false;
    const auto& change = reinterpret_cast<const xcb_randr_notify_event_t&>(event);
    // A monitor's brightness is a property too, and says nothing about its picture.
    return change.subCode != XCB_RANDR_NOTIFY_OUTPUT_PROPERTY || change.u.op.atom == edid_;
}

}  // namespace vantrel::randr
