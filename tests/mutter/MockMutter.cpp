#include "mutter/MockMutter.h"

#include <algorithm>
#include <poll.h>
#include <utility>

#include "mutter/MockRules.h"
#include "runtime/Fatal.h"

namespace vantrel::mutter {
namespace {

constexpr const char* name = "org.gnome.Mutter.DisplayConfig";
constexpr const char* path = "/org/gnome/Mutter/DisplayConfig";

int refuse(sd_bus_message* call, const char* error, const std::string& text) {
    return sd_bus_reply_method_errorf(call, error, "%s", text.c_str());
}

void openStruct(sd_bus_message* message, const char* types) {
    sd_bus_message_open_container(message, SD_BUS_TYPE_STRUCT, types);
}
void openArray(sd_bus_message* message, const char* type) {
    sd_bus_message_open_container(message, SD_BUS_TYPE_ARRAY, type);
}
void close(sd_bus_message* message) { sd_bus_message_close_container(message); }

}  // namespace

struct MockMutter::Methods {
    static Desk& deskOf(void* data) { return static_cast<MockMutter*>(data)->desk_; }

    static void appendMode(sd_bus_message* answer, const MockScreen::Mode& mode, bool isCurrent) {
        openStruct(answer, "siiddada{sv}");
        sd_bus_message_append(answer, "siidd", mode.id.c_str(), mode.width, mode.height, 60.0,
                              mode.preferredScale);
        sd_bus_message_append(answer, "ad", 2, 1.0, 2.0);
        openArray(answer, "{sv}");
        // Only what is true is told.
        if (isCurrent) sd_bus_message_append(answer, "{sv}", "is-current", "b", 1);
        if (mode.isPreferred) sd_bus_message_append(answer, "{sv}", "is-preferred", "b", 1);
        close(answer);
        close(answer);
    }

    static void appendScreen(sd_bus_message* answer, const MockScreen& screen, const Desk& desk) {
        const MockScreen::Logical* const part = desk.find(screen.connector);
        openStruct(answer, "(ssss)a(siiddada{sv})a{sv}");
        sd_bus_message_append(answer, "(ssss)", screen.connector.c_str(), "MCK", "M1", "1234");
        openArray(answer, "(siiddada{sv})");
        for (const MockScreen::Mode& mode : screen.modes) {
            appendMode(answer, mode, part != nullptr && part->modes.at(screen.connector) == mode.id);
        }
        close(answer);
        sd_bus_message_append(answer, "a{sv}", 4, "is-builtin", "b", 0, "display-name", "s", "Mock 24\"",
                              "is-underscanning", "b", screen.isUnderscanning ? 1 : 0, "color-mode", "u",
                              screen.colorMode);
        close(answer);
    }

    static int getCurrentState(sd_bus_message* call, void* data, sd_bus_error*) {
        const Desk& desk = deskOf(data);
        sd_bus_message* answer = nullptr;
        sd_bus_message_new_method_return(call, &answer);
        sd_bus_message_append(answer, "u", desk.serial);
        openArray(answer, "((ssss)a(siiddada{sv})a{sv})");
        for (const MockScreen& screen : desk.screens) {
            if (screen.isPlugged) appendScreen(answer, screen, desk);
        }
        close(answer);
        openArray(answer, "(iiduba(ssss)a{sv})");
        for (const MockScreen::Logical& part : desk.logical) {
            openStruct(answer, "iiduba(ssss)a{sv}");
            sd_bus_message_append(answer, "iidub", part.x, part.y, part.scale, part.transform,
                                  part.isPrimary ? 1 : 0);
            openArray(answer, "(ssss)");
            for (const auto& [connector, mode] : part.modes) {
                sd_bus_message_append(answer, "(ssss)", connector.c_str(), "MCK", "M1", "1234");
            }
            close(answer);
            sd_bus_message_append(answer, "a{sv}", 0);
            close(answer);
        }
        close(answer);
        openArray(answer, "{sv}");
        sd_bus_message_append(answer, "{sv}", "layout-mode", "u", desk.layoutMode);
        if (desk.canChangeLayoutMode)
            sd_bus_message_append(answer, "{sv}", "supports-changing-layout-mode", "b", 1);
        if (desk.needsOneScale) sd_bus_message_append(answer, "{sv}", "global-scale-required", "b", 1);
        sd_bus_message_append(answer, "{sv}", "legacy-ui-scaling-factor", "i", 1);
        close(answer);
        sd_bus_send(nullptr, answer, nullptr);
        sd_bus_message_unref(answer);
        return 1;
    }

    static int getResources(sd_bus_message* call, void* data, sd_bus_error*) {
        const Desk& desk = deskOf(data);
        sd_bus_message* answer = nullptr;
        sd_bus_message_new_method_return(call, &answer);
        sd_bus_message_append(answer, "u", desk.serial);
        openArray(answer, "(uxiiiiiuaua{sv})");
        for (std::uint32_t crtc = 0; crtc < desk.screens.size(); ++crtc) {
            sd_bus_message_append(answer, "(uxiiiiiuaua{sv})", crtc, std::int64_t{40} + crtc, 0, 0, 1920,
                                  1080, 0, 0U, 1, 0U, 0);
        }
        close(answer);
        openArray(answer, "(uxiausauaua{sv})");
        for (std::uint32_t number = 0; number < desk.screens.size(); ++number) {
            const MockScreen& screen = desk.screens[number];
            if (!screen.isPlugged) continue;
            openStruct(answer, "uxiausauaua{sv}");
            const bool isLit = desk.find(screen.connector) != nullptr;
            sd_bus_message_append(answer, "uxi", number, std::int64_t{50} + number,
                                  isLit ? static_cast<int>(number) : -1);
            sd_bus_message_append(answer, "au", 1, number);
            sd_bus_message_append(answer, "sauau", screen.connector.c_str(), 2, 0U, 1U, 0);
            openArray(answer, "{sv}");
            sd_bus_message_append(answer, "{sv}", "vendor", "s", "MCK");
            sd_bus_message_open_container(answer, SD_BUS_TYPE_DICT_ENTRY, "sv");
            sd_bus_message_append(answer, "s", "edid");
            sd_bus_message_open_container(answer, SD_BUS_TYPE_VARIANT, "ay");
            sd_bus_message_append_array(answer, 'y', screen.edid.data(), screen.edid.size());
            close(answer);
            close(answer);
            sd_bus_message_append(answer, "{sv}", "backlight", "i", -1);
            close(answer);
            close(answer);
        }
        close(answer);
        sd_bus_message_append(answer, "a(uxuudu)", 0);
        sd_bus_message_append(answer, "ii", 16384, 16384);
        sd_bus_send(nullptr, answer, nullptr);
        sd_bus_message_unref(answer);
        return 1;
    }

    static std::vector<MockScreen::Logical> readLayout(sd_bus_message* call, Desk& desk) {
        std::vector<MockScreen::Logical> layout;
        sd_bus_message_enter_container(call, SD_BUS_TYPE_ARRAY, "(iiduba(ssa{sv}))");
        while (sd_bus_message_enter_container(call, SD_BUS_TYPE_STRUCT, "iiduba(ssa{sv})") > 0) {
            MockScreen::Logical& part = layout.emplace_back();
            int isPrimary = 0;
            sd_bus_message_read(call, "iidub", &part.x, &part.y, &part.scale, &part.transform, &isPrimary);
            part.isPrimary = isPrimary != 0;
            sd_bus_message_enter_container(call, SD_BUS_TYPE_ARRAY, "(ssa{sv})");
            while (sd_bus_message_enter_container(call, SD_BUS_TYPE_STRUCT, "ssa{sv}") > 0) {
                const char* connector = nullptr;
                const char* mode = nullptr;
                sd_bus_message_read(call, "ss", &connector, &mode);
                part.modes[connector] = mode;
                readProperties(call, desk, connector);
                sd_bus_message_exit_container(call);
            }
            sd_bus_message_exit_container(call);
            sd_bus_message_exit_container(call);
        }
        sd_bus_message_exit_container(call);
        return layout;
    }

    static void readProperties(sd_bus_message* call, Desk& desk, const std::string& connector) {
        sd_bus_message_enter_container(call, SD_BUS_TYPE_ARRAY, "{sv}");
        while (sd_bus_message_enter_container(call, SD_BUS_TYPE_DICT_ENTRY, "sv") > 0) {
            const char* property = nullptr;
            const char* type = nullptr;
            std::uint32_t value = 0;
            sd_bus_message_read(call, "s", &property);
            sd_bus_message_peek_type(call, nullptr, &type);
            sd_bus_message_read(call, "v", type, &value);
            if (std::string(property) == "layout-mode") desk.lastLayoutMode = value;
            desk.lastProperties.push_back(connector + " " + property + " " + std::to_string(value));
            sd_bus_message_exit_container(call);
        }
        sd_bus_message_exit_container(call);
    }

    static int applyMonitorsConfig(sd_bus_message* call, void* data, sd_bus_error*) {
        auto& self = *static_cast<MockMutter*>(data);
        Desk& desk = self.desk_;
        ++desk.configurations;
        if (desk.isSilent) return 1;
        if (std::exchange(desk.interruptions, std::max(desk.interruptions - 1, 0)) > 0) ++desk.serial;
        std::uint32_t serial = 0;
        sd_bus_message_read(call, "uu", &serial, &desk.lastMethod);
        desk.lastProperties.clear();
        desk.lastLayoutMode = 0;
        const auto layout = readLayout(call, desk);
        readProperties(call, desk, "all");
        if (!desk.isApplyAllowed) return refuse(call, SD_BUS_ERROR_ACCESS_DENIED, "not allowed");
        if (serial != desk.serial) return refuse(call, SD_BUS_ERROR_ACCESS_DENIED, "stale information");
        if (std::exchange(desk.refusals, std::max(desk.refusals - 1, 0)) > 0) {
            return refuse(call, SD_BUS_ERROR_FAILED, "refused");
        }
        if (desk.lastLayoutMode != 0 && !desk.canChangeLayoutMode) {
            return refuse(call, SD_BUS_ERROR_INVALID_ARGS, "Can't set layout mode");
        }
        const std::string objection = MockRules::objection(desk, layout);
        if (!objection.empty()) return refuse(call, SD_BUS_ERROR_INVALID_ARGS, objection);
        desk.logical = layout;
        ++desk.serial;
        self.announce();
        return sd_bus_reply_method_return(call, "");
    }

    // Nothing, after an error has been sent.
    static MockScreen* screenOfCrtc(sd_bus_message* call, Desk& desk) {
        std::uint32_t serial = 0;
        std::uint32_t crtc = 0;
        sd_bus_message_read(call, "uu", &serial, &crtc);
        if (serial == desk.serial && crtc < desk.screens.size() && desk.hasTables) return &desk.screens[crtc];
        refuse(call, SD_BUS_ERROR_ACCESS_DENIED, "stale information");
        return nullptr;
    }

    static int getCrtcGamma(sd_bus_message* call, void* data, sd_bus_error*) {
        const MockScreen* const screen = screenOfCrtc(call, deskOf(data));
        if (screen == nullptr) return 1;
        sd_bus_message* answer = nullptr;
        sd_bus_message_new_method_return(call, &answer);
        const std::size_t size = screen->table.size() / 3;
        for (std::size_t channel = 0; channel < 3; ++channel) {
            sd_bus_message_append_array(answer, 'q', screen->table.data() + channel * size, size * 2);
        }
        sd_bus_send(nullptr, answer, nullptr);
        sd_bus_message_unref(answer);
        return 1;
    }

    static int setCrtcGamma(sd_bus_message* call, void* data, sd_bus_error*) {
        Desk& desk = deskOf(data);
        if (std::exchange(desk.interruptions, std::max(desk.interruptions - 1, 0)) > 0) ++desk.serial;
        MockScreen* const screen = screenOfCrtc(call, desk);
        if (screen == nullptr) return 1;
        std::vector<std::uint16_t> table;
        for (int channel = 0; channel < 3; ++channel) {
            const void* samples = nullptr;
            std::size_t size = 0;
            sd_bus_message_read_array(call, 'q', &samples, &size);
            const auto* const first = static_cast<const std::uint16_t*>(samples);
            table.insert(table.end(), first, first + size / 2);
        }
        screen->table = std::move(table);
        return sd_bus_reply_method_return(call, "");
    }

    static int isApplyAllowed(sd_bus*, const char*, const char*, const char*, sd_bus_message* answer,
                              void* data, sd_bus_error*) {
        return sd_bus_message_append(answer, "b", deskOf(data).isApplyAllowed ? 1 : 0);
    }
};

MockScreen& MockMutter::Desk::screen(const std::string& connector) {
    return *std::find_if(screens.begin(), screens.end(),
                         [&](const MockScreen& screen) { return screen.connector == connector; });
}

const MockScreen::Logical* MockMutter::Desk::find(const std::string& connector) const {
    const auto found = std::find_if(logical.begin(), logical.end(), [&](const MockScreen::Logical& part) {
        return part.modes.contains(connector);
    });
    return found != logical.end() ? &*found : nullptr;
}

const MockScreen::Mode* MockMutter::Desk::mode(const std::string& connector, const std::string& id) const {
    for (const MockScreen& screen : screens) {
        if (screen.connector != connector || !screen.isPlugged) continue;
        for (const MockScreen::Mode& mode : screen.modes) {
            if (mode.id == id) return &mode;
        }
    }
    return nullptr;
}

MockMutter::MockMutter(Desk desk) : desk_(std::move(desk)) {
    static const sd_bus_vtable methods[] = {
        SD_BUS_VTABLE_START(0),
        SD_BUS_METHOD("GetCurrentState", "", "ua((ssss)a(siiddada{sv})a{sv})a(iiduba(ssss)a{sv})a{sv}",
                      Methods::getCurrentState, SD_BUS_VTABLE_UNPRIVILEGED),
        SD_BUS_METHOD("GetResources", "", "ua(uxiiiiiuaua{sv})a(uxiausauaua{sv})a(uxuudu)ii",
                      Methods::getResources, SD_BUS_VTABLE_UNPRIVILEGED),
        SD_BUS_METHOD("ApplyMonitorsConfig", "uua(iiduba(ssa{sv}))a{sv}", "", Methods::applyMonitorsConfig,
                      SD_BUS_VTABLE_UNPRIVILEGED),
        SD_BUS_METHOD("GetCrtcGamma", "uu", "aqaqaq", Methods::getCrtcGamma, SD_BUS_VTABLE_UNPRIVILEGED),
        SD_BUS_METHOD("SetCrtcGamma", "uuaqaqaq", "", Methods::setCrtcGamma, SD_BUS_VTABLE_UNPRIVILEGED),
        SD_BUS_SIGNAL("MonitorsChanged", "", 0),
        SD_BUS_PROPERTY("ApplyMonitorsConfigAllowed", "b", Methods::isApplyAllowed, 0, 0),
        SD_BUS_VTABLE_END};
    const bool isThere = sd_bus_open_user(&bus_) >= 0 &&
                         sd_bus_add_object_vtable(bus_, nullptr, path, name, methods, this) >= 0 &&
                         sd_bus_request_name(bus_, name, 0) >= 0;
    runtime::require(isThere, "the bus takes no service");
    thread_.start("mutter", [this] { serve(); });
}

MockMutter::~MockMutter() {
    thread_.end();
    sd_bus_flush_close_unref(bus_);
}

void MockMutter::run(std::function<void(Desk& desk)> work) {
    thread_.run([this, &work] { work(desk_); });
}

void MockMutter::change(std::function<void(Desk& desk)> work) {
    thread_.run([this, &work] {
        work(desk_);
        ++desk_.serial;
        announce();
        sd_bus_flush(bus_);
    });
}

MockMutter::Desk MockMutter::desk() {
    Desk copy;
    run([&](Desk& desk) { copy = desk; });
    return copy;
}

void MockMutter::leave() {
    thread_.run([this] { sd_bus_release_name(bus_, name); });
}

void MockMutter::comeBack() {
    thread_.run([this] { sd_bus_request_name(bus_, name, 0); });
}

void MockMutter::announce() { sd_bus_emit_signal(bus_, path, name, "MonitorsChanged", ""); }

void MockMutter::serve() {
    while (!thread_.isOver()) {
        while (sd_bus_process(bus_, nullptr) > 0) {
        }
        sd_bus_flush(bus_);
        pollfd waiting[] = {{sd_bus_get_fd(bus_), POLLIN, 0}, {thread_.bell(), POLLIN, 0}};
        ::poll(waiting, 2, -1);
        if ((waiting[1].revents & POLLIN) != 0) thread_.takeWork();
    }
}

}  // namespace vantrel::mutter
